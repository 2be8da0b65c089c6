// The live preview of a filter: a copy of the picture that fits a box, the region at its scale, and the pacing of runs.
// Needs no window.
#pragma once
#include "commands/filterDialogs.h"
#include <QSize>
#include <cstdint>
#include <optional>

namespace velara {

/// A copy of picture scaled down to fit the box; the picture itself if it fits. Pictures are never enlarged.
Bits fittedCopy(const Bits& picture, QSize box);

class FilterPreview {
  public:
    /// selection: the filter's region; an empty one means the whole picture.
    FilterPreview(const Bits& picture, const Region& selection, QSize box);

    const Bits& source() const { return source_; }
    const Region& region() const { return region_; }
    int longerSide() const;

    /// The filter's result for the copy. RuntimeError is passed on.
    Bits run(const FilterRow& row, FilterArgs args) const;

  private:
    Bits source_;
    Region region_;
};

/// Reduces a burst of changes to one run per frame; the last change is always followed by a run.
class RunPacer {
  public:
    static constexpr std::uint32_t kFrame = 16; // milliseconds from the start of a run to the next

    /// Call at a change, at the time now: milliseconds until the run that shows it, or nothing when a run is already
    /// pending.
    std::optional<std::uint32_t> change(std::uint32_t now);
    void runStarts(std::uint32_t now);

  private:
    bool waiting_ = false;
    std::optional<std::uint32_t> last_;
};

} // namespace velara
