#include "batch/many/LineItem.h"
#include "batch/CommandLine.h"
#include "fileio/disk/nativeName.h"
#include "fileio/formats.h"
#include <algorithm>

namespace velara {

namespace {

bool isStep(const QString& text)
{
    try {
        parseStep(text);
        return true;
    } catch (const Failure&) {
        return false;
    }
}

/// It is meant to be a file, whether there is one or not; no step reads like that.
bool readsAsFile(const QString& text) { return !text.contains(u'(') && (text.contains(u'/') || formatOf(text)); }

Failure neither(const QString& text)
{
    QString why;
    try {
        parseStep(text);
    } catch (const Failure& failure) {
        why = failure.text;
    }
    return badArgument(QStringLiteral("there is no file %1, and as a step: %2").arg(text, why));
}

} // namespace

std::size_t countInputs(const LineItems& items)
{
    const auto mark = std::ranges::find(items, LineItem::StepsBegin, &LineItem::kind);
    const bool isMarked = mark != items.end();
    for (auto item = items.begin(); item != mark; ++item) {
        if (item->kind != LineItem::Text && !isMarked) return static_cast<std::size_t>(item - items.begin());
        if (item->kind != LineItem::Text) throw badArgument(QStringLiteral("--do: steps stand behind it, not before"));
        if (readsAsFile(item->text)) continue;
        const bool stands = isThere(item->text);
        if (isMarked && stands) continue;
        if (isMarked) throw badArgument(QStringLiteral("there is no file %1").arg(item->text));
        const bool step = isStep(item->text);
        if (stands && step)
            throw badArgument(QStringLiteral("%1 is a step, and there is a file of that name: write ./%1 for the file, "
                                             "or --do before the steps")
                                  .arg(item->text));
        if (step) return static_cast<std::size_t>(item - items.begin());
        if (!stands) throw neither(item->text);
    }
    return static_cast<std::size_t>(mark - items.begin());
}

} // namespace velara
