// The live preview of a filter: a copy of the picture that fits a box, the region in its scale, and the rule that keeps
// runs apart. Needs no window.
#pragma once
#include "commands/filterDialogs.h"
#include <QSize>
#include <cstdint>
#include <optional>

namespace velara {

/// A copy of picture that fits the box; the picture itself where it fits. Pictures are never enlarged.
Bits fittedCopy(const Bits& picture, QSize box);

class FilterPreview {
  public:
    /// selection: where the filter works; an empty one means the whole picture.
    FilterPreview(const Bits& picture, const Region& selection, QSize box);

    const Bits& source() const { return source_; }
    const Region& region() const { return region_; }
    int longerSide() const;

    /// What the filter makes of the copy. RuntimeError passes.
    Bits run(const FilterRow& row, FilterArgs args) const;

  private:
    Bits source_;
    Region region_;
};

/// Brings a burst of changes down to one run a frame; the last change is always followed by a run.
class RunPacer {
  public:
    static constexpr std::uint32_t kFrame = 16; // milliseconds from the start of a run to the next

    /// A change at the time now: milliseconds until the run that shows it, or nothing when one is waited for already.
    std::optional<std::uint32_t> change(std::uint32_t now);
    void runStarts(std::uint32_t now);

  private:
    bool waiting_ = false;
    std::optional<std::uint32_t> last_;
};

} // namespace velara
