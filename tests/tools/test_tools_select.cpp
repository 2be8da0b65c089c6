#include "support/gdiFacts.h"
#include "tools/ToolFixture.h"

namespace velara {
namespace {

using Words = std::vector<std::int32_t>;

struct SelectTool : ToolFixture {
    SelectTool() { choose("Select   "); } // the name comes from a fixed-length field
    Words rects() const { return rectanglesOf(selection()); }
};

TEST_F(SelectTool, ABandSelectsWhicheverWayItIsDragged)
{
    drag({{10, 20}, {15, 22}, {30, 35}});
    EXPECT_EQ(rects(), (Words{10, 20, 30, 35}));
    EXPECT_EQ(asked(), "activate; image; show 0: 10,20 15,22; show 0: 10,20 30,35; hide 0; redraw off; image; start");
    EXPECT_EQ(surface.pointer, Pointer::Cross);
    EXPECT_EQ(frame.filter_.BitsRegion(), selection());
    drag({{30, 35}, {10, 20}});
    EXPECT_EQ(rects(), (Words{10, 20, 30, 35})); // "New" cleared the first
    EXPECT_EQ(frame.status[Panel::Pos], "X:10 Y:20");
    EXPECT_EQ(frame.status[Panel::Ext], "20,15");
    drag({{5, 5}, {5, 5}}); // a click with "New" selects nothing: the whole picture is the working region again
    EXPECT_TRUE(selection().isEmpty());
    EXPECT_EQ(frame.filter_.BitsRegion(), document.Region.RegionMain());
    EXPECT_EQ(surface.log.back(), "stop");
    EXPECT_EQ(frame.snapshots, 0);
}

TEST_F(SelectTool, ModesAddAndSubtractAndCutToThePicture)
{
    frame.setup_.SelectionMode = SelectionMode::Add;
    drag({{50, 40}, {500, 400}});
    EXPECT_EQ(rects(), (Words{50, 40, 60, 50}));
    frame.setup_.SelectionMode = SelectionMode::Subtract;
    drag({{55, -9}, {70, 90}});
    EXPECT_EQ(rects(), (Words{50, 40, 55, 50}));
    frame.setup_.SelectionMode = SelectionMode::Add;
    frame.setup_.SelectionShape = SelectionShape::Ellipse;
    drag({{20, 20}, {0, 0}});
    EXPECT_EQ(selection(), Region::ellipse(0, 0, 20, 20).combined(Region::rectangle(50, 40, 55, 50), Combine::Or));
}

TEST_F(SelectTool, PixelsAreTakenAsTheyArePassed)
{
    frame.setup_.SelectionShape = SelectionShape::Pixel;
    drag({{3, 3}, {4, 3}, {9, 9}});
    EXPECT_EQ(rects(), (Words{3, 3, 5, 4, 9, 9, 10, 10}));
    frame.setup_.SelectionMode = SelectionMode::Subtract;
    drag({{4, 3}, {4, 3}});
    EXPECT_EQ(rects(), (Words{3, 3, 4, 4, 9, 9, 10, 10}));
}

TEST_F(SelectTool, SpaceSetsCornersOfAPolygonUnderTheButton)
{
    frame.setup_.SelectionShape = SelectionShape::Polygon;
    document.Region.CreateRect(0, 0, 5, 5, Combine::Or, true);
    press({10, 10});
    EXPECT_TRUE(selection().isEmpty()); // "New" clears at the first corner
    move({30, 10});
    EXPECT_TRUE(tools->keyDown(Tools::Space));
    move({30, 40});
    asked();
    tools->keyDown(Tools::Space);
    EXPECT_EQ(asked(), "show 2: 30,10 30,40 keep");
    release({30, 40});
    EXPECT_EQ(selection(), Region::polygon(Words{10, 10, 30, 10, 30, 40}));
    EXPECT_EQ(asked(), "hide 2; redraw off; image; start");
    EXPECT_FALSE(tools->keyDown(65));
}

TEST_F(SelectTool, APolygonMayBeMadeOfSeveralDrags)
{
    frame.setup_.SelectionShape = SelectionShape::Polygon;
    press({10, 10});
    move({30, 10});
    tools->keyDown(Tools::Space);
    release({30, 10});
    EXPECT_EQ(tools->ToolPoints(), (Words{10, 10, 30, 10})) << "two corners enclose nothing: it stays open";
    frame.setup_.SelectionMode = SelectionMode::New;
    drag({{0, 0}, {30, 40}}); // continues from the last corner, wherever the press is
    EXPECT_EQ(tools->ToolPoints().size(), 6u);
    drag({{30, 40}, {14, 10}}); // four pixels from the first corner: adds a corner
    EXPECT_EQ(tools->ToolPoints().size(), 8u);
    drag({{14, 10}, {13, 7}}); // three pixels: closes the polygon
    EXPECT_EQ(selection(), Region::polygon(Words{10, 10, 30, 10, 30, 40, 14, 10}));
    EXPECT_EQ(tools->ToolPoints(), (Words{0, 0}));

    drag({{1, 1}, {5, 1}}); // an open one is dropped by another shape
    frame.setup_.SelectionShape = SelectionShape::Rectangle;
    drag({{2, 2}, {4, 4}});
    EXPECT_EQ(rects(), (Words{2, 2, 4, 4}));
}

TEST_F(SelectTool, ClicksSetCornersAndEnterOrADoubleClickClosesThePolygon)
{
    frame.setup_.SelectionShape = SelectionShape::Polygon;
    const Words corners{10, 10, 30, 10, 30, 40};
    const auto click = [this](int x, int y) { drag({{x, y}, {x, y}}); };
    for (const bool byKey : {true, false}) {
        click(10, 10);
        EXPECT_FALSE(tools->keyDown(Tools::Enter)) << "one corner encloses nothing";
        asked();
        tools->move(Tools::NoButton, 20, 9);
        EXPECT_EQ(asked(), "show 2: 10,10 20,9") << "the line to the next corner follows the pointer";
        click(30, 10);
        click(30, 40);
        EXPECT_NE(frame.status[Panel::Hint].find("Enter or double click"), std::string::npos);
        EXPECT_TRUE(byKey ? tools->keyDown(Tools::Enter) : tools->doubleClick(30, 40));
        EXPECT_EQ(selection(), Region::polygon(corners));
        EXPECT_EQ(frame.filter_.BitsRegion(), selection());
        EXPECT_EQ(frame.status[Panel::Hint], "");
        EXPECT_TRUE(tools->doubleClick(30, 40)) << "the second click of one that closed it begins no other";
        EXPECT_EQ(selection(), Region::polygon(corners));
    }
    press({10, 10}); // the button is still down: its position is the last corner
    move({30, 10});
    tools->keyDown(Tools::Space);
    move({30, 40});
    EXPECT_TRUE(tools->keyDown(Tools::Enter));
    EXPECT_EQ(selection(), Region::polygon(corners));
    release({50, 45});
    EXPECT_EQ(tools->ToolPoints(), (Words{0, 0}));
    EXPECT_FALSE(tools->keyDown(Tools::Enter));
}

TEST_F(SelectTool, AHalfMadePolygonEndsWithItsToolAndGivesTheSelectionBack)
{
    for (const bool otherTool : {true, false}) {
        choose("Select");
        frame.setup_.SelectionShape = SelectionShape::Polygon;
        document.Region.setRegion(Region::rectangle(2, 2, 9, 9));
        drag({{10, 10}, {30, 10}});
        EXPECT_TRUE(selection().isEmpty());
        tools->toolChosen();
        EXPECT_EQ(tools->ToolPoints().size(), 4u) << "the same tool chosen again";
        asked();
        if (otherTool)
            choose("Brush");
        else
            frame.setup_.SelectionShape = SelectionShape::Ellipse;
        tools->toolChosen();
        EXPECT_EQ(asked().substr(0, 6), "hide 2");
        EXPECT_EQ(rects(), (Words{2, 2, 9, 9}));
        EXPECT_EQ(frame.status[Panel::Hint], "");
    }
}

TEST_F(SelectTool, AnyGestureCanBeDroppedWithWhatItChanged)
{
    const struct {
        const char* tool;
        std::int16_t shape;
        bool released;
    } rows[] = {{"Select", SelectionShape::Rectangle, false},   {"Select", SelectionShape::Ellipse, false},
                {"Select", SelectionShape::Polygon, false},     {"Select", SelectionShape::Polygon, true},
                {"Select", SelectionShape::Pixel, false},       {"SelectionMove", SelectionShape::Rectangle, false},
                {"GetColor", SelectionShape::Rectangle, false}, {"Gradient", SelectionShape::Rectangle, false},
                {"Shape", SelectionShape::Rectangle, false},    {"Text", SelectionShape::Rectangle, false}};
    const std::pair<std::string, std::function<void()>> ways[] = {
        {"Escape", [&] { EXPECT_TRUE(tools->keyDown(Tools::Escape)); }},
        {"the right button", [&] { tools->release(Tools::Right, 20, 30); }},
        {"another document", [&] { tools->deactivated(); }},
    };
    frame.toolStores_.text = randomBits(10, 8, 4);
    const Bits before = document.bits();
    for (const auto& row : rows)
        for (const auto& [name, drop] : ways) {
            if (row.released && name == "another document") continue; // a polygon waits until it is active again
            SCOPED_TRACE(row.tool + std::to_string(row.shape) + " by " + name);
            choose(row.tool);
            frame.setup_.SelectionShape = row.shape;
            frame.setup_.ForeColor = 0x123456;
            document.Region.setRegion(Region::rectangle(2, 2, 9, 9));
            press({4, 4});
            move({20, 30});
            if (row.released) release({20, 30});
            EXPECT_NE(frame.status[Panel::Hint], "");
            drop();
            EXPECT_EQ(frame.status[Panel::Hint], "");
            EXPECT_FALSE(tools->ToolDown());
            move({25, 35}); // the left button is still down
            release({25, 35});
            EXPECT_EQ(rects(), (Words{2, 2, 9, 9}));
            EXPECT_EQ(frame.setup_.ForeColor, 0x123456);
            EXPECT_TRUE(sameBits(before, document.bits()));
            EXPECT_FALSE(tools->keyDown(Tools::Escape)) << "nothing under way: somebody else's key";
        }
    EXPECT_EQ(frame.snapshots, 0);
}

struct MoveTool : ToolFixture {
    MoveTool()
    {
        choose("SelectionMove");
        document.Region.CreateRect(10, 10, 20, 20, Combine::Or, true);
    }
};

TEST_F(MoveTool, OnlyTheOutlineMovesAndIsCutAtTheRelease)
{
    press({15, 15});
    move({-1, 18});
    EXPECT_EQ(rectanglesOf(selection()), (Words{-6, 13, 4, 23}));
    EXPECT_EQ(asked(), "activate; image; outline; image; outline");
    release({-1, 18});
    EXPECT_EQ(rectanglesOf(selection()), (Words{0, 13, 4, 23}));
    EXPECT_EQ(frame.snapshots, 0);
    EXPECT_TRUE(frame.filter_.bits() == document.bits());
    drag({{30, 30}, {40, 40}}); // outside of the selection
    EXPECT_EQ(rectanglesOf(selection()), (Words{0, 13, 4, 23}));
    EXPECT_EQ(surface.pointer, Pointer::Sizing);
}

TEST_F(MoveTool, ContentIsCopiedAlongAndCommittedAtTheRelease)
{
    frame.setup_.MoveSelection = false;
    frame.setup_.SelectionPressure = 100;
    document.Region.CreateEllipse(8, 8, 24, 22, Combine::Or, true); // not a rectangle: the mask matters
    const Bits before = document.bits();
    const Region shape = selection();
    press({15, 15});
    move({40, 30});
    EXPECT_EQ(asked(), "activate; stop; image; wait; waited; repaint; repaint");
    EXPECT_TRUE(frame.filter_.bits() == before);
    const auto wanted = [&](int dx, int dy) {
        Bits bits = before;
        for (int y = 0; y < 50; ++y)
            for (int x = 0; x < 60; ++x)
                if (shape.contains(x - dx, y - dy))
                    for (int c = 0; c < 3; ++c) bits.at(x, y).c[c] = before.at(x - dx, y - dy).c[c];
        return bits;
    };
    EXPECT_TRUE(sameBits(wanted(25, 15), document.bits())); // the selection doesn't limit the paste, the picture does
    move({-2, 10});
    EXPECT_TRUE(sameBits(wanted(-17, -5), document.bits()));
    frame.toolStores_.useMovePressure = true;
    frame.toolStores_.movePressure = 0;
    move({20, 20});
    EXPECT_TRUE(sameBits(before, document.bits()));
    frame.toolStores_.useMovePressure = false;
    move({40, 30});
    release({40, 30});
    EXPECT_EQ(frame.snapshots, 1);
    EXPECT_TRUE(sameBits(wanted(25, 15), frame.filter_.bits()));
    EXPECT_EQ(selection(), shape);
}

TEST_F(MoveTool, SpaceFixesTheContentAndGoesOnUnderTheButton)
{
    frame.setup_.MoveSelection = false;
    frame.setup_.SelectionPressure = 100;
    const Bits before = document.bits();
    EXPECT_TRUE(tools->keyDown(Tools::Space));
    EXPECT_EQ(frame.snapshots, 0) << "without the button there is nothing to fix";
    EXPECT_TRUE(sameBits(before, frame.filter_.bits()));
    press({15, 15});
    move({35, 15});
    tools->keyDown(Tools::Space);
    EXPECT_EQ(frame.snapshots, 1);
    move({15, 35});
    release({15, 35});
    EXPECT_EQ(document.bits().at(15, 35).c[0], before.at(15, 15).c[0]);
    EXPECT_EQ(document.bits().at(35, 15).c[0], before.at(15, 15).c[0]);
}

TEST_F(MoveTool, ASelectionFarOutsideHasNoContent)
{
    frame.setup_.MoveSelection = false;
    document.Region.Offset(1000, 0);
    drag({{1015, 15}, {20, 20}});
    EXPECT_EQ(frame.snapshots, 0);
    document.Region.Offset(-1005, 0); // half outside: the point under the pointer is kept
    frame.setup_.SelectionPressure = 100;
    const Bits before = document.bits();
    drag({{8, 15}, {28, 15}});
    EXPECT_EQ(document.bits().at(28, 15).c[1], before.at(8, 15).c[1]);
    EXPECT_EQ(document.bits().at(25, 15).c[1], before.at(5, 15).c[1]);
}

TEST_F(MoveTool, ADragBelongsToTheToolThatBeganIt)
{
    press({15, 15});
    choose("Select");
    move({16, 15});
    release({16, 15});
    EXPECT_EQ(rectanglesOf(selection()), (Words{11, 10, 21, 20}));
}

/// The release went elsewhere, such as to another window.
TEST_F(MoveTool, APressEndsADragWhoseReleaseNeverCame)
{
    const Bits before = document.bits();
    choose("Shape");
    press({10, 10});
    move({40, 30});
    EXPECT_FALSE(sameBits(before, document.bits()));
    choose("SelectionMove");
    press({1, 1}); // beside the selection
    EXPECT_TRUE(sameBits(before, document.bits()));
    release({1, 1});
    EXPECT_EQ(frame.snapshots, 0);
}

TEST_F(MoveTool, WhatWaitedForALostDragRunsBeforeTheNextPress)
{
    frame.workspace_.held = [this](const Document&) { return tools->ToolDown(); };
    choose("Shape");
    press({10, 10});
    move({40, 30});
    frame.workspace_.change(document.handle(), {[](Document& draft, cBitFilter&) { draft.edit().at(0, 0) = {}; }});
    press({20, 20});
    EXPECT_FALSE(tools->ToolDown()) << "the change is under way";
    frame.settle();
    EXPECT_EQ(document.bits().at(0, 0), Pixel());
    EXPECT_TRUE(sameBits(document.bits(), frame.filter_.bits()));
    EXPECT_EQ(frame.snapshots, 1);
}

TEST_F(MoveTool, ArrowKeysMoveThePositionOnly)
{
    const Bits before = document.bits();
    press({15, 15});
    release({15, 15});
    const Tools::Key keys[] = {Tools::ArrowLeft, Tools::ArrowUp, Tools::ArrowRight, Tools::ArrowDown};
    const char* wanted[] = {"X:14 Y:15", "X:14 Y:14", "X:15 Y:14", "X:15 Y:15"};
    for (int i = 0; i < 4; ++i) {
        EXPECT_TRUE(tools->keyDown(keys[i]));
        EXPECT_EQ(frame.status[Panel::Pos], wanted[i]);
    }
    EXPECT_EQ(rectanglesOf(selection()), (Words{10, 10, 20, 20}));
    EXPECT_TRUE(document.bits() == before);
}

TEST_F(MoveTool, ADocumentThatClosesInAPressIsLetGo)
{
    surface.onActivate = [this] { tools.reset(); };
    Tools* gone = tools.get();
    gone->press(Tools::Left, 12, 12);
    EXPECT_EQ(tools, nullptr);
}

TEST_F(MoveTool, WithoutAPictureNothingHappens)
{
    surface.onActivate = [this] { document.Clear(); };
    press({15, 15}); // it has just been cleared
    EXPECT_FALSE(tools->ToolDown());
    surface.onActivate = nullptr;
    open(randomBits(60, 50, 3));
    press({15, 15});
    document.Clear();
    asked();
    move({16, 16});
    release({16, 16});
    press({15, 15});
    EXPECT_FALSE(tools->keyDown(Tools::ArrowLeft));
    EXPECT_FALSE(tools->keyUp(Tools::Ctrl));
    EXPECT_EQ(asked(), "");
    EXPECT_FALSE(tools->ToolDown());
}

} // namespace
} // namespace velara
