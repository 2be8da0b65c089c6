// ClipHistory: the selected parts that were cut or copied in this run, oldest first.
#pragma once
#include "pixels/Bits.h"
#include <vector>

namespace velara {

class Document;

/// The pixels in the bounding box of a selection; a fourth byte of 255 marks those that were not selected.
struct Clip {
    int number = 0; // counts all clips of the run, from 1
    Bits bits;
};

class ClipHistory {
  public:
    static constexpr int kSlots = 10; // on display
    static constexpr int kLimit = 9;  // beyond it the oldest clip is dropped: odd beside ten slots, and kept

    void add(const Bits& bits);
    const std::vector<Clip>& clips() const { return clips_; }
    /// Null when there is no such clip.
    const Clip* at(int slot) const;
    /// Of the clip in a slot, or of the one that would come there next.
    int numberAt(int slot) const;

  private:
    std::vector<Clip> clips_;
    int count_ = 0;
};

bool hasSelectedPart(const Document& document);
/// The selected part of the picture as a clip's pixels. Null when it is smaller than 2 by 2 or nothing is selected.
Bits selectedPart(const Document& document);

} // namespace velara
