// The tools that work at the release, and the pipette.
#include "engine/cBitFilter.h"
#include "pixels/numbers.h"
#include "seams/text.h"
#include "tools/ToolContext.h"
#include <cmath>

namespace velara {

namespace {

class FillTool final : public Tool {
    void release(ToolContext& c) const override
    {
        const Setup& s = c.setup();
        const bool textured = s.FillMode == FillMode::Stamp;
        if (textured && c.stores().stamp.isNull()) return;
        c.preview.begin();
        c.paint().CreateDoneBitsTable();
        if (textured)
            c.paint().BitsFillTexture(c.at.x, c.at.y, c.stores().stamp, s.FillTolerance, s.FillPressure);
        else
            c.paint().BitsFill(c.at.x, c.at.y, s.ForeColor, s.FillTolerance, s.FillPressure);
        c.paint().takeTouched(); // the commit shows everything
        c.commit();
    }
};

class GradientTool final : public Tool {
    bool press(ToolContext& c) const override
    {
        c.surface.SetAutoRedraw(true);
        c.surface.StopTimer();
        return true;
    }

    void drag(ToolContext& c) const override
    {
        if (c.setup().GradientMode != GradientMode::Circular)
            return c.surface.ShowShape(BandShape::Line, c.start.x, c.start.y, c.at.x, c.at.y, false);
        const double dx = c.at.x - c.start.x, dy = c.at.y - c.start.y;
        const int r = roundEven(std::sqrt(dx * dx + dy * dy));
        c.surface.ShowShape(BandShape::Ellipse, c.start.x - r, c.start.y - r, c.start.x + r + 1, c.start.y + r + 1,
                            false);
    }

    void release(ToolContext& c) const override
    {
        hideBand(c);
        c.surface.SetAutoRedraw(false);
        const Setup& s = c.setup();
        const Colour first = s.GradientTransparent1 ? -1 : s.GradientColor1;
        const Colour second = s.GradientTransparent2 ? -1 : s.GradientColor2;
        const auto gradient =
            s.GradientMode == GradientMode::Circular ? &cBitFilter::GradientCircular : &cBitFilter::GradientLinear;
        const QString words = QStringLiteral("%1(%2,%3,%4,%5,%6,%7,%8,%9)")
                                  .arg(s.GradientMode == GradientMode::Circular ? QStringLiteral("GradientCircular")
                                                                                : QStringLiteral("GradientLinear"))
                                  .arg(c.start.x)
                                  .arg(c.start.y)
                                  .arg(c.at.x)
                                  .arg(c.at.y)
                                  .arg(first)
                                  .arg(second)
                                  .arg(s.GradientPressure)
                                  .arg(s.GradientFrequency);
        const Job job = [=, from = c.start, to = c.at, opacity = s.GradientPressure,
                         repeat = s.GradientFrequency](Document& draft, cBitFilter& filter) {
            const Bits painted = (filter.*gradient)(from.x, from.y, to.x, to.y, first, second, opacity, repeat);
            if (painted == draft.bits()) throw Cancelled(); // no step where nothing changes
            draft.setBits(painted);
        };
        c.computed = c.workspace().change(c.document.handle(), {job, After::Step, shown("Tools", "Gradient"), words},
                                          [&frame = c.frame, life = std::weak_ptr(c.life), &c](const Outcome& outcome) {
                                              frame.report(shown("Tools", "Gradient"), outcome);
                                              if (!life.expired()) c.computed = Workspace::kAll;
                                          });
    }

    void cancel(ToolContext& c) const override
    {
        hideBand(c);
        c.surface.SetAutoRedraw(false);
    }

    static void hideBand(ToolContext& c)
    {
        c.surface.HideShape(c.setup().GradientMode == GradientMode::Circular ? BandShape::Ellipse : BandShape::Line);
    }
};

class GetColorTool final : public Tool {
    bool press(ToolContext& c) const override
    {
        c.colourBefore = c.setup().ForeColor;
        drag(c);
        return true;
    }
    void drag(ToolContext& c) const override
    {
        c.setup().ForeColor = c.paint().BitsGetPixel(c.at.x, c.at.y);
        c.surface.colourPicked();
    }
    void release(ToolContext& c) const override { c.surface.setPointer(Pointer::Default); }
    void cancel(ToolContext& c) const override
    {
        c.setup().ForeColor = c.colourBefore;
        c.surface.colourPicked();
    }
};

} // namespace

const Tool& fillTool()
{
    static const FillTool tool;
    return tool;
}

const Tool& gradientTool()
{
    static const GradientTool tool;
    return tool;
}

const Tool& getColorTool()
{
    static const GetColorTool tool;
    return tool;
}

} // namespace velara
