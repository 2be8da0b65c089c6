#include "batch/many/Plan.h"
#include "batch/Failure.h"
#include "batch/names/NamePattern.h"
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
        : order_(order), inputs_(inputs), endingOf_(endingOf),
          isLate_(!order.inPlace && NamePattern(order.pattern).isLate())
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
            const NameFacts facts = factsOf(input, i + 1);
            QString output = order_.inPlace ? input.path : outputOf(order_, facts);
            auto there = statusOf(output);
            check(input, i, output, there);
            if (shardOf(input.dir, lastName(input.path), order_.shard.count) != order_.shard.index) continue;
            if (there && order_.existing == Existing::Number) output = numbered(output);
            const bool isSkipped = there && isLeft(order_, {input.seconds, input.nanoseconds},
                                                   {there->st_mtim.tv_sec, there->st_mtim.tv_nsec});
            plan.pictures.push_back({input.path, output, isSkipped});
            folders_.insert(folderOf(output));
            if (isLate_) plan.late.push_back(facts);
        }
        if (isLate_)
            for (const auto& [identity, input] : byIdentity_) plan.originals.insert(identity);
        plan.folders = QStringList(folders_.begin(), folders_.end());
        return plan;
    }

  private:
    NameFacts factsOf(const InputFile& input, int number) const
    {
        return {input.path, input.dir, endingOf_(extensionOf(lastName(input.path))), number, input.seconds};
    }

    void check(const InputFile& input, int at, const QString& output, const std::optional<struct stat>& there)
    {
        if (const int other = targets_.take(output, there, at); other >= 0)
            throw badArgument(QStringLiteral("%1 and %2 %3 both become %4; {dir} or {n} in --name keeps them apart")
                                  .arg(inputs_[std::size_t(other)].path, input.path,
                                       isLate_ ? QStringLiteral("may") : QStringLiteral("would"), output));
        if (!there || order_.inPlace) return;
        const auto original = byIdentity_.find({there->st_dev, there->st_ino});
        if (original != byIdentity_.end())
            throw badArgument(
                QStringLiteral("%1 would be written over %2, which is an input; --in-place --yes changes originals")
                    .arg(input.path, inputs_[std::size_t(original->second)].path));
    }

    /// "a.jpg" becomes "a-2.jpg", or the next that neither is there nor another output.
    QString numbered(const QString& output)
    {
        for (int number = 2;; ++number) {
            const QString name = numberedName(output, number);
            if (!isThere(name) && targets_.take(name, {}, -2) == -1) return name;
        }
    }

    const ManyOrder& order_;
    const std::vector<InputFile>& inputs_;
    const EndingOf& endingOf_;
    const bool isLate_;
    std::map<FileIdentity, int> byIdentity_;
    Targets targets_;
    std::set<QString> folders_;
};

} // namespace

Plan planOf(const ManyOrder& order, const std::vector<InputFile>& inputs, const EndingOf& endingOf)
{
    return Planner(order, inputs, endingOf).plan();
}

QString outputOf(const ManyOrder& order, const NameFacts& facts)
{
    const QString slash = order.into.endsWith(u'/') ? QString() : QStringLiteral("/");
    return saveTargetOf(order.into + slash + NamePattern(order.pattern).nameOf(facts)).file;
}

QString numberedName(const QString& output, int number)
{
    const qsizetype dot = output.lastIndexOf(u'.');
    return output.left(dot) + u'-' + QString::number(number) + output.mid(dot);
}

bool isLeft(const ManyOrder& order, const FileTime& input, const FileTime& output)
{
    if (order.inPlace) return false;
    return order.existing == Existing::Newer ? output >= input : order.existing == Existing::Skip;
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
