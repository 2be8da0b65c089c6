// Steps that are taken on a picture band by band, while it is read.
#pragma once
#include "batch/CommandLine.h"
#include "pixels/threads/WrittenRows.h"
#include <vector>

namespace velara {

class RowSteps {
  public:
    /// Whether all steps of the line can be taken so.
    static bool serve(const CommandLine& line);

    /// The picture is held alone; from now on it may be shared with those who read rows that are done.
    RowSteps(const std::vector<LineStep>& steps, Bits& picture);

    /// Takes the steps as far as that many rows of the picture allow. Returns how many rows are done: all, with its
    /// last one. Throws Failure, which names the step.
    int take(int rows);

  private:
    const Pixel* asRead(int y) const;
    Bits band(int from, int to) const;
    void finish(int to);

    const std::vector<LineStep>& steps_;
    const WrittenRows rows_;
    const int width_, height_;
    int reach_ = 0; // of all steps together
    int done_ = 0;
    Bits above_; // the rows before those that are to be done, as they were read
};

} // namespace velara
