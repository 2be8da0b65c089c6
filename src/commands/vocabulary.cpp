#include "commands/vocabulary.h"
#include "commands/filterDialogs.h"
#include "commands/sizeWords.h"
#include "engine/operations.h"
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

const CommandWord* findCommandWord(std::string_view word)
{
    const auto all = vocabulary();
    const auto found = std::ranges::find(all, word, &CommandWord::word);
    return found == all.end() ? nullptr : &*found;
}

} // namespace velara
