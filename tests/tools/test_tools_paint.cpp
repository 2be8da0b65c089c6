#include "pixels/RuntimeError.h"
#include "tools/ToolFixture.h"
#include "tools/reference/paintTwins.h"
#include <random>

namespace velara {
namespace {

struct PaintTools : ToolFixture {
    Bits before = document.Bits();
    PaintTwin twin;

    PaintTools()
    {
        document.Region.CreateEllipse(3, 3, 55, 45, Combine::Or, true);
        frame.setup_.ForeColor = 0x3080F0;
        frame.toolStores.stamp = randomBits(12, 9, 8);
        startTwin();
    }
    void startTwin()
    {
        twin = {};
        twin.bits = before;
        twin.limit = document.Region.RegionMain();
        twin.region = document.Region.working();
        twin.random = Random(3);
        document.paint.setRandomSeed(3);
        twin.CreateDoneBitsTable();
    }
};

const std::vector<Point> kWay{{20, 20}, {25, 22}, {24, 30}, {70, 31}, {20, 20}};

TEST_F(PaintTools, BrushStrokesAreOneDabAndThenLines)
{
    choose("Brush");
    auto& s = frame.setup_;
    s.BrushSize = 9;
    s.BrushPressure = 60;
    for (int mode = 0; mode <= 6; ++mode) {
        open(before);
        document.Region.CreateEllipse(3, 3, 55, 45, Combine::Or, true);
        startTwin();
        s.BrushMode = static_cast<std::int16_t>(mode);
        drag(kWay);
        const auto [x, y] = kWay.front();
        switch (mode) {
        case 0:
            twin.BitsBrush(x, y, 9, 60, s.ForeColor);
            break;
        case 1:
        case 2:
            twin.BitsSoften(x, y, 9, 60, mode == 2);
            break;
        case 3:
            twin.BitsSharpen(x, y, 9, 60);
            break;
        case 4:
        case 5:
            twin.BitsBrightness(x, y, 9, 60, mode == 4);
            break;
        default:
            twin.BitsMasked(x, y, frame.toolStores.stamp, 9, 60);
        }
        for (std::size_t i = 1; i < kWay.size(); ++i) {
            const auto [x1, y1] = kWay[i - 1];
            const auto [x2, y2] = kWay[i];
            if (mode == 6)
                twin.BitsMaskedLine(x1, y1, x2, y2, 9, 60, frame.toolStores.stamp);
            else
                twin.BitsBrushLine(x1, y1, x2, y2, 9, 60, s.ForeColor, mode);
        }
        ASSERT_TRUE(sameBits(twin.bits, document.Bits())) << "mode " << mode;
        ASSERT_TRUE(sameBits(twin.bits, frame.filter_.bits())) << "mode " << mode;
        EXPECT_EQ(frame.snapshots, mode + 1);
    }
}

TEST_F(PaintTools, AClickIsOneDabAndOneStep)
{
    choose("Brush");
    frame.setup_.BrushSize = 1;
    frame.setup_.BrushPressure = 100;
    drag({{20, 20}});
    EXPECT_EQ(asked(), "activate; stop; repaint; update 01; start");
    EXPECT_EQ(surface.repainted.back(), (Rect{20, 20, 21, 21}));
    EXPECT_EQ(surface.pointer, Pointer::cBrush);
    twin.BitsBrush(20, 20, 1, 100, frame.setup_.ForeColor);
    EXPECT_TRUE(sameBits(twin.bits, document.Bits()));
    frame.setup_.BrushMode = 6;
    frame.toolStores.stamp = {};
    drag({{20, 20}, {25, 25}}); // no stamp: the press is ignored
    EXPECT_EQ(asked(), "activate; start");
    EXPECT_EQ(frame.snapshots, 1);
}

TEST_F(PaintTools, AirbrushAndPencilBuildUp)
{
    choose("Airbrush");
    drag({{20, 20}, {22, 21}, {20, 20}});
    for (const auto& [x, y] : {std::pair(20, 20), std::pair(22, 21), std::pair(20, 20)})
        twin.BitsAirbrush(x, y, 75, 25, 100, 0, frame.setup_.ForeColor);
    EXPECT_TRUE(sameBits(twin.bits, document.Bits()));
    frame.setup_.AirbrushSize = 1; // out of a damaged configuration: no dab, no harm
    drag({{20, 20}, {22, 21}});
    EXPECT_TRUE(sameBits(twin.bits, document.Bits()));

    choose("Pencil");
    frame.setup_.ToolOpacity = 50;
    drag({{30, 20}, {40, 25}, {31, 22}});
    twin.BitsLine(30, 20, 30, 20, frame.setup_.ForeColor, 50);
    twin.BitsLine(30, 20, 40, 25, frame.setup_.ForeColor, 50);
    twin.BitsLine(40, 25, 31, 22, frame.setup_.ForeColor, 50);
    EXPECT_TRUE(sameBits(twin.bits, document.Bits()));
}

TEST_F(PaintTools, AShapeShowsOnlyItsPresentOutline)
{
    choose("Shape");
    auto& s = frame.setup_;
    s.ShapePressure = 80;
    s.ShapeSides = 5;
    const int ink = s.ForeColor;
    const struct {
        Point end;
        void (*draw)(PaintTwin& t, int ink);
    } rows[] = {
        {{40, 12}, [](PaintTwin& t, int ink) { t.BitsLine(25, 20, 40, 12, ink, 80); }},
        {{40, 12},
         [](PaintTwin& t, int ink) {
             t.BitsLine(25, 20, 25, 20, ink, 80);
             t.BitsLine(25, 20, 10, 40, ink, 80);
             t.BitsLine(10, 40, 40, 12, ink, 80);
         }},
        {{40, 12}, [](PaintTwin& t, int ink) { t.BitsRectangle(25, 20, 40, 5, ink, 80); }}, // upward as high as wide
        {{40, 12}, [](PaintTwin& t, int ink) { t.BitsRectangle(25, 20, 40, 12, ink, 80); }},
        {{13, 12}, [](PaintTwin& t, int ink) { t.BitsEllipse(25, 20, 12, 12, ink, 80); }},
        {{40, 12}, [](PaintTwin& t, int ink) { t.BitsEllipse(25, 20, 15, 8, ink, 80); }},
        {{40, 12}, [](PaintTwin& t, int ink) { t.BitsPolygon(25, 20, 40, 12, 5, ink, 80); }},
    };
    for (int kind = 0; kind < 7; ++kind) {
        s.ShapeKind = static_cast<std::int16_t>(kind);
        rows[kind].draw(twin, ink);
        press({25, 20});
        move({10, 40});
        move(rows[kind].end);
        ASSERT_TRUE(sameBits(twin.bits, document.Bits())) << "kind " << kind;
        release(rows[kind].end);
        ASSERT_TRUE(sameBits(twin.bits, frame.filter_.bits())) << "kind " << kind;
        EXPECT_EQ(frame.snapshots, kind + 1);
    }
}

TEST_F(PaintTools, TheRightButtonTakesThePreviewBack)
{
    choose("Shape");
    press({10, 10});
    move({40, 40});
    EXPECT_FALSE(sameBits(before, document.Bits()));
    tools->release(Tools::Right, 40, 40);
    EXPECT_TRUE(sameBits(before, document.Bits()));
    EXPECT_EQ(frame.snapshots, 0);
    EXPECT_FALSE(tools->ToolDown());
    move({45, 45}); // the left button is still down, but the drag is over
    release({45, 45});
    EXPECT_TRUE(sameBits(before, document.Bits()));
    EXPECT_EQ(frame.snapshots, 0);
}

TEST_F(PaintTools, StampsLeaveATrackOrTheLastOneOnly)
{
    choose("Stamp");
    auto& s = frame.setup_;
    const Bits& stamp = frame.toolStores.stamp;
    s.StampMask = false;
    s.StampPressure = 70;
    s.StampUseMaskColor = true;
    s.StampMaskColor = colourOf(stamp.at(3, 3).c[2], stamp.at(3, 3).c[1], stamp.at(3, 3).c[0]);
    const auto hot = Point{13 / 2 + 1, 10 / 2 + 1};
    drag({{20, 20}, {30, 24}});
    twin.BitsPaint(20 - hot.x, 20 - hot.y, stamp, s.StampMaskColor, 70, true);
    twin.BitsPaint(30 - hot.x, 24 - hot.y, stamp, s.StampMaskColor, 70, true);
    EXPECT_TRUE(sameBits(twin.bits, document.Bits()));
    s.StampClearBack = true;
    s.StampMask = true;
    drag({{20, 30}, {33, 30}});
    twin.BitsBWMask(33 - hot.x, 30 - hot.y, stamp, s.ForeColor, 70);
    EXPECT_TRUE(sameBits(twin.bits, document.Bits()));
    EXPECT_EQ(surface.pointer, Pointer::cTextures);
    frame.toolStores.stamp = {};
    drag({{20, 30}, {33, 30}});
    EXPECT_EQ(frame.snapshots, 2);
}

TEST_F(PaintTools, TextFollowsThePointerAndSpaceFixesACopy)
{
    choose("Text");
    drag({{20, 20}, {30, 30}}); // nothing to place
    EXPECT_EQ(frame.snapshots, 0);
    frame.toolStores.text = randomBits(10, 8, 4);
    const int ink = frame.setup_.ForeColor;
    press({20, 20});
    move({30, 24});
    tools->keyDown(Tools::Space);
    move({40, 24});
    release({40, 24});
    twin.BitsBWMask(30 - 6, 24 - 5, frame.toolStores.text, ink, 100);
    twin.BitsBWMask(40 - 6, 24 - 5, frame.toolStores.text, ink, 100);
    EXPECT_TRUE(sameBits(twin.bits, document.Bits()));
    EXPECT_EQ(frame.snapshots, 2);
}

TEST_F(PaintTools, AFillHappensAtTheRelease)
{
    choose("Fill");
    auto& s = frame.setup_;
    s.FillTolerance = 300;
    s.FillPressure = 60;
    press({20, 20});
    move({22, 21});
    EXPECT_TRUE(sameBits(before, document.Bits()));
    release({22, 21});
    twin.BitsFill(22, 21, s.ForeColor, 300, 60);
    EXPECT_TRUE(sameBits(twin.bits, document.Bits()));
    s.FillMode = 1;
    drag({{10, 25}});
    twin.CreateDoneBitsTable();
    twin.BitsFillTexture(10, 25, frame.toolStores.stamp, 300, 60);
    EXPECT_TRUE(sameBits(twin.bits, document.Bits()));
    EXPECT_TRUE(sameBits(twin.bits, frame.filter_.bits()));
    EXPECT_EQ(frame.snapshots, 2);
    frame.toolStores.stamp = {};
    drag({{10, 25}});
    EXPECT_EQ(frame.snapshots, 2);
    EXPECT_EQ(surface.pointer, Pointer::cFill);
}

TEST_F(PaintTools, GradientsRunFromPressToRelease)
{
    choose("Gradient");
    auto& s = frame.setup_;
    s.GradientColor1 = 0x1020FF;
    s.GradientPressure = 70;
    press({10, 10});
    move({40, 30});
    EXPECT_EQ(asked(), "activate; redraw on; stop; show 2: 10,10 40,30");
    release({40, 30});
    EXPECT_EQ(asked(), "hide 2; redraw off; update 01; start");
    cBitFilter engine;
    engine.setBits(before);
    engine.setBitsRegion(selection());
    Bits wanted = engine.GradientLinear(10, 10, 40, 30, 0x1020FF, 0, 70, 1);
    EXPECT_TRUE(sameBits(wanted, document.Bits()));
    s.GradientMode = 1;
    s.GradientTransparent2 = true;
    s.GradientFrequency = 3;
    press({20, 20});
    move({23, 24});
    EXPECT_EQ(asked(), "activate; redraw on; stop; show 1: 15,15 26,26");
    release({23, 24});
    engine.setBits(wanted);
    wanted = engine.GradientCircular(20, 20, 23, 24, 0x1020FF, -1, 70, 3);
    EXPECT_TRUE(sameBits(wanted, document.Bits()));
    EXPECT_TRUE(sameBits(wanted, frame.filter_.bits()));
    EXPECT_EQ(frame.snapshots, 2);
}

TEST_F(PaintTools, WhatAYieldInAGradientLetsInStands)
{
    choose("Gradient");
    const Bits other = randomBits(30, 30, 12);
    frame.filter_.Progress = [&](int) { frame.filter_.setBits(other); }; // another document became active
    drag({{10, 10}, {40, 30}});
    EXPECT_TRUE(sameBits(before, document.Bits()));
    EXPECT_TRUE(sameBits(other, frame.filter_.bits()));
    EXPECT_EQ(frame.snapshots, 0);

    open(before);
    frame.filter_.Progress = [&](int) { tools.reset(); }; // the document closed
    Tools* gone = tools.get();
    gone->press(Tools::Left, 10, 10);
    gone->release(Tools::Left, 40, 30);
    EXPECT_EQ(frame.snapshots, 0);

    open(before);
    frame.filter_.Progress = [](int) { throw Cancelled(); };
    drag({{10, 10}, {40, 30}});
    EXPECT_TRUE(sameBits(before, document.Bits()));
    EXPECT_EQ(frame.snapshots, 0);
    EXPECT_FALSE(tools->ToolDown());
}

TEST_F(PaintTools, ThePipetteTakesColoursAsItMoves)
{
    choose("GetColor");
    press({5, 6});
    const Pixel p = before.at(5, 6), q = before.at(9, 9);
    EXPECT_EQ(frame.setup_.ForeColor, colourOf(p.c[2], p.c[1], p.c[0]));
    EXPECT_EQ(surface.pointer, Pointer::cPicker);
    move({9, 9});
    EXPECT_EQ(frame.setup_.ForeColor, colourOf(q.c[2], q.c[1], q.c[0]));
    release({9, 9});
    EXPECT_EQ(asked(), "activate; colour; colour; start");
    EXPECT_EQ(frame.snapshots, 0);
}

TEST_F(PaintTools, APasteHangsOnThePointerUntilAClick)
{
    Bits clip = randomBits(8, 6, 5);
    clip.at(0, 0).c[3] = 255;
    frame.toolStores.paste = clip;
    frame.toolStores.pastePending = true;
    choose("");
    tools->move(Tools::NoButton, 30, 30);
    tools->move(Tools::NoButton, 20, 20);
    const auto wanted = [&](int x, int y) { twin.BitsPaintPreMasked(x - 5, y - 4, clip, 100, false); };
    wanted(20, 20);
    EXPECT_TRUE(sameBits(twin.bits, document.Bits()));
    EXPECT_TRUE(sameBits(before, frame.filter_.bits()));
    tools->keyDown(Tools::Space); // a copy stays
    drag({{50, 40}});
    wanted(50, 40);
    EXPECT_TRUE(sameBits(twin.bits, document.Bits()));
    EXPECT_FALSE(frame.toolStores.pastePending);
    EXPECT_EQ(frame.snapshots, 2);
    tools->move(Tools::NoButton, 10, 10);
    EXPECT_TRUE(sameBits(twin.bits, document.Bits()));

    frame.toolStores.pastePending = true;
    tools->move(Tools::NoButton, 10, 10);
    tools->release(Tools::Right, 10, 10); // let go
    EXPECT_TRUE(sameBits(twin.bits, document.Bits()));
    EXPECT_FALSE(frame.toolStores.pastePending);
    EXPECT_EQ(frame.snapshots, 2);
}

TEST_F(PaintTools, TheSmallestPictureAndTheLargestBrush)
{
    open(randomBits(1, 1, 6));
    frame.setup_.BrushSize = 5000;
    frame.toolStores.paste = randomBits(3, 3, 1);
    for (const char* tool : {"Select", "SelectionMove", "Brush", "Airbrush", "Pencil", "Shape", "Fill", "Stamp", "Text",
                             "Gradient", "GetColor", "", "Nonsense"}) {
        choose(tool);
        drag({{0, 0}, {7, -3}, {0, 0}});
        drag({{5, 5}, {0, 0}});
        tools->release(Tools::Right, 0, 0);
        EXPECT_TRUE(sameBits(frame.filter_.bits(), document.Bits())) << tool;
    }
}

TEST_F(PaintTools, ACommandBetweenTwoStrokesIsNotLost)
{
    choose("Shape");
    drag({{10, 10}, {40, 30}});
    const Bits inverted = randomBits(60, 50, 70); // as a filter would: the engine's result goes to the document
    frame.filter_.setBits(inverted);
    document.setBits(inverted);
    press({10, 10});
    move({40, 30});
    move({10, 10});
    tools->release(Tools::Right, 10, 10);
    EXPECT_TRUE(sameBits(inverted, document.Bits()));
    press({10, 10});
    move({40, 30});
    document.setBits(before); // undo by a key in the middle of a drag
    frame.filter_.setBits(before);
    move({41, 30});
    tools->release(Tools::Right, 41, 30);
    EXPECT_TRUE(sameBits(before, document.Bits()));
}

TEST_F(PaintTools, ADragEndsWithoutACommitWhenAnotherDocumentTakesOver)
{
    choose("Shape");
    press({10, 10});
    move({40, 30});
    tools->deactivated();
    EXPECT_TRUE(sameBits(before, document.Bits()));
    const Bits other = randomBits(33, 22, 5); // the other one hands its picture to the engine
    frame.filter_.setBits(other);
    move({45, 35});
    release({45, 35});
    EXPECT_TRUE(sameBits(before, document.Bits()));
    EXPECT_TRUE(sameBits(other, frame.filter_.bits()));
    EXPECT_EQ(frame.snapshots, 0);

    tools->move(Tools::NoButton, 12, 12); // passing over it leaves the engine to the active one
    frame.toolStores.paste = randomBits(8, 6, 5);
    frame.toolStores.pastePending = true;
    tools->move(Tools::NoButton, 20, 20);
    EXPECT_TRUE(sameBits(before, document.Bits()));
    EXPECT_TRUE(sameBits(other, frame.filter_.bits()));

    document.handTo(frame.filter_); // active again: the paste hangs on the pointer, and leaves with it
    tools->move(Tools::NoButton, 21, 20);
    EXPECT_FALSE(sameBits(before, document.Bits()));
    tools->deactivated();
    EXPECT_TRUE(sameBits(before, document.Bits()));
    EXPECT_TRUE(frame.toolStores.pastePending);
}

/// Any order of events, settings out of a damaged configuration, and commands in between: a right click always shows
/// the committed picture.
TEST_F(PaintTools, NoOrderOfEventsBreaksTheTools)
{
    std::mt19937 random(2024);
    const auto within = [&](int low, int high) { return std::uniform_int_distribution<int>(low, high)(random); };
    const auto setting = [&] {
        return static_cast<std::int16_t>(within(0, 4) ? within(-2, 120) : within(-32768, 32767));
    };
    const char* names[] = {"Select", "SelectionMove", "Brush",    "Airbrush", "Pencil", "Shape",   "Fill",
                           "Stamp",  "Text",          "Gradient", "GetColor", "",       "Nonsense"};
    frame.toolStores.text = randomBits(20, 10, 2);
    frame.toolStores.paste = randomBits(30, 20, 3);
    for (int event = 0; event < 6000; ++event) {
        auto& s = frame.setup_;
        const int x = within(-20, 80), y = within(-20, 70), button = within(0, 2);
        switch (within(0, 24)) {
        case 0:
        case 1:
            choose(names[within(0, 12)]);
            break;
        case 2:
            for (std::int16_t* v : {&s.BrushSize, &s.BrushPressure, &s.AirbrushSize, &s.AirbrushPressure,
                                    &s.AirbrushQuantity, &s.AirbrushDefinition, &s.FillTolerance, &s.FillPressure,
                                    &s.ShapePressure, &s.StampPressure, &s.SelectionPressure, &s.ClipOpacity})
                *v = setting();
            for (std::int16_t* v : {&s.BrushMode, &s.ShapeKind, &s.FillMode, &s.SelectionMode, &s.SelectionShape})
                *v = static_cast<std::int16_t>(within(-1, 7));
            s.ShapeSides = static_cast<std::int16_t>(within(-1, 40));
            s.GradientMode = within(-1, 2);
            s.MoveSelection = within(0, 1);
            s.StampMask = within(0, 1);
            s.StampClearBack = within(0, 1);
            break;
        case 3:
            frame.toolStores.pastePending = within(0, 3) == 0;
            break;
        case 4: // a filter
            frame.filter_.setBits(frame.filter_.Invert());
            document.setBits(frame.filter_.bits());
            break;
        case 5: // another picture
            if (within(0, 9)) break;
            document.takePicture(randomBits(within(1, 70), within(1, 60), random()));
            document.handTo(frame.filter_);
            break;
        case 6:
            if (within(0, 1))
                document.Region.Invert();
            else
                tools->deactivated();
            break;
        case 7:
            tools->keyDown(within(30, 42));
            tools->keyUp(Tools::Ctrl);
            break;
        case 8:
        case 9:
        case 10:
            tools->press(button, x, y);
            break;
        case 11:
        case 12:
            tools->release(button, x, y);
            break;
        case 13:
            tools->release(Tools::Right, x, y);
            ASSERT_TRUE(sameBits(frame.filter_.bits(), document.Bits())) << event;
            ASSERT_FALSE(tools->ToolDown());
            break;
        default:
            tools->move(button, x, y);
        }
    }
}

} // namespace
} // namespace velara
