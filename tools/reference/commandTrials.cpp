// Trials of the command words: every preset, and every filter dialog with its initial and with distinctive settings, on
// the sample picture.
#include "commands/presets.h"
#include "tools/reference/definitions.h"
#include "tools/reference/dialogTrials.h"
#include "tools/reference/trials.h"
#include "tools/samplePicture.h"

namespace velara {
namespace {

struct Command {
    std::string name;
    std::string_view operation;
    Arguments arguments;
    std::function<Bits(cBitFilter&)> run;
};

std::vector<Command> commands()
{
    std::vector<Command> all;
    for (const Preset& preset : presets())
        all.push_back({std::string(preset.word), preset.operation, preset.arguments, [&preset](cBitFilter& filter) {
                           findOperation(preset.operation)->call(filter, preset.arguments);
                           return filter.bits();
                       }});
    for (const FilterRow& row : filterRows()) {
        const DialogTrial& trial = dialogTrial(row);
        const auto add = [&](const char* when, const FilterArgs& args, const Arguments& arguments) {
            all.push_back({row.title + std::string(when), trial.operation, arguments,
                           [&row, args](cBitFilter& filter) { return row.call(filter, args); }});
        };
        add(", as it opens", trial.openingArgs(), trial.asItOpens);
        add(", telling", trial.tellingArgs(), trial.telling);
    }
    return all;
}

void eachTrial(const std::string& name, const std::function<void(const Trial&)>& visit)
{
    static const Bits bits = samplePicture();
    static const std::vector<Command> all = commands();
    const Command& command = *std::find_if(all.begin(), all.end(), [&](const Command& c) { return c.name == name; });
    const Region regions[] = {Region::rectangle(0, 0, bits.width(), bits.height()), Region::ellipse(60, 30, 430, 310)};
    for (std::size_t i = 0; i < std::size(regions); ++i)
        visit({i ? "an ellipse selected" : "everything selected", i,
               [&] {
                   cBitFilter filter;
                   filter.clock = [] { return 0u; };
                   filter.setBits(bits);
                   filter.setBitsRegion(regions[i]);
                   return command.run(filter);
               },
               [&] { return definedResult(command.operation, bits, regions[i], command.arguments); }});
}

} // namespace

TrialFamily commandTrials()
{
    std::vector<std::string> names;
    for (const Command& command : commands()) names.push_back(command.name);
    return {"commands/commands.sums", names, eachTrial};
}

} // namespace velara
