#include "text/LayerHistory.h"

namespace velara {

namespace {

constexpr std::size_t kMostSteps = 500;

} // namespace

void LayerHistory::before(const Layers& layers, const LayerSpot& spot, const QString& kind)
{
    redo_.clear();
    if (!kind.isEmpty() && kind == kind_) return;
    kind_ = kind;
    if (undo_.size() == kMostSteps) undo_.erase(undo_.begin());
    undo_.push_back({layers.state(), spot});
}

bool LayerHistory::step(std::vector<Step>& from, std::vector<Step>& to, Layers& layers, LayerSpot& spot)
{
    if (from.empty()) return false;
    close();
    to.push_back({layers.state(), spot});
    layers.restore(from.back().layers);
    spot = from.back().spot;
    from.pop_back();
    return true;
}

} // namespace velara
