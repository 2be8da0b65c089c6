// FolderModel: folders, and optionally files, as a tree model. Each folder is read when it is opened, in one go: five
// thousand names take a few hundredths of a second. Folders come first, then by name, numbers by value; hidden ones are
// omitted. Open folders follow changes on disk.
#pragma once
#include <QAbstractItemModel>
#include <QFileSystemWatcher>
#include <QIcon>
#include <QSet>
#include <QTimer>
#include <memory>
#include <vector>

namespace velara {

class ThumbnailIcons;

class FolderModel : public QAbstractItemModel {
  public:
    explicit FolderModel(bool withFiles, QObject* parent = nullptr);
    ~FolderModel() override;

    /// The item of a path; reads the folders on the way, and shows a hidden one on request. If it doesn't exist, the
    /// nearest folder above it.
    QModelIndex indexOf(const QString& path);
    QString path(const QModelIndex& index) const;
    bool isFolder(const QModelIndex& index) const;

    /// Picture files get these instead of the plain icon. icons must live as long as the model.
    void setThumbnails(ThumbnailIcons& icons);

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;
    QVariant data(const QModelIndex& index, int role) const override;

  private:
    struct Item;
    using Items = std::vector<std::unique_ptr<Item>>;

    Item* itemOf(const QModelIndex& index) const;
    QModelIndex indexOf(const Item& item) const;
    Item* find(const QString& path) const;
    Item* child(Item& folder, const QString& name);
    Items read(const QString& folder) const;
    void take(Item& folder, Items items);
    void drop(Item& folder, int first, int last);
    void followDisk();

    bool withFiles_;
    ThumbnailIcons* thumbnails_ = nullptr;
    QIcon folderIcon_, fileIcon_;
    std::unique_ptr<Item> root_;
    QFileSystemWatcher watcher_;
    QSet<QString> changed_; // folders to be reread
    QTimer pause_;          // merges many changes into one
};

} // namespace velara
