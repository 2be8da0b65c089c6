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

/// Else it is a step. isMarked: steps stand behind --do.
bool isInput(const QString& text, bool isMarked)
{
    if (readsAsFile(text) || text == QStringLiteral("-")) return true;
    const bool stands = isThere(text);
    if (isMarked && stands) return true;
    if (isMarked) throw badArgument(QStringLiteral("there is no file %1").arg(text));
    const bool step = isStep(text);
    if (stands && step)
        throw badArgument(QStringLiteral("%1 is a step, and there is a file of that name: write ./%1 for the file, "
                                         "or --do before the steps")
                              .arg(text));
    if (!stands && !step) throw neither(text);
    return stands;
}

} // namespace

InputsAndSteps inputsAndSteps(const LineItems& items)
{
    const auto isText = [](const LineItem& item) { return item.kind == LineItem::Text; };
    const bool isMarked = std::ranges::count(items, LineItem::StepsBegin, &LineItem::kind) > 0;
    const auto first = std::ranges::find_if(items, isText);
    InputsAndSteps parts{{}, LineItems(items.begin(), first)};
    auto item = first;
    for (; item != items.end() && isText(*item) && isInput(item->text, isMarked); ++item) parts.inputs << item->text;
    if (isMarked && item != items.end() && item->kind != LineItem::StepsBegin && !parts.inputs.isEmpty())
        throw badArgument(QStringLiteral("--do: steps stand behind it, not before"));
    parts.steps.insert(parts.steps.end(), item, items.end());
    return parts;
}

} // namespace velara
