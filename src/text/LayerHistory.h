// LayerHistory: undo and redo of what is done to layers, until they are merged. A step is a copy of all layers without
// their drawings.
#pragma once
#include "text/Layers.h"

namespace velara {

/// The selected layer (0: none) and what is marked in its text: from anchor to caret, in either order.
struct LayerSpot {
    int selected = 0;
    qsizetype caret = 0, anchor = 0;
};

class LayerHistory {
  public:
    /// To be called before a change. One of the same kind as the last joins its step, unless the kind is empty or the
    /// step has been closed.
    void before(const Layers& layers, const LayerSpot& spot, const QString& kind = {});
    /// The next change begins a step of its own.
    void close() { kind_.clear(); }

    bool canUndo() const { return !undo_.empty(); }
    bool canRedo() const { return !redo_.empty(); }
    /// One step; false if there is none.
    bool undo(Layers& layers, LayerSpot& spot) { return step(undo_, redo_, layers, spot); }
    bool redo(Layers& layers, LayerSpot& spot) { return step(redo_, undo_, layers, spot); }

  private:
    struct Step {
        Layers::State layers;
        LayerSpot spot;
    };
    bool step(std::vector<Step>& from, std::vector<Step>& to, Layers& layers, LayerSpot& spot);

    std::vector<Step> undo_, redo_;
    QString kind_;
};

} // namespace velara
