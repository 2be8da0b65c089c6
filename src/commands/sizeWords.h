// The command words that rebuild the picture at another size by a fixed factor or angle, as data for the command table
// and for the batch program.
#pragma once
#include <span>
#include <string_view>

namespace velara {

struct SizeWord {
    enum Kind { Enlarge, Reduce, Rotate } kind;
    std::string_view word;
    int value;    // factor, or degrees
    bool quality; // resampled
};

std::span<const SizeWord> sizeWords();

} // namespace velara
