#include "batch/many/Plan.h"
#include "batch/Failure.h"
#include "batch/inputs/NumberTable.h"
#include "batch/names/NamePattern.h"
#include "fileio/disk/nativeName.h"
#include "fileio/formats.h"
#include <QDir>

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
    /// The name of an output that was put in with a number.
    using OutputOf = std::function<QString(int number)>;
    explicit Targets(OutputOf outputOf) : outputOf_(std::move(outputOf)) {}

    /// The number with which it was taken before; -1: with none, and it is now.
    int take(const QString& output, const std::optional<struct stat>& there, int number)
    {
        if (there) {
            const FileIdentity file{there->st_dev, there->st_ino};
            return files_.findOrPut(keyOf(file), number, [&](int other) {
                const auto status = statusOf(outputOf_(other));
                return status && FileIdentity{status->st_dev, status->st_ino} == file;
            });
        }
        const QByteArray place = placeOf(output);
        return names_.findOrPut({place.constData(), std::size_t(place.size())}, number,
                                [&](int other) { return placeOf(outputOf_(other)) == place; });
    }

  private:
    QByteArray placeOf(const QString& output)
    {
        return nativeName(realFolder(folderOf(output)) + u'/' + lastName(output));
    }

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

    const OutputOf outputOf_;
    NumberTable files_, names_;
    std::map<QString, QString> folders_;
};

class Planner {
  public:
    Planner(const ManyOrder& order, InputFiles files, const EndingOf& endingOf)
        : plan_{order, std::move(files), endingOf}, targets_([this](int taken) { return takenName(taken); })
    {
        const InputFiles& inputs = plan_.inputs;
        plan_.isLate = !order.inPlace && NamePattern(order.pattern).isLate();
        for (int i = 0; i < inputs.size(); ++i) {
            const FileIdentity file = inputs.identity(i);
            if (file == FileIdentity{}) continue;
            byIdentity_.findOrPut(keyOf(file), i, [&](int other) { return inputs.identity(other) == file; });
            if (plan_.isLate) plan_.originals.insert(file);
        }
    }

    Plan plan()
    {
        const ManyOrder& order = plan_.order;
        std::set<QString> folders;
        for (int i = 0; i < plan_.inputs.size(); ++i) {
            const InputFile input = plan_.inputs[i];
            const QString output = plan_.plainOutput(i);
            const auto there = statusOf(output);
            check(i, input.path, output, there);
            if (shardOf(input.dir, lastName(input.path), order.shard.count) != order.shard.index) continue;
            Plan::Picture picture{i};
            if (there && order.existing == Existing::Number) picture.number = freeNumber(i, output);
            picture.isSkipped = there && isLeft(order, {input.seconds, input.nanoseconds},
                                                {there->st_mtim.tv_sec, there->st_mtim.tv_nsec});
            plan_.pictures.push_back(picture);
            folders.insert(folderOf(output));
        }
        plan_.folders = QStringList(folders.begin(), folders.end());
        return std::move(plan_);
    }

  private:
    // What has taken a name: twice the place of an input, and one more where its output got a number.
    static int plain(int input) { return 2 * input; }
    static int numbered(int input) { return 2 * input + 1; }
    QString takenName(int taken) const
    {
        return taken % 2 == 0 ? plan_.plainOutput(taken / 2) : plan_.output(taken / 2); // numbers: of one shard alone
    }

    void check(int at, const QString& input, const QString& output, const std::optional<struct stat>& there)
    {
        if (const int other = targets_.take(output, there, plain(at)); other >= 0)
            throw badArgument(QStringLiteral("%1 and %2 %3 both become %4; {dir} or {n} in --name keeps them apart")
                                  .arg(plan_.inputs.path(other / 2), input,
                                       plan_.isLate ? QStringLiteral("may") : QStringLiteral("would"), output));
        if (!there || plan_.order.inPlace) return;
        const FileIdentity file{there->st_dev, there->st_ino};
        const int original =
            byIdentity_.find(keyOf(file), [&](int other) { return plan_.inputs.identity(other) == file; });
        if (original >= 0)
            throw badArgument(
                QStringLiteral("%1 would be written over %2, which is an input; --in-place --yes changes originals")
                    .arg(input, plan_.inputs.path(original)));
    }

    /// "a.jpg" becomes "a-2.jpg", or the next that neither is there nor another output.
    int freeNumber(int at, const QString& output)
    {
        for (int number = 2;; ++number) {
            const QString name = numberedName(output, number);
            if (!isThere(name) && targets_.take(name, {}, numbered(at)) == -1) return number;
        }
    }

    Plan plan_;
    NumberTable byIdentity_;
    Targets targets_;
};

} // namespace

NameFacts Plan::factsOf(int input) const
{
    const InputFile file = inputs[input];
    return {file.path, file.dir, endingOf(extensionOf(lastName(file.path))), input + 1, file.seconds};
}

QString Plan::plainOutput(int input) const
{
    return order.inPlace ? inputs.path(input) : outputOf(order, factsOf(input));
}

QString Plan::output(int picture) const
{
    const Picture& planned = pictures[static_cast<std::size_t>(picture)];
    const QString plain = plainOutput(planned.input);
    return planned.number > 1 ? numberedName(plain, planned.number) : plain;
}

Plan planOf(const ManyOrder& order, InputFiles inputs, const EndingOf& endingOf)
{
    return Planner(order, std::move(inputs), endingOf).plan();
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
