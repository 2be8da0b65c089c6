// What files carry beside their pixels, where several formats wrap it alike. Everything is copied within bounds, and
// what is longer is left out.
#pragma once
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace velara::decode {

using Span = std::span<const std::uint8_t>;

// in bytes
constexpr std::size_t kMostProfile = 4 << 20;
constexpr std::size_t kMostFacts = 1 << 20; // EXIF, XMP, IPTC
constexpr std::size_t kMostComment = 64 << 10;

/// Takes the first one of a kind: where `to` holds nothing yet.
template <class Container> void take(Container& to, Span bytes, std::size_t most)
{
    if (to.empty() && bytes.size() <= most) to.assign(bytes.begin(), bytes.end());
}

/// True when the bytes begin with the name, which is then cut off.
bool takeName(Span& bytes, std::string_view name);

/// The IPTC records in Photoshop's blocks ("8BIM", number, name, length, contents); empty: there are none.
Span iptcIn(Span blocks);

} // namespace velara::decode
