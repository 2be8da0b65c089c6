// The tools that make and move a selection.
#include "engine/cBitFilter.h"
#include "tools/ToolContext.h"
#include <algorithm>
#include <cstdlib>

namespace velara {

namespace {

constexpr int kNearFirstCorner = 3;      // pixels within which a release hits the first corner of a polygon
constexpr std::size_t kLeastCorners = 6; // coordinates of the smallest polygon with an area

Combine combineOf(const ToolContext& c)
{
    return c.setup().SelectionMode == SelectionMode::Subtract ? Combine::Diff : Combine::Or;
}

/// The rubber band of this drag as left, top, right, bottom.
Rect bandOf(const ToolContext& c)
{
    return {std::min(c.start.x, c.at.x), std::min(c.start.y, c.at.y), std::max(c.start.x, c.at.x),
            std::max(c.start.y, c.at.y)};
}

Point lastCorner(const ToolContext& c) { return {c.points[c.points.size() - 2], c.points.back()}; }

bool enclosesSomething(const ToolContext& c) { return c.points.size() >= kLeastCorners; }

void dropCorners(ToolContext& c)
{
    c.points = {0, 0};
    c.polygon = false;
    c.surface.HideShape(BandShape::Line);
}

void addCorner(ToolContext& c, Point from, Point to)
{
    c.points.insert(c.points.end(), {to.x, to.y});
    c.surface.ShowShape(BandShape::Line, from.x, from.y, to.x, to.y, true);
}

void closePolygon(ToolContext& c)
{
    c.document.Region.CreatePolygon(c.points, combineOf(c), true);
    dropCorners(c);
}

/// Restores the selection from before the gesture.
void giveBackSelection(ToolContext& c)
{
    c.document.Region.setRegion(c.before.isNull() ? Region::rectangle(0, 0, 0, 0) : c.before);
}

/// A polygon is made by dragging or clicking from corner to corner: a release sets a corner, and so does Space while
/// the button is down. It is closed by Enter, by a double click, at the end of a drag with corners set by Space, or
/// when a release hits the first corner.
class SelectTool final : public Tool {
    bool press(ToolContext& c) const override
    {
        const int shape = c.setup().SelectionShape;
        if (shape != SelectionShape::Polygon && c.polygon) dropCorners(c);
        const bool begins = !c.polygon;
        if (begins) c.before = c.document.Region.Region();
        if (shape == SelectionShape::Polygon && begins) c.points = {c.at.x, c.at.y};
        if (shape == SelectionShape::Polygon && !begins) c.start = lastCorner(c);
        c.polygon = shape == SelectionShape::Polygon;
        if (c.setup().SelectionMode == SelectionMode::New && begins) {
            c.document.Region.CreateRect(0, 0, c.document.PictureWidth(), c.document.PictureHeight(), Combine::Diff,
                                         false);
            c.surface.UpdateImage();
        }
        if (begins) c.wiped = c.document.Region.Region();
        if (shape == SelectionShape::Pixel) {
            c.surface.SetAutoRedraw(true);
            c.surface.StopTimer();
            drag(c); // a click selects its pixel
        }
        return true;
    }

    void drag(ToolContext& c) const override
    {
        const int shape = c.setup().SelectionShape;
        if (shape == SelectionShape::Pixel) {
            c.document.Region.CreateRect(c.at.x, c.at.y, c.at.x + 1, c.at.y + 1, combineOf(c), true);
            c.surface.SetAutoRedraw(true);
            c.surface.UpdateRegion();
            c.surface.SetAutoRedraw(false);
        } else if (shape == SelectionShape::Polygon) {
            c.surface.ShowShape(BandShape::Line, c.start.x, c.start.y, c.at.x, c.at.y, false);
        } else if (shape == SelectionShape::Rectangle || shape == SelectionShape::Ellipse) {
            const Rect band = bandOf(c);
            c.surface.ShowShape(shape == SelectionShape::Ellipse ? BandShape::Ellipse : BandShape::Rectangle, band.left,
                                band.top, band.right, band.bottom, false);
        }
    }

    /// Between two corners a line follows the pointer.
    void hover(ToolContext& c) const override
    {
        if (!c.polygon) return;
        const Point from = lastCorner(c);
        c.surface.ShowShape(BandShape::Line, from.x, from.y, c.at.x, c.at.y, false);
    }

    void release(ToolContext& c) const override
    {
        const Rect band = bandOf(c);
        switch (c.setup().SelectionShape) {
        case SelectionShape::Rectangle:
            c.document.Region.CreateRect(band.left, band.top, band.right, band.bottom, combineOf(c), true);
            c.surface.HideShape(BandShape::Rectangle);
            break;
        case SelectionShape::Ellipse:
            c.document.Region.CreateEllipse(band.left, band.top, band.right, band.bottom, combineOf(c), true);
            c.surface.HideShape(BandShape::Ellipse);
            break;
        case SelectionShape::Polygon:
            releaseCorner(c);
            break;
        default:
            break;
        }
        c.surface.SetAutoRedraw(false);
        c.surface.UpdateImage();
    }

    static void releaseCorner(ToolContext& c)
    {
        const bool meetsFirst = enclosesSomething(c) && std::abs(c.at.x - c.points[0]) <= kNearFirstCorner &&
                                std::abs(c.at.y - c.points[1]) <= kNearFirstCorner;
        if (!meetsFirst && c.at != lastCorner(c)) addCorner(c, c.start, c.at);
        if (meetsFirst || (c.corner && enclosesSomething(c))) closePolygon(c);
    }

    void cancel(ToolContext& c) const override
    {
        // A command may have made a selection of its own meanwhile.
        if (c.setup().SelectionShape == SelectionShape::Pixel || c.document.Region.Region() == c.wiped)
            giveBackSelection(c);
        dropCorners(c);
        c.surface.HideShape(BandShape::Rectangle);
        c.surface.HideShape(BandShape::Ellipse);
    }

    void space(ToolContext& c) const override
    {
        if (!c.down || c.setup().SelectionShape != SelectionShape::Polygon) return;
        addCorner(c, c.start, c.last);
        c.start = c.last;
        c.corner = true;
    }

    bool unfinished(const ToolContext& c) const override
    {
        return c.polygon && c.setup().SelectionShape == SelectionShape::Polygon;
    }

    bool finish(ToolContext& c) const override
    {
        const bool oneMore = c.polygon && c.down && c.last != lastCorner(c);
        if (!c.polygon || c.points.size() + (oneMore ? 2 : 0) < kLeastCorners) return false;
        if (oneMore) addCorner(c, c.start, c.last);
        closePolygon(c);
        c.surface.UpdateImage();
        return true;
    }

    /// The first click of the two has set the last corner. A double click that closed the polygon begins no new one.
    bool doubleClick(ToolContext& c) const override
    {
        finish(c);
        return c.setup().SelectionShape == SelectionShape::Polygon;
    }

    const char* hint(const ToolContext& c) const override
    {
        if (!c.polygon) return Tool::hint(c);
        return c.down ? QT_TRANSLATE_NOOP("Tools", "Space: corner · Enter: close · Esc: drop")
                      : QT_TRANSLATE_NOOP("Tools", "Click: corner · Enter or double click: close · Esc: drop");
    }
};

/// Moves the outline alone, or a copy of the content. moving: the press was inside the selection.
class SelectionMoveTool final : public Tool {
    bool press(ToolContext& c) const override
    {
        if (!c.setup().MoveSelection) c.surface.StopTimer();
        c.before = c.document.Region.Region();
        if (!c.document.Region.Region().contains(c.at.x, c.at.y)) return false;
        if (!c.setup().MoveSelection && !takeContent(c)) return false;
        c.moving = true;
        drag(c);
        return true;
    }

    /// Puts the selected pixels into the frame's store. False when none of them are in the picture.
    static bool takeContent(ToolContext& c)
    {
        const Rect box = c.document.Region.Region().bounds().intersected(c.document.Region.RegionMain().bounds());
        if (box.isEmpty()) return false;
        c.surface.UpdateImage();
        c.surface.setWaiting(true);
        c.preview.commit(); // the engine works on what is visible
        cBitFilter cutter;  // a separate engine, so that the frame's keeps the committed picture
        cutter.setBits(c.document.bits());
        cutter.setBitsRegion(c.document.Region.Region());
        cutter.BitsCropMasked(c.document.bits(), box.left, box.top, box.right, box.bottom);
        c.stores().moved = cutter.bits();
        cutter.setBits(Bits());
        c.preview.begin();
        c.hot = {c.at.x - box.left, c.at.y - box.top};
        c.surface.setWaiting(false);
        return true;
    }

    void drag(ToolContext& c) const override
    {
        if (!c.moving) return;
        if (c.setup().MoveSelection) {
            c.document.Region.Offset(c.at.x - c.last.x, c.at.y - c.last.y);
            c.surface.UpdateImage();
            c.surface.UpdateRegion();
            c.moved = true;
        } else if (!c.moved) {
            const ToolStores& stores = c.stores();
            c.preview.restore();
            c.paint().BitsPaintPreMasked(c.at.x - c.hot.x, c.at.y - c.hot.y, stores.moved,
                                         stores.useMovePressure ? stores.movePressure : c.setup().SelectionPressure,
                                         false);
            c.repaint();
        }
    }

    void release(ToolContext& c) const override
    {
        if (!c.moved) return c.commit();
        c.document.Region.Crop();
        c.preview.commit();
        c.surface.UpdateImage();
        c.moved = false;
    }

    void cancel(ToolContext& c) const override
    {
        giveBackSelection(c);
        c.moved = false;
    }

    void space(ToolContext& c) const override { fix(c); }
    const char* hint(const ToolContext& c) const override { return c.setup().MoveSelection ? Tool::hint(c) : kFixHint; }

    void ctrlReleased(ToolContext& c) const override
    {
        c.document.Region.Crop();
        c.surface.UpdateRegion();
    }
};

} // namespace

const Tool& selectTool()
{
    static const SelectTool tool;
    return tool;
}

const Tool& selectionMoveTool()
{
    static const SelectionMoveTool tool;
    return tool;
}

} // namespace velara
