#include "batch/many/Plan.h"
#include "batch/Failure.h"
#include "batch/many/NamePattern.h"
#include "fileio/disk/nativeName.h"
#include "fileio/formats.h"
#include <QDir>
#include <map>
#include <set>
#include <unordered_map>

namespace velara {

namespace {

QString folderOf(const QString& path)
{
    const qsizetype slash = path.lastIndexOf(u'/');
    return slash < 0 ? QStringLiteral(".") : slash == 0 ? QStringLiteral("/") : path.left(slash);
}

/// Tells by which outputs one file would be written: by what is there, and by folder and name where nothing is.
class Targets {
  public:
    /// The input that has taken it before; -1: none.
    int take(const QString& output, const std::optional<struct stat>& there, int input)
    {
        if (there) {
            const auto [at, isNew] = files_.try_emplace({there->st_dev, there->st_ino}, input);
            return isNew ? -1 : at->second;
        }
        const QByteArray name = nativeName(realFolder(folderOf(output)) + u'/' + lastName(output));
        const auto [at, isNew] = names_.try_emplace(std::string(name.constData(), std::size_t(name.size())), input);
        return isNew ? -1 : at->second;
    }

  private:
    /// With its links resolved, as far as it is there.
    const QString& realFolder(const QString& folder)
    {
        const auto [at, isNew] = folders_.try_emplace(folder);
        if (isNew) {
            const std::unique_ptr<char, void (*)(void*)> real(realpath(nativeName(folder).constData(), nullptr), free);
            const QString above = folderOf(folder);
            at->second = real              ? nameFrom(real.get())
                         : above == folder ? folder
                                           : QString(realFolder(above)) + u'/' + lastName(folder);
        }
        return at->second;
    }

    std::map<FileIdentity, int> files_;
    std::unordered_map<std::string, int> names_;
    std::map<QString, QString> folders_;
};

class Planner {
  public:
    Planner(const ManyOrder& order, const std::vector<InputFile>& inputs, const EndingOf& endingOf)
        : order_(order), inputs_(inputs), endingOf_(endingOf), pattern_(order.pattern)
    {
        for (int i = 0; i < static_cast<int>(inputs.size()); ++i)
            if (inputs[std::size_t(i)].identity != FileIdentity{})
                byIdentity_.emplace(inputs[std::size_t(i)].identity, i);
    }

    Plan plan()
    {
        Plan plan;
        for (int i = 0; i < static_cast<int>(inputs_.size()); ++i) {
            const InputFile& input = inputs_[std::size_t(i)];
            QString output = outputOf(input, i + 1);
            auto there = statusOf(output);
            check(input, i, output, there);
            if (shardOf(input.dir, lastName(input.path), order_.shard.count) != order_.shard.index) continue;
            if (there && order_.existing == Existing::Number) output = numbered(output);
            plan.pictures.push_back({input.path, output, there && isLeft(input, *there)});
            folders_.insert(folderOf(output));
        }
        plan.folders = QStringList(folders_.begin(), folders_.end());
        return plan;
    }

  private:
    QString outputOf(const InputFile& input, int number) const
    {
        if (order_.inPlace) return input.path;
        const QString file = lastName(input.path);
        const QString name =
            pattern_.nameOf({input.path, input.dir, endingOf_(extensionOf(file)), number, input.seconds});
        return saveTargetOf(order_.into + (order_.into.endsWith(u'/') ? QString() : QStringLiteral("/")) + name).file;
    }

    void check(const InputFile& input, int at, const QString& output, const std::optional<struct stat>& there)
    {
        if (const int other = targets_.take(output, there, at); other >= 0)
            throw badArgument(QStringLiteral("%1 and %2 would both become %3; {dir} or {n} in --name keeps them apart")
                                  .arg(inputs_[std::size_t(other)].path, input.path, output));
        if (!there || order_.inPlace) return;
        const auto original = byIdentity_.find({there->st_dev, there->st_ino});
        if (original != byIdentity_.end())
            throw badArgument(
                QStringLiteral("%1 would be written over %2, which is an input; --in-place --yes changes originals")
                    .arg(input.path, inputs_[std::size_t(original->second)].path));
    }

    bool isLeft(const InputFile& input, const struct stat& output) const
    {
        if (order_.inPlace) return false;
        if (order_.existing == Existing::Newer)
            return std::pair(std::int64_t{output.st_mtim.tv_sec}, std::int64_t{output.st_mtim.tv_nsec}) >=
                   std::pair(input.seconds, input.nanoseconds);
        return order_.existing == Existing::Skip;
    }

    /// "a.jpg" becomes "a-2.jpg", or the next that neither is there nor another output.
    QString numbered(const QString& output)
    {
        const qsizetype dot = output.lastIndexOf(u'.');
        for (int number = 2;; ++number) {
            const QString name = output.left(dot) + u'-' + QString::number(number) + output.mid(dot);
            if (!isThere(name) && targets_.take(name, {}, -2) == -1) return name;
        }
    }

    const ManyOrder& order_;
    const std::vector<InputFile>& inputs_;
    const EndingOf& endingOf_;
    const NamePattern pattern_;
    std::map<FileIdentity, int> byIdentity_;
    Targets targets_;
    std::set<QString> folders_;
};

} // namespace

Plan planOf(const ManyOrder& order, const std::vector<InputFile>& inputs, const EndingOf& endingOf)
{
    return Planner(order, inputs, endingOf).plan();
}

int shardOf(const QString& dir, const QString& file, int count)
{
    std::uint64_t hash = 0xcbf29ce484222325; // FNV-1a
    for (const char c : nativeName(dir.isEmpty() ? file : dir + u'/' + file))
        hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001b3;
    hash ^= hash >> 32; // its low bits alone follow the last letters
    return static_cast<int>(hash % static_cast<std::uint64_t>(count)) + 1;
}

} // namespace velara
