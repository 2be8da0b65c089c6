// The tools that paint along the pointer's path, and those that preview a shape at the current position.
#include "pixels/numbers.h"
#include "tools/ToolContext.h"
#include <cstdlib>

namespace velara {

namespace {

/// A stroke: each move paints, the release commits. Refused when there is nothing to paint with.
class StrokeTool : public Tool {
    bool press(ToolContext& c) const final
    {
        if (!isReady(c)) return false;
        c.surface.StopTimer();
        c.preview.begin();
        c.repaint(); // shows what another command has left unpainted
        c.paint().CreateDoneBitsTable();
        c.connect = false;
        hold(c);
        drag(c);
        return true;
    }
    void drag(ToolContext& c) const final
    {
        paint(c);
        c.connect = true;
        c.repaint();
    }
    void release(ToolContext& c) const final { c.commit(); }
    /// Makes the first stroke's full copy in advance, while nothing waits for it.
    void hover(ToolContext& c) const final
    {
        if (c.hasEngine()) c.preview.begin();
    }

  protected:
    virtual bool isReady(const ToolContext&) const { return true; }
    virtual void hold(ToolContext&) const {} // sets the hot spot
    virtual void paint(ToolContext&) const = 0;
};

/// The placed pixels are held by their centre.
Point middleOf(const Bits& bits) { return {(bits.width() + 1) / 2 + 1, (bits.height() + 1) / 2 + 1}; }

Footprint placed(const Bits& bits)
{
    if (bits.isNull()) return {};
    const auto [x, y] = middleOf(bits);
    return {Footprint::Box, {-x, -y, bits.width() - x, bits.height() - y}};
}

/// A round dab, by its diameter as the painter interprets it.
Footprint disc(int size)
{
    const int r = roundEven(size * 0.5);
    return {Footprint::Disc, {-r, -r, r + 1, r + 1}};
}

class BrushTool final : public StrokeTool {
    bool isReady(const ToolContext& c) const override
    {
        return c.setup().BrushMode != BrushMode::Stamp || !c.stores().stamp.isNull();
    }
    void paint(ToolContext& c) const override
    {
        const Setup& s = c.setup();
        const int size = s.BrushSize, strength = s.BrushPressure;
        const auto [x, y] = c.at;
        const bool line = c.connect && s.BrushContinuous, stamp = s.BrushMode == BrushMode::Stamp;
        if (line && stamp)
            c.paint().BitsMaskedLine(c.last.x, c.last.y, x, y, size, strength, c.stores().stamp);
        else if (line)
            c.paint().BitsBrushLine(c.last.x, c.last.y, x, y, size, strength, s.ForeColor, s.BrushMode);
        else if (stamp)
            c.paint().BitsMasked(x, y, c.stores().stamp, size, strength);
        else
            c.paint().BitsBrushDab(x, y, size, strength, s.ForeColor, s.BrushMode);
    }
    Footprint footprint(const ToolContext& c) const override
    {
        return isReady(c) ? disc(c.setup().BrushSize) : Footprint();
    }
};

class AirbrushTool final : public StrokeTool {
    void paint(ToolContext& c) const override
    {
        const Setup& s = c.setup();
        c.paint().BitsAirbrush(c.at.x, c.at.y, s.AirbrushSize, s.AirbrushPressure, s.AirbrushQuantity,
                               s.AirbrushDefinition, s.ForeColor);
    }
    Footprint footprint(const ToolContext& c) const override { return disc(c.setup().AirbrushSize); }
};

class PencilTool final : public StrokeTool {
    void paint(ToolContext& c) const override
    {
        c.paint().BitsLine(c.last.x, c.last.y, c.at.x, c.at.y, c.setup().ForeColor, c.setup().ToolOpacity);
    }
};

class ShapeTool final : public StrokeTool {
    void paint(ToolContext& c) const override
    {
        const Setup& s = c.setup();
        if (s.ShapeKind != ShapeKind::FreeHand) c.preview.restore();
        const auto [x1, y1] = c.start;
        const auto [x, y] = c.at;
        const int dx = x - x1, dy = y - y1, side = std::abs(dx);
        const auto signed_ = [side](int direction) { return direction > 0 ? side : direction < 0 ? -side : 0; };
        const int ink = s.ForeColor, opacity = s.ShapePressure;
        Painter& paint = c.paint();
        switch (s.ShapeKind) {
        case ShapeKind::Line:
            return paint.BitsLine(x1, y1, x, y, ink, opacity);
        case ShapeKind::FreeHand:
            return paint.BitsLine(c.last.x, c.last.y, x, y, ink, opacity);
        case ShapeKind::Square: // as high as it is wide
            return paint.BitsRectangle(x1, y1, x1 + signed_(dx), y1 + signed_(dy), ink, opacity);
        case ShapeKind::Rectangle:
            return paint.BitsRectangle(x1, y1, x, y, ink, opacity);
        case ShapeKind::Circle:
            return paint.BitsEllipse(x1, y1, side, side, ink, opacity);
        case ShapeKind::Ellipse:
            return paint.BitsEllipse(x1, y1, side, std::abs(dy), ink, opacity);
        case ShapeKind::Polygon:
            return paint.BitsPolygon(x1, y1, x, y, s.ShapeSides, ink, opacity);
        default:
            return;
        }
    }
};

class StampTool final : public StrokeTool {
    bool isReady(const ToolContext& c) const override { return !c.stores().stamp.isNull(); }
    void hold(ToolContext& c) const override { c.hot = middleOf(c.stores().stamp); }
    void paint(ToolContext& c) const override
    {
        const Setup& s = c.setup();
        const Bits& stamp = c.stores().stamp;
        const int x = c.at.x - c.hot.x, y = c.at.y - c.hot.y;
        if (s.StampClearBack) c.preview.restore();
        if (s.StampMask)
            c.paint().BitsBWMask(x, y, stamp, s.ForeColor, s.StampPressure);
        else
            c.paint().BitsPaint(x, y, stamp, s.StampUseMaskColor ? s.StampMaskColor : -1, s.StampPressure, true);
    }
    Footprint footprint(const ToolContext& c) const override { return placed(c.stores().stamp); }
};

class TextTool final : public StrokeTool {
    bool isReady(const ToolContext& c) const override { return !c.stores().text.isNull(); }
    void hold(ToolContext& c) const override { c.hot = middleOf(c.stores().text); }
    void paint(ToolContext& c) const override
    {
        c.preview.restore();
        c.paint().BitsBWMask(c.at.x - c.hot.x, c.at.y - c.hot.y, c.stores().text, c.setup().ForeColor,
                             c.setup().ToolOpacity);
    }
    Footprint footprint(const ToolContext& c) const override { return placed(c.stores().text); }
    void space(ToolContext& c) const override { fix(c); }
    const char* hint(const ToolContext&) const override { return kFixHint; }
};

/// The pixels follow the pointer from the command on; a click puts them down, the right button drops them.
class PasteTool final : public Tool {
    bool press(ToolContext& c) const override
    {
        hover(c);
        return c.stores().pastePending;
    }
    void drag(ToolContext& c) const override { hover(c); }
    void release(ToolContext& c) const override
    {
        letGo(c);
        c.commit();
    }
    void hover(ToolContext& c) const override
    {
        const Bits paste = c.stores().paste;
        if (paste.isNull()) return letGo(c);
        if (!c.hasEngine()) return; // over a document that is not the active one
        const Point hot = middleOf(paste);
        c.surface.StopTimer();
        c.preview.restore();
        c.preview.begin();
        c.paint().BitsPaintPreMasked(c.at.x - hot.x, c.at.y - hot.y, paste, c.setup().ClipOpacity, false);
        c.repaint();
    }
    void cancel(ToolContext& c) const override { letGo(c); }
    void space(ToolContext& c) const override { fix(c); }
    const char* hint(const ToolContext&) const override
    {
        return QT_TRANSLATE_NOOP("Tools", "Click: lay down · Space: fix and go on · Esc: drop");
    }

    static void letGo(ToolContext& c)
    {
        c.stores().pastePending = false;
        c.setup().PasteMode = PasteMode::None;
    }
};

template <class T> const Tool& only()
{
    static const T tool;
    return tool;
}

} // namespace

void Tool::fix(ToolContext& c) const
{
    const std::weak_ptr<int> life = c.life;
    c.commit();
    if (life.expired() || !(c.down || c.stores().pastePending)) return;
    c.at = c.last;
    drag(c);
}

const Tool& brushTool() { return only<BrushTool>(); }
const Tool& airbrushTool() { return only<AirbrushTool>(); }
const Tool& pencilTool() { return only<PencilTool>(); }
const Tool& shapeTool() { return only<ShapeTool>(); }
const Tool& stampTool() { return only<StampTool>(); }
const Tool& textTool() { return only<TextTool>(); }
const Tool& pasteTool() { return only<PasteTool>(); }

} // namespace velara
