// The arguments of the command line that are no options, in their order.
#pragma once
#include <QStringList>
#include <vector>

namespace velara {

struct LineItem {
    enum Kind { Text, Selection, Recipe, StepsBegin } kind;
    QString text = {};
};
using LineItems = std::vector<LineItem>;

struct InputsAndSteps {
    QStringList inputs;
    LineItems steps;
};

/// Of many pictures the INPUTs: the texts before --do, or without it those before the first step. Recipes and
/// selections that stand before all texts are the first steps. A text is a step when it reads as one; one that is a
/// file, too, is refused, as is one that can be neither. Throws Failure.
InputsAndSteps inputsAndSteps(const LineItems& items);

} // namespace velara
