#include "pixels/RuntimeError.h"
#include "support/filterOf.h"
#include "support/seed.h"
#include "tools/ToolFixture.h"
#include "tools/reference/paintTwins.h"
#include <QCoreApplication>
#include <random>

namespace velara {
namespace {

/// How a tool is set up, and the definition of what it should paint.
struct Stroke {
    PaintTwin paint;
    Setup setup;
    const Bits& stamp;
    std::vector<Point> way;
};

struct PaintTools : ToolFixture {
    Bits before = document.bits();
    PaintTwin twin;

    PaintTools()
    {
        frame.setup_.ForeColor = 0x3080F0;
        frame.toolStores_.stamp = randomBits(12, 9, 8);
        start();
    }
    /// The first picture again, with an ellipse selected.
    void start()
    {
        open(before);
        document.Region.CreateEllipse(3, 3, 55, 45, Combine::Or, true);
        document.paint.setRandomSeed(3);
        twin = {before, document.Region.RegionMain(), document.Region.working(), {}, Random(3)};
        twin.CreateDoneBitsTable();
    }
};

void dab(Stroke& s)
{
    const auto [x, y] = s.way.front();
    const Setup& set = s.setup;
    const int mode = set.BrushMode, size = set.BrushSize, strength = set.BrushPressure;
    if (mode == 0) s.paint.BitsBrush(x, y, size, strength, set.ForeColor);
    if (mode == 1 || mode == 2) s.paint.BitsSoften(x, y, size, strength, mode == 2);
    if (mode == 3) s.paint.BitsSharpen(x, y, size, strength);
    if (mode == 4 || mode == 5) s.paint.BitsBrightness(x, y, size, strength, mode == 4);
    if (mode == 6) s.paint.BitsMasked(x, y, s.stamp, size, strength);
}

/// One dab and then lines.
void brush(Stroke& s)
{
    dab(s);
    for (std::size_t i = 1; i < s.way.size(); ++i) {
        const auto [x1, y1] = s.way[i - 1];
        const auto [x2, y2] = s.way[i];
        if (s.setup.BrushMode == BrushMode::Stamp)
            s.paint.BitsMaskedLine(x1, y1, x2, y2, 9, 60, s.stamp);
        else
            s.paint.BitsBrushLine(x1, y1, x2, y2, 9, 60, s.setup.ForeColor, s.setup.BrushMode);
    }
}

void airbrush(Stroke& s)
{
    for (const auto& [x, y] : s.way) s.paint.BitsAirbrush(x, y, 75, 25, 100, 0, s.setup.ForeColor);
}

void freeHand(Stroke& s)
{
    const int opacity = s.setup.CurrentTool == "Pencil" ? s.setup.ToolOpacity : s.setup.ShapePressure;
    Point last = s.way.front();
    for (const Point at : s.way) {
        s.paint.BitsLine(last.x, last.y, at.x, at.y, s.setup.ForeColor, opacity);
        last = at;
    }
}

/// The position of a stamp of 12 by 9.
Point stampAt(Point at) { return {at.x - (13 / 2 + 1), at.y - (10 / 2 + 1)}; }

void stampTrack(Stroke& s)
{
    for (const Point at : s.way) {
        const auto [x, y] = stampAt(at);
        s.paint.BitsPaint(x, y, s.stamp, s.setup.StampUseMaskColor ? s.setup.StampMaskColor : -1, 70, true);
    }
}

void lastStamp(Stroke& s)
{
    const auto [x, y] = stampAt(s.way.back());
    s.paint.BitsBWMask(x, y, s.stamp, s.setup.ForeColor, 70);
}

const std::vector<Point> kWay{{20, 20}, {25, 22}, {24, 30}, {70, 31}, {20, 20}}, kTurn{{25, 20}, {10, 40}, {40, 12}};
constexpr int kInk = 0x3080F0;

template <int mode> void brushOf(Setup& s) { s.BrushMode = mode, s.BrushSize = 9, s.BrushPressure = 60; }
template <int kind> void shapeOf(Setup& s) { s.ShapeKind = kind, s.ShapePressure = 80, s.ShapeSides = 5; }
template <int mode> void fillOf(Setup& s) { s.FillMode = mode, s.FillTolerance = 300, s.FillPressure = 60; }
void dabs(Setup& s) { brushOf<BrushMode::Paint>(s), s.BrushContinuous = false; }
void halfOpaque(Setup& s) { s.ToolOpacity = 50; }
void stampOf(Setup& s) { s.StampMask = false, s.StampPressure = 70; }
void lastStampOf(Setup& s) { s.StampMask = s.StampClearBack = true, s.StampPressure = 70; }

const struct {
    const char* tool;
    void (*set)(Setup&);
    std::vector<Point> way;
    void (*draw)(Stroke&);
    Pointer pointer;
} kStrokes[] = {
    // clang-format off
    {"Brush",    brushOf<BrushMode::Paint>,     kWay,  brush,    Pointer::cBrush},
    {"Brush",    brushOf<BrushMode::Soften>,    kWay,  brush,    Pointer::cBrush},
    {"Brush",    brushOf<BrushMode::SoftenOver>,kWay,  brush,    Pointer::cBrush},
    {"Brush",    brushOf<BrushMode::Sharpen>,   kWay,  brush,    Pointer::cBrush},
    {"Brush",    brushOf<BrushMode::Lighten>,   kWay,  brush,    Pointer::cBrush},
    {"Brush",    brushOf<BrushMode::Darken>,    kWay,  brush,    Pointer::cBrush},
    {"Brush",    brushOf<BrushMode::Stamp>,     kWay,  brush,    Pointer::cBrush},
    {"Brush",    dabs,                          {{20, 20}, {20, 20}}, dab, Pointer::cBrush},
    {"Airbrush", [](Setup&) {}, kWay, airbrush, Pointer::cAirBrush},
    {"Pencil",   halfOpaque,                    kTurn, freeHand, Pointer::cPencil},
    {"Shape",    shapeOf<ShapeKind::Line>,      kTurn, [](Stroke& s) { s.paint.BitsLine(25, 20, 40, 12, kInk, 80); }, Pointer::cPencil},
    {"Shape",    shapeOf<ShapeKind::FreeHand>,  kTurn, freeHand, Pointer::cPencil},
    {"Shape",    shapeOf<ShapeKind::Square>,    kTurn, [](Stroke& s) { s.paint.BitsRectangle(25, 20, 40, 5, kInk, 80); }, Pointer::cPencil}, // upward as high as wide
    {"Shape",    shapeOf<ShapeKind::Rectangle>, kTurn, [](Stroke& s) { s.paint.BitsRectangle(25, 20, 40, 12, kInk, 80); }, Pointer::cPencil},
    {"Shape",    shapeOf<ShapeKind::Circle>,    {{25, 20}, {13, 12}}, [](Stroke& s) { s.paint.BitsEllipse(25, 20, 12, 12, kInk, 80); }, Pointer::cPencil},
    {"Shape",    shapeOf<ShapeKind::Ellipse>,   kTurn, [](Stroke& s) { s.paint.BitsEllipse(25, 20, 15, 8, kInk, 80); }, Pointer::cPencil},
    {"Shape",    shapeOf<ShapeKind::Polygon>,   kTurn, [](Stroke& s) { s.paint.BitsPolygon(25, 20, 40, 12, 5, kInk, 80); }, Pointer::cPencil},
    {"Stamp",    stampOf,                       {{20, 20}, {30, 24}}, stampTrack, Pointer::cTextures},
    {"Stamp",    [](Setup& s) { stampOf(s), s.StampUseMaskColor = true, s.StampMaskColor = 0; }, {{20, 20}, {30, 24}}, stampTrack, Pointer::cTextures},
    {"Stamp",    lastStampOf,                   {{20, 30}, {33, 30}}, lastStamp, Pointer::cTextures},
    {"Fill",     fillOf<FillMode::Paint>,       {{20, 20}, {22, 21}}, [](Stroke& s) { s.paint.BitsFill(22, 21, kInk, 300, 60); }, Pointer::cFill},
    {"Fill",     fillOf<FillMode::Stamp>,       {{20, 20}, {10, 25}}, [](Stroke& s) { s.paint.BitsFillTexture(10, 25, s.stamp, 300, 60); }, Pointer::cFill},
    // clang-format on
};

TEST_F(PaintTools, StrokesPaintWhatTheirPrimitivesDo)
{
    const auto defaults = frame.setup_;
    frame.toolStores_.stamp.at(3, 3) = {}; // in the mask's colour
    for (const auto& row : kStrokes) {
        SCOPED_TRACE(std::string(row.tool) + ", row " + std::to_string(&row - kStrokes));
        start();
        frame.setup_ = defaults;
        choose(row.tool);
        row.set(frame.setup_);
        frame.snapshots = 0;
        Stroke wanted{twin, frame.setup_, frame.toolStores_.stamp, row.way};
        row.draw(wanted);
        press(row.way.front());
        for (std::size_t i = 1; i < row.way.size(); ++i) move(row.way[i]);
        EXPECT_TRUE(sameBits(frame.setup_.CurrentTool == "Fill" ? before : wanted.paint.bits, document.bits()));
        EXPECT_EQ(surface.pointer, row.pointer);
        release(row.way.back());
        EXPECT_TRUE(sameBits(wanted.paint.bits, document.bits()));
        EXPECT_TRUE(sameBits(wanted.paint.bits, frame.filter_.bits()));
        EXPECT_EQ(frame.snapshots, 1);
    }
}

TEST_F(PaintTools, AClickIsOneDabAndOneStep)
{
    choose("Brush");
    frame.setup_.BrushSize = 1;
    frame.setup_.BrushPressure = 100;
    drag({{20, 20}});
    EXPECT_EQ(asked(), "activate; stop; repaint; step; start");
    EXPECT_EQ(surface.repainted.back(), (Rect{20, 20, 21, 21}));
}

TEST_F(PaintTools, WithoutWhatItPaintsWithAToolDoesNothing)
{
    frame.toolStores_.stamp = {};
    frame.setup_.BrushMode = BrushMode::Stamp;
    frame.setup_.FillMode = FillMode::Stamp;
    for (const char* tool : {"Brush", "Stamp", "Text", "Fill"}) {
        choose(tool);
        drag({{20, 20}, {25, 25}});
        EXPECT_EQ(asked(), "activate; start") << tool;
    }
    frame.setup_.AirbrushSize = 1; // from a damaged configuration
    choose("Airbrush");
    drag({{20, 20}, {22, 21}});
    EXPECT_EQ(frame.snapshots, 0);
    EXPECT_TRUE(sameBits(before, document.bits()));
}

TEST_F(PaintTools, WhereNoPixelChangesThereIsNoStep)
{
    document.SaveUndoBits();
    choose("Pencil");
    drag({{20, 20}, {25, 25}});
    frame.workspace_.step(document.handle(), true);
    frame.settle();
    frame.snapshots = 0;
    for (const char* tool : {"Gradient", "Fill", "Brush", "Shape"}) {
        choose(tool);
        drag(tool == std::string("Gradient") ? std::vector<Point>{{20, 20}}
                                             : std::vector<Point>{{-400, -400}, {-380, -390}});
        frame.settle();
        EXPECT_EQ(frame.snapshots, 0) << tool;
    }
    EXPECT_TRUE(document.undo.canRedo()) << "and what was taken back can still be had";
    EXPECT_FALSE(document.wouldBeLost());
}

TEST_F(PaintTools, TextFollowsThePointerAndSpaceFixesACopy)
{
    choose("Text");
    frame.toolStores_.text = randomBits(10, 8, 4);
    const int ink = frame.setup_.ForeColor;
    press({20, 20});
    move({30, 24});
    tools->keyDown(Tools::Space);
    move({40, 24});
    release({40, 24});
    twin.BitsBWMask(30 - 6, 24 - 5, frame.toolStores_.text, ink, 100);
    twin.BitsBWMask(40 - 6, 24 - 5, frame.toolStores_.text, ink, 100);
    EXPECT_TRUE(sameBits(twin.bits, document.bits()));
    EXPECT_EQ(frame.snapshots, 2);
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
    EXPECT_EQ(asked(), "hide 2; redraw off; start");
    EXPECT_TRUE(sameBits(before, document.bits())) << "it is being computed";
    frame.settle();
    EXPECT_EQ(asked(), "step");
    cBitFilter engine = filterOf(before, selection());
    Bits wanted = engine.GradientLinear(10, 10, 40, 30, 0x1020FF, 0, 70, 1);
    EXPECT_TRUE(sameBits(wanted, document.bits()));
    s.GradientMode = GradientMode::Circular;
    s.GradientTransparent2 = true;
    s.GradientFrequency = 3;
    press({20, 20});
    move({23, 24});
    EXPECT_EQ(asked(), "activate; redraw on; stop; show 1: 15,15 26,26");
    release({23, 24});
    frame.settle();
    engine.setBits(wanted);
    wanted = engine.GradientCircular(20, 20, 23, 24, 0x1020FF, -1, 70, 3);
    EXPECT_TRUE(sameBits(wanted, document.bits()));
    EXPECT_TRUE(sameBits(wanted, frame.filter_.bits()));
    EXPECT_EQ(frame.snapshots, 2);
}

/// The gradient of a release is computed while the user continues: nothing begins in its document before it is done.
TEST_F(PaintTools, TheUserGoesOnWhileAGradientIsComputed)
{
    choose("Gradient");
    const auto gradient = [](const Bits& on) {
        Document page({}, 1);
        page.takePicture(on);
        return filterOf(on, page.Region.working()).GradientLinear(10, 10, 40, 30, 0xFFFFFF, 0, 50, 1);
    };
    const Bits first = gradient(before);
    const struct {
        const char* what;
        std::function<void()> happens;
        Bits left;
    } rows[] = {
        {"nothing", [] {}, first},
        {"Esc drops it", [&] { tools->keyDown(Tools::Escape); }, before},
        {"and so does the right button", [&] { tools->press(Tools::Right, 20, 20); }, before},
        {"a drag is refused",
         [&] {
             drag({{5, 5}, {20, 9}});
         },
         first},
        {"a press is refused",
         [&] {
             press({5, 5});
         },
         first},
        {"a second release is none",
         [&] {
             release({40, 30});
         },
         first},
        {"a hover paints nothing",
         [&] {
             choose("Shape");
             tools->move(Tools::NoButton, 20, 20);
             EXPECT_EQ(surface.pointer, Pointer::Waiting);
             EXPECT_TRUE(sameBits(before, document.bits()));
             choose("Gradient");
         },
         first},
        {"another tool is chosen", [&] { tools->toolChosen(); }, first},
        {"the tools go", [&] { tools.reset(); }, first},
    };
    for (const auto& row : rows) {
        open(before);
        drag({{10, 10}, {40, 30}});
        row.happens();
        frame.settle();
        EXPECT_TRUE(sameBits(row.left, document.bits())) << row.what;
        if (!tools) continue;
        EXPECT_FALSE(tools->ToolDown()) << row.what;
        EXPECT_FALSE(frame.workspace_.cancel(document.handle())) << row.what;
    }
}

/// A change that arrives in the middle of a stroke waits for its end, and works on its result.
TEST_F(PaintTools, AStrokeHoldsTheChangesThatComeMeanwhile)
{
    frame.workspace_.held = [&](const Document&) { return tools->ToolDown(); };
    choose("Shape");
    press({10, 10});
    move({40, 30});
    const Job invert = [](Document& draft, cBitFilter& filter) { draft.setBits(filter.Invert()); };
    frame.workspace_.change(document.handle(), {invert});
    QCoreApplication::processEvents();
    release({40, 30});
    const Bits drawn = document.bits();
    EXPECT_FALSE(sameBits(before, drawn));
    frame.settle();
    EXPECT_TRUE(sameBits(filterOf(drawn, document.Region.working()).Invert(), document.bits()));
    EXPECT_EQ(frame.snapshots, 2);
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
    frame.toolStores_.paste = clip;
    frame.toolStores_.pastePending = true;
    frame.setup_.ClipOpacity = 40;
    choose("");
    tools->move(Tools::NoButton, 30, 30);
    tools->move(Tools::NoButton, 20, 20);
    const auto wanted = [&](int x, int y) { twin.BitsPaintPreMasked(x - 5, y - 4, clip, 40, false); };
    wanted(20, 20);
    EXPECT_TRUE(sameBits(twin.bits, document.bits()));
    EXPECT_TRUE(sameBits(before, frame.filter_.bits()));
    tools->keyDown(Tools::Space); // a copy stays there
    drag({{50, 40}});
    wanted(50, 40);
    EXPECT_TRUE(sameBits(twin.bits, document.bits()));
    EXPECT_FALSE(frame.toolStores_.pastePending);
    EXPECT_EQ(frame.snapshots, 2);
    tools->move(Tools::NoButton, 10, 10);
    EXPECT_TRUE(sameBits(twin.bits, document.bits()));

    frame.toolStores_.pastePending = true;
    tools->move(Tools::NoButton, 10, 10);
    tools->release(Tools::Right, 10, 10); // dropped
    EXPECT_TRUE(sameBits(twin.bits, document.bits()));
    EXPECT_FALSE(frame.toolStores_.pastePending);
    EXPECT_EQ(frame.snapshots, 2);
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
    EXPECT_TRUE(sameBits(inverted, document.bits()));
    press({10, 10});
    move({40, 30});
    document.setBits(before); // undo by a key in the middle of a drag
    frame.filter_.setBits(before);
    move({41, 30});
    tools->release(Tools::Right, 41, 30);
    EXPECT_TRUE(sameBits(before, document.bits()));
}

TEST_F(PaintTools, ADragEndsWithoutACommitWhenAnotherDocumentTakesOver)
{
    choose("Shape");
    press({10, 10});
    move({40, 30});
    tools->deactivated();
    EXPECT_TRUE(sameBits(before, document.bits()));
    const Bits other = randomBits(33, 22, 5);
    Document& second = frame.open(other);
    second.Region.setRegion(Region::rectangle(1, 2, 3, 4));
    frame.workspace_.handOver(second);
    move({45, 35});
    release({45, 35});
    EXPECT_TRUE(sameBits(before, document.bits()));
    EXPECT_TRUE(sameBits(other, frame.filter_.bits()));
    EXPECT_EQ(second.Region.working(), frame.filter_.BitsRegion());
    EXPECT_EQ(frame.snapshots, 0);

    tools->move(Tools::NoButton, 12, 12); // moving over it leaves the engine to the active one
    frame.toolStores_.paste = randomBits(8, 6, 5);
    frame.toolStores_.pastePending = true;
    for (const Bits& active : {other, before}) { // the second is a copy of this one, which shares its pixels
        frame.workspace_.handOver(frame.open(active));
        tools->move(Tools::NoButton, 20, 20);
        EXPECT_TRUE(sameBits(before, document.bits()));
        tools->deactivated();
        EXPECT_FALSE(tools->drop()) << "it hangs on the other one";
        EXPECT_TRUE(frame.toolStores_.pastePending);
        EXPECT_TRUE(sameBits(before, document.bits()));
        EXPECT_TRUE(sameBits(active, frame.filter_.bits()));
    }

    frame.document = &document; // active again: the paste follows the pointer, and leaves with it
    frame.workspace_.handOver(document);
    tools->move(Tools::NoButton, 21, 20);
    EXPECT_FALSE(sameBits(before, document.bits()));
    tools->deactivated();
    EXPECT_TRUE(sameBits(before, document.bits()));
    EXPECT_TRUE(frame.toolStores_.pastePending);
}

/// Any order of events, settings from a damaged configuration, and commands in between: a right click always restores
/// the committed picture.
TEST_F(PaintTools, NoOrderOfEventsBreaksTheTools)
{
    std::mt19937 random(seedOf(2024));
    const auto within = [&](int low, int high) { return std::uniform_int_distribution<int>(low, high)(random); };
    const auto setting = [&] {
        return static_cast<std::int16_t>(within(0, 4) ? within(-2, 120) : within(-32768, 32767));
    };
    const char* names[] = {"Select", "SelectionMove", "Brush",    "Airbrush", "Pencil", "Shape",   "Fill",
                           "Stamp",  "Text",          "Gradient", "GetColor", "",       "Nonsense"};
    frame.toolStores_.text = randomBits(20, 10, 2);
    frame.toolStores_.paste = randomBits(30, 20, 3);
    auto& s = frame.setup_;
    int x = 0, y = 0, button = 0;
    const std::pair<int, std::function<void()>> kinds[] = {
        // weight, and the event
        {2, [&] { choose(names[within(0, 12)]); }},
        {1,
         [&] {
             for (std::int16_t* v : {&s.BrushSize, &s.BrushPressure, &s.AirbrushSize, &s.AirbrushPressure,
                                     &s.AirbrushQuantity, &s.AirbrushDefinition, &s.FillTolerance, &s.FillPressure,
                                     &s.ShapePressure, &s.StampPressure, &s.SelectionPressure, &s.ClipOpacity})
                 *v = setting();
             for (std::int16_t* v : {&s.BrushMode, &s.ShapeKind, &s.FillMode, &s.SelectionMode, &s.SelectionShape})
                 *v = static_cast<std::int16_t>(within(-1, 7));
             s.ShapeSides = static_cast<std::int16_t>(within(-1, 40));
             s.GradientMode = within(-1, 2);
             for (auto* v : {&s.MoveSelection, &s.StampMask, &s.StampClearBack}) *v = within(0, 1);
         }},
        {1, [&] { frame.toolStores_.pastePending = within(0, 3) == 0; }},
        {1,
         [&] { // a filter
             frame.filter_.setBits(frame.filter_.Invert());
             document.setBits(frame.filter_.bits());
         }},
        {1,
         [&] { // another picture
             if (within(0, 9)) return;
             document.takePicture(randomBits(within(1, 70), within(1, 60), random()));
             document.handTo(frame.filter_);
         }},
        {1, [&] { within(0, 1) ? document.Region.Invert() : tools->deactivated(); }},
        {1,
         [&] {
             tools->keyDown(within(30, 42));
             tools->keyUp(Tools::Ctrl);
         }},
        {3, [&] { tools->press(button, x, y); }},
        {2, [&] { tools->release(button, x, y); }},
        {1,
         [&] {
             tools->release(Tools::Right, x, y);
             ASSERT_TRUE(sameBits(frame.filter_.bits(), document.bits()));
             ASSERT_FALSE(tools->ToolDown());
         }},
        {11, [&] { tools->move(button, x, y); }},
    };
    for (int event = 0; event < 6000; ++event) {
        x = within(-20, 80), y = within(-20, 70), button = within(0, 2);
        int left = within(0, 24);
        std::ranges::find_if(kinds, [&](const auto& kind) { return (left -= kind.first) < 0; })->second();
        ASSERT_FALSE(HasFatalFailure()) << event;
    }
}

} // namespace
} // namespace velara
