#include "ui/widgets/FolderModel.h"
#include "fileio/disk/nativeName.h"
#include "fileio/formats.h"
#include "fileio/nameOrder.h"
#include "platform/desktop/dialogs/ThumbnailIcons.h"
#include "seams/printable.h"
#include <QApplication>
#include <QCollator>
#include <QDir>
#include <QFile>
#include <QStyle>
#include <dirent.h>

namespace velara {

using namespace std::chrono_literals;

struct FolderModel::Item {
    QString name;
    QCollatorSortKey key;
    bool folder;
    bool read = false;
    Item* above = nullptr;
    int row = 0;
    Items items = {};

    bool operator<(const Item& other) const
    {
        if (folder != other.folder) return folder;
        const int order = key.compare(other.key);
        return order != 0 ? order < 0 : name < other.name;
    }
    QString path() const
    {
        if (!above) return QStringLiteral("/");
        return above->above ? above->path() + '/' + name : '/' + name;
    }
};

namespace {

QIcon themed(const char* name, QStyle::StandardPixmap otherwise)
{
    return QIcon::fromTheme(name, QApplication::style()->standardIcon(otherwise));
}

/// The directory entry has the type; only links are resolved.
bool isFolderEntry(const dirent& entry, const QString& path)
{
    if (entry.d_type == DT_LNK || entry.d_type == DT_UNKNOWN) return velara::isFolder(path);
    return entry.d_type == DT_DIR;
}

} // namespace

FolderModel::FolderModel(bool withFiles, QObject* parent)
    : QAbstractItemModel(parent), withFiles_(withFiles), folderIcon_(themed("folder", QStyle::SP_DirIcon)),
      fileIcon_(themed("text-x-generic", QStyle::SP_FileIcon)),
      root_(new Item{QStringLiteral("/"), nameOrder().sortKey(QString()), true})
{
    pause_.setSingleShot(true);
    pause_.setInterval(200ms);
    connect(&pause_, &QTimer::timeout, this, &FolderModel::followDisk);
    connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, [this](const QString& folder) {
        changed_ << folder;
        if (!pause_.isActive()) pause_.start();
    });
}

FolderModel::~FolderModel() = default;

// --- Access to the model's items

FolderModel::Item* FolderModel::itemOf(const QModelIndex& index) const
{
    return static_cast<Item*>(index.internalPointer());
}

QModelIndex FolderModel::indexOf(const Item& item) const { return createIndex(item.row, 0, &item); }

QModelIndex FolderModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent)) return {};
    return parent.isValid() ? indexOf(*itemOf(parent)->items[std::size_t(row)]) : indexOf(*root_);
}

QModelIndex FolderModel::parent(const QModelIndex& index) const
{
    const Item* above = index.isValid() ? itemOf(index)->above : nullptr;
    return above ? indexOf(*above) : QModelIndex();
}

int FolderModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? static_cast<int>(itemOf(parent)->items.size()) : 1;
}

int FolderModel::columnCount(const QModelIndex&) const { return 1; }

bool FolderModel::hasChildren(const QModelIndex& parent) const
{
    if (!parent.isValid()) return true;
    const Item& item = *itemOf(parent);
    return item.folder && (!item.read || !item.items.empty());
}

bool FolderModel::canFetchMore(const QModelIndex& parent) const
{
    return parent.isValid() && itemOf(parent)->folder && !itemOf(parent)->read;
}

void FolderModel::fetchMore(const QModelIndex& parent)
{
    if (!canFetchMore(parent)) return;
    Item& folder = *itemOf(parent);
    folder.read = true;
    take(folder, read(folder.path()));
    watcher_.addPath(folder.path());
}

QVariant FolderModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) return {};
    const Item& item = *itemOf(index);
    if (role == Qt::DisplayRole) return printable(item.name);
    if (role != Qt::DecorationRole) return {};
    if (item.folder) return folderIcon_;
    return thumbnails_ && familyOf(item.name) ? thumbnails_->icon(item.path()) : fileIcon_;
}

void FolderModel::setThumbnails(ThumbnailIcons& icons)
{
    thumbnails_ = &icons;
    connect(&icons, &ThumbnailIcons::ready, this, [this](const QString& path) {
        if (const Item* item = find(path)) emit dataChanged(indexOf(*item), indexOf(*item), {Qt::DecorationRole});
    });
}

// --- Paths

QString FolderModel::path(const QModelIndex& index) const
{
    return index.isValid() ? itemOf(index)->path() : QString();
}

bool FolderModel::isFolder(const QModelIndex& index) const { return index.isValid() && itemOf(index)->folder; }

QModelIndex FolderModel::indexOf(const QString& path)
{
    Item* item = root_.get();
    for (const QString& name : QDir::cleanPath(path).split('/', Qt::SkipEmptyParts)) {
        Item* next = child(*item, name);
        if (!next) break;
        item = next;
    }
    return indexOf(*item);
}

/// The loaded item of this path, or null.
FolderModel::Item* FolderModel::find(const QString& path) const
{
    Item* item = root_.get();
    for (const QString& name : path.split('/', Qt::SkipEmptyParts)) {
        const auto found = std::ranges::find(item->items, name, [](const auto& each) { return each->name; });
        if (found == item->items.end()) return nullptr;
        item = found->get();
    }
    return item;
}

FolderModel::Item* FolderModel::child(Item& folder, const QString& name)
{
    fetchMore(indexOf(folder));
    const auto named = [&] {
        return std::ranges::find(folder.items, name, [](const auto& each) { return each->name; });
    };
    if (const auto found = named(); found != folder.items.end()) return found->get();
    const auto status = statusOf(folder.path() + '/' + name);
    if (!status || !(withFiles_ || S_ISDIR(status->st_mode))) return nullptr;
    Items one;
    one.emplace_back(new Item{name, nameOrder().sortKey(name), bool(S_ISDIR(status->st_mode))});
    take(folder, std::move(one));
    return named()->get();
}

// --- The disk

/// The names in a folder, sorted; none if it can't be read.
FolderModel::Items FolderModel::read(const QString& folder) const
{
    Items items;
    const std::unique_ptr<DIR, int (*)(DIR*)> directory(opendir(nativeName(folder).constData()), closedir);
    while (const dirent* entry = directory ? readdir(directory.get()) : nullptr) {
        if (entry->d_name[0] == '.') continue;
        const QString name = nameFrom(entry->d_name);
        const bool isFolder = isFolderEntry(*entry, folder + '/' + name);
        if (isFolder || withFiles_) items.emplace_back(new Item{name, nameOrder().sortKey(name), isFolder});
    }
    std::ranges::sort(items, [](const auto& a, const auto& b) { return *a < *b; });
    return items;
}

/// Merges sorted items into those of a folder, each consecutive run at once.
void FolderModel::take(Item& folder, Items items)
{
    Items& all = folder.items;
    for (std::size_t i = 0, run; i < items.size(); i += run) {
        const auto before = [](const auto& a, const auto& b) { return *a < *b; };
        const auto at = std::ranges::lower_bound(all, items[i], before);
        for (run = 1; i + run < items.size() && (at == all.end() || *items[i + run] < **at);) ++run;
        const auto first = at - all.begin();
        beginInsertRows(indexOf(folder), int(first), int(first + std::ptrdiff_t(run) - 1));
        const auto from = std::make_move_iterator(items.begin() + std::ptrdiff_t(i));
        all.insert(at, from, from + std::ptrdiff_t(run));
        for (std::size_t row = std::size_t(first); row < all.size(); ++row) {
            all[row]->row = int(row);
            all[row]->above = &folder;
        }
        endInsertRows();
    }
}

void FolderModel::drop(Item& folder, int first, int last)
{
    beginRemoveRows(indexOf(folder), first, last);
    folder.items.erase(folder.items.begin() + first, folder.items.begin() + last + 1);
    for (std::size_t row = std::size_t(first); row < folder.items.size(); ++row) folder.items[row]->row = int(row);
    endRemoveRows();
}

void FolderModel::followDisk()
{
    for (const QString& path : std::exchange(changed_, {})) {
        Item* folder = find(path);
        if (!folder || !folder->read) continue;
        Items now = read(path);
        const auto same = [](const auto& a, const auto& b) { return !(*a < *b) && !(*b < *a); };
        for (int row = int(folder->items.size()) - 1; row >= 0; --row) {
            const auto& item = folder->items[std::size_t(row)];
            const auto at = std::ranges::lower_bound(now, item, [](const auto& a, const auto& b) { return *a < *b; });
            if (at != now.end() && same(*at, item))
                now.erase(at);
            else if (!isThere(item->path())) // a hidden one shown on request stays
                drop(*folder, row, row);
        }
        take(*folder, std::move(now));
    }
}

} // namespace velara
