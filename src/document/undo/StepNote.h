// What is known of a state of a document, and of the change that led to it.
#pragma once
#include "pixels/Bits.h"
#include "region/Region.h"
#include <QString>

namespace velara {

struct StepNote {
    QString name = {};         // of the change, for the user, in "Undo Blur"; empty for the first state
    QString words = {};        // what velara-batch would take for it, one step a line; empty: made by hand
    Region selection = {};     // that it ran in; empty: the whole picture
    Bits small = {};           // of the state, at most kSmallSide a side
    int width = 0, height = 0; // of the state, pixels
    int number = 0;            // names the state in its series, from 1; given by UndoStore

    static constexpr int kSmallSide = 48;
};

/// A copy of at most kSmallSide a side, from a fixed number of pixels: its cost doesn't grow with the picture. Null for
/// a null picture.
Bits smallCopy(const Bits& picture);

} // namespace velara
