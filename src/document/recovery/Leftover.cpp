#include "document/recovery/Leftover.h"
#include "document/undo/RecordFile.h"
#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <algorithm>
#include <ranges>
#include <set>

namespace velara {

namespace {

QString text(const char* words) { return QCoreApplication::translate("Leftover", words); }

/// The numbers of the documents that have files in the folder.
std::set<int> numbersIn(const QString& folder)
{
    static const QRegularExpression kNames(QStringLiteral("^b(\\d{4,})(?:\\d{2}\\.dat|\\.(?:lock|rec|old))$"));
    std::set<int> numbers;
    for (const QString& name : QDir(folder).entryList({QStringLiteral("b*")}, QDir::Files | QDir::System)) {
        const QString digits = kNames.match(name).captured(1);
        const int number = digits.toInt();
        if (number > 0 && digits == QString::number(number).rightJustified(4, u'0')) numbers.insert(number);
    }
    return numbers;
}

} // namespace

Leftover::Leftover(const QString& folder, int number, UndoMark mark) : files_(folder, number), mark_(std::move(mark)) {}

std::vector<std::shared_ptr<Leftover>> Leftover::find(const QString& folder)
{
    std::vector<std::shared_ptr<Leftover>> found;
    for (const int number : numbersIn(folder)) {
        UndoMark mark;
        if (mark.take(folder, number) != UndoMark::Answer::Ours) continue;
        if (!mark.isLock()) {
            mark.leave();
            continue;
        }
        std::shared_ptr<Leftover> leftover(new Leftover(folder, number, std::move(mark)));
        if (leftover->hasWork())
            found.push_back(std::move(leftover));
        else
            leftover->discard();
    }
    return found;
}

/// Without a record there may be work if there was a second snapshot: the first is what was opened.
bool Leftover::hasWork()
{
    state_ = RecordFile::read(files_, record_);
    if (state_ == RecordState::Whole && !record_.about.isUnsaved) return false;
    if (state_ == RecordState::Missing && (files_.identity(0) == 0 || files_.identity(1) == 0)) return false;
    state_ == RecordState::Whole ? locate() : guess();
    return true;
}

/// The program may have died while its series was moved down by one, so files are known by their identities; copies of
/// the folder have others, and then the index counts. A file behind that of a later state was taken for a newer one.
void Leftover::locate()
{
    std::vector<std::uint64_t> identities;
    for (int i = 0; i <= UndoStore::kLimit; ++i) identities.push_back(files_.isWhole(i) ? files_.identity(i) : 0);
    const auto indexOf = [&](const KeptState& state) {
        const auto file = std::ranges::find(identities, state.file);
        return state.file == 0 || file == identities.end() ? -1 : int(file - identities.begin());
    };
    for (const KeptState& state : record_.states) at_.push_back(indexOf(state));
    int later = UndoStore::kLimit + 1;
    for (int& at : at_ | std::views::reverse) {
        if (at >= later) at = -1;
        if (at >= 0) later = at;
    }
    if (std::ranges::any_of(at_, [](int at) { return at >= 0; })) return;
    for (std::size_t i = 0; i < at_.size(); ++i)
        if (record_.states[i].file != 0 && identities[i] != 0) at_[i] = int(i);
}

/// Without a record the file that was written last is shown.
void Leftover::guess()
{
    record_ = {};
    record_.about.isUnsaved = record_.about.file.isBrought = true;
    record_.about.file.path = text(QT_TRANSLATE_NOOP("Leftover", "Recovered %1")).arg(files_.number());
    for (int i = 0; i < UndoStore::kLimit; ++i) {
        if (!files_.isWhole(i)) continue;
        const std::int64_t when = QFileInfo(files_.name(i)).lastModified().toMSecsSinceEpoch();
        record_.states.push_back({.file = files_.identity(i)});
        at_.push_back(i);
        if (when < record_.when) continue;
        record_.when = when;
        record_.step = int(at_.size());
    }
}

int Leftover::states() const
{
    const std::lock_guard lock(reading_);
    return int(std::ranges::count_if(at_, [](int at) { return at >= 0; }));
}

bool Leftover::isReadable(int state, Bits& bits) const
{
    const auto index = std::size_t(state);
    const auto read = at_[index] < 0 ? std::nullopt : files_.read(at_[index]);
    const std::uint64_t sum = record_.states[index].sum;
    if (!read || (sum != 0 && sum != checksumOf(read->data(), read->sizeInBytes()))) return false;
    bits = *read;
    return true;
}

Bits Leftover::read()
{
    const std::lock_guard lock(reading_);
    if (isGone_) return {};
    std::vector<int> order;
    for (int i = record_.step - 1; i >= 0; --i) order.push_back(i);
    for (int i = record_.step; i < int(at_.size()); ++i) order.push_back(i);
    Bits bits;
    for (const int state : order) {
        if (isReadable(state, bits)) {
            undone_ += std::max(0, record_.step - 1 - state);
            record_.step = state + 1;
            return bits;
        }
        at_[std::size_t(state)] = -1;
    }
    nothing_ = true;
    return {};
}

QString Leftover::trouble() const
{
    const std::lock_guard lock(reading_);
    if (nothing_) return text(QT_TRANSLATE_NOOP("Leftover", "Its pictures can't be read."));
    QStringList troubles;
    if (state_ == RecordState::Newer)
        troubles << text(
            QT_TRANSLATE_NOOP("Leftover", "A newer version of the program left it: its name is not known."));
    if (state_ == RecordState::Damaged)
        troubles << text(QT_TRANSLATE_NOOP("Leftover", "Its record is damaged: its name is not known."));
    if (state_ == RecordState::Missing)
        troubles << text(QT_TRANSLATE_NOOP("Leftover", "Its record is missing: its name is not known."));
    const bool isUndone = undone_ > 0 || (record_.step > 0 && at_[std::size_t(record_.step - 1)] < 0);
    if (isUndone)
        troubles << text(
            QT_TRANSLATE_NOOP("Leftover", "The last change could not be kept: this is the one before it."));
    const auto lost = std::ranges::count(at_, -1);
    if (!isUndone && lost > 0)
        troubles << text(QT_TRANSLATE_NOOP("Leftover", "Not all of its steps back could be kept."));
    return troubles.join(u' ');
}

UndoStore::Inherited Leftover::inherit()
{
    const std::lock_guard lock(reading_);
    isGone_ = true;
    UndoRecord kept{.about = record_.about, .when = record_.when};
    bool gap = false;
    for (std::size_t i = 0; i < at_.size(); ++i) {
        const int to = int(kept.states.size());
        const bool stands = at_[i] >= 0 && (at_[i] == to || files_.move(at_[i], to));
        if (stands) {
            kept.states.push_back(record_.states[i]);
            kept.states.back().gap |= gap;
        }
        gap = !stands;
        if (int(i) + 1 == record_.step) kept.step = int(kept.states.size());
    }
    for (int i = int(kept.states.size()); i < UndoFiles::kMost; ++i) files_.remove(i);
    return {files_.folder(), files_.number(), std::move(mark_), std::move(kept)};
}

void Leftover::discard()
{
    const std::lock_guard lock(reading_);
    isGone_ = true;
    RecordFile(files_).remove();
    files_.removeAll();
    mark_.release();
}

} // namespace velara
