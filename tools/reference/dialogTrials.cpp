#include "tools/reference/dialogTrials.h"
#include <algorithm>
#include <stdexcept>

namespace velara {

const DialogTrials& dialogTrials()
{
    static const DialogTrials all = [] {
        DialogTrials list;
        for (const auto family :
             {colourDialogs, distanceDialogs, neighbourDialogs, deformDialogs, styliseDialogs, generateDialogs})
            std::ranges::move(family(), std::back_inserter(list));
        std::ranges::sort(list, {}, &DialogTrial::number);
        return list;
    }();
    return all;
}

const DialogTrial& dialogTrial(const FilterRow& row)
{
    const auto found = std::ranges::find(dialogTrials(), row.number, &DialogTrial::number);
    if (found == dialogTrials().end()) throw std::invalid_argument("no trial of " + std::string(row.title));
    return *found;
}

FilterArgs DialogTrial::openingArgs() const
{
    FilterArgs args = std::ranges::find(filterRows(), number, &FilterRow::number)->defaults();
    args.colour = {kWhite, kBlack};
    args.longerSide = 300;
    return args;
}

FilterArgs DialogTrial::tellingArgs() const
{
    FilterArgs args = openingArgs();
    args.value = value;
    args.colour = colour;
    args.option = more.option;
    args.centerX = more.centerX, args.centerY = more.centerY;
    args.style = more.style;
    args.mode = more.mode;
    args.channel = more.channel;
    args.invert = more.invert;
    args.kill = more.kill;
    return args;
}

} // namespace velara
