#include "batch/inputs/InputList.h"
#include "batch/inputs/NumberTable.h"
#include "fileio/disk/nativeName.h"
#include "fileio/formats.h"
#include <QCollator>
#include <QLocale>
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <memory>
#include <set>

namespace velara {

namespace {

FileIdentity identityOf(const struct stat& status) { return {status.st_dev, status.st_ino}; }

/// The order of names: numbers by their value, and the same on every machine.
class NameOrder {
  public:
    NameOrder() : collator_(QLocale(QLocale::English))
    {
        collator_.setNumericMode(true);
        collator_.setCaseSensitivity(Qt::CaseInsensitive);
    }
    bool operator()(const QString& a, const QString& b) const
    {
        const int order = collator_.compare(a, b);
        return order != 0 ? order < 0 : a < b;
    }

  private:
    QCollator collator_;
};

QString joined(const QString& folder, const QString& name)
{
    return folder.isEmpty() || folder.endsWith(u'/') ? folder + name : folder + u'/' + name;
}

class Walk {
  public:
    Walk(bool recursive, const QString& into) : recursive_(recursive)
    {
        if (const auto status = statusOf(into)) into_ = identityOf(*status);
    }

    void take(const QString& input)
    {
        const auto status = statusOf(input);
        if (status && S_ISDIR(status->st_mode))
            enter(input, {}, *status, false);
        else
            add(input, {}, status ? *status : (struct stat){});
    }

    InputList list;

  private:
    void add(const QString& path, const QString& dir, const struct stat& status)
    {
        const QByteArray name = nativeName(path);
        const auto isIt = [&](int at) { return list.files.path(at) == path; };
        if (known_.findOrPut({name.constData(), std::size_t(name.size())}, list.files.size(), isIt) < 0)
            list.files.add({path, dir, identityOf(status), status.st_mtim.tv_sec, status.st_mtim.tv_nsec});
    }

    void leaveOut(const QString& folder, const char* why)
    {
        list.notices << folder + QStringLiteral(": ") + QString::fromUtf8(why);
    }

    void enter(const QString& folder, const QString& dir, const struct stat& status, bool below)
    {
        if (identityOf(status) == into_)
            return leaveOut(folder, "it is what the pictures are written into, and was not looked through");
        if (!folders_.insert(identityOf(status)).second)
            return below ? leaveOut(folder, "it was looked through before, under another name") : void();
        const std::unique_ptr<DIR, int (*)(DIR*)> entries(opendir(nativeName(folder).constData()), closedir);
        if (!entries) return leaveOut(folder, std::strerror(errno));
        std::vector<QString> names;
        while (const dirent* entry = readdir(entries.get()))
            if (entry->d_name[0] != '.') names.push_back(nameFrom(entry->d_name));
        std::ranges::sort(names, order_);
        std::vector<std::pair<QString, struct stat>> below_;
        for (const QString& name : names) {
            const QString path = joined(folder, name);
            const auto each = statusOf(path);
            if (each && S_ISDIR(each->st_mode))
                below_.emplace_back(name, *each);
            else if (each && S_ISREG(each->st_mode) && formatOf(name))
                add(path, dir, *each);
        }
        if (!recursive_) return;
        for (const auto& [name, each] : below_) enter(joined(folder, name), joined(dir, name), each, true);
    }

    const bool recursive_;
    const NameOrder order_;
    FileIdentity into_;
    std::set<FileIdentity> folders_;
    NumberTable known_; // files by their paths
};

} // namespace

InputList findInputs(const QStringList& inputs, bool recursive, const QString& into)
{
    Walk walk(recursive, into);
    for (const QString& input : inputs) walk.take(input);
    return std::move(walk.list);
}

} // namespace velara
