#include "commands/vocabulary.h"
#include "commands/filterDialogs.h"
#include "commands/presets.h"
#include "commands/sizeWords.h"
#include "seams/findRow.h"
#include <vector>

namespace velara {

std::span<const CommandWord> vocabulary()
{
    static const std::vector<CommandWord> all = [] {
        std::vector<CommandWord> words(std::begin(kCommandWords), std::end(kCommandWords));
        const auto add = [&](std::string_view word, WordKind kind, const MenuPlace& place = {}) {
            if (!word.empty()) words.push_back({word, Stage::NeedsImage, kind, place});
        };
        for (const Preset& preset : presets()) add(preset.word, WordKind::Preset);
        for (const SizeWord& size : sizeWords()) add(size.word, WordKind::Size);
        for (const FilterRow& filter : filterRows())
            for (const std::string_view word : filter.words)
                add(word, WordKind::Dialog, word == filter.lastWord() ? filter.place : MenuPlace());
        return words;
    }();
    return all;
}

const CommandWord* findCommandWord(std::string_view word) { return findRow(vocabulary(), word, &CommandWord::word); }

} // namespace velara
