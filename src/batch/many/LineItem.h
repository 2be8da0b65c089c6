// The arguments of the command line that are no options, in their order.
#pragma once
#include <QString>
#include <vector>

namespace velara {

struct LineItem {
    enum Kind { Text, Selection, Recipe, StepsBegin } kind;
    QString text = {};
};
using LineItems = std::vector<LineItem>;

/// Of many pictures the number of items that are INPUTs: those before --do, or without it those before the first step.
/// A text is a step when it reads as one; one that is a file, too, is refused, as is one that can be neither. Throws
/// Failure.
std::size_t countInputs(const LineItems& items);

} // namespace velara
