// The layers dialog, used as a user does: real presses, drags and keys on the canvas, then the result in the document.
#include "support/RecordingFrame.h"
#include "support/pictures.h"
#include "support/ui/WindowTest.h"
#include "ui/compose/fLayerCanvas.h"
#include "ui/compose/fLayers.h"
#include "ui/widgets/ActiveComposer.h"
#include "ui/widgets/fColorButton.h"

namespace velara {
namespace {

constexpr int kWidth = 300, kHeight = 200;

struct LayersDialogTest : WindowTest {
    RecordingFrame frame;
    QTemporaryDir temp;
    Bits picture = randomBits(kWidth, kHeight, 3);
    DocumentHandle document = frame.open(picture).handle();
    QPointer<fLayers> dialog;

    LayersDialogTest()
    {
        frame.setup_.ForeColor = 0x0000FF;
        dialog = new fLayers(frame, document);
        used = dialog;
        dialog->show();
        QCoreApplication::processEvents();
        find<QComboBox>("Cs")->setCurrentText("11"); // a character is 5 wide, a line 13 high
    }
    ~LayersDialogTest() override { delete dialog; }

    QWidget* canvas() { return find("picImage"); }
    QRect shape(int index) { return find(QString("lblShape_%1").arg(index))->geometry(); }
    int layer(QPoint at, const char* text)
    {
        QTest::mouseClick(canvas(), Qt::LeftButton, {}, at);
        QTest::keyClicks(canvas(), text);
        return static_cast<fLayerCanvas*>(canvas())->selected();
    }
    static void drag(QWidget* widget, QPoint from, QPoint by)
    {
        const auto send = [&](QEvent::Type type, QPoint at, Qt::MouseButtons held) {
            sendMouse(widget, type, widget->mapFromGlobal(at),
                      type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, held);
        };
        const QPoint start = widget->mapToGlobal(from);
        send(QEvent::MouseButtonPress, start, Qt::LeftButton);
        send(QEvent::MouseMove, start + by / 2, Qt::LeftButton);
        send(QEvent::MouseMove, start + by, Qt::LeftButton);
        send(QEvent::MouseButtonRelease, start + by, {});
    }
    /// These pixels with a text drawn on them.
    Bits printed(Bits on, QPoint at, const QString& text, TextStyle style = {"Other", 11}, Colour ink = 0x0000FF)
    {
        Bits out = on;
        frame.platform_.recordingFonts.draw(out, at.x(), at.y(), {text}, style, ink);
        for (int y = 0; y < kHeight; ++y)
            for (int x = 0; x < kWidth; ++x) out.at(x, y).c[3] = on.at(x, y).c[3];
        return out;
    }
};

TEST_F(LayersDialogTest, OpensWithItsLists)
{
    EXPECT_EQ("Apply Text", dialog->windowTitle());
    const auto* Cs = find<QComboBox>("Cs");
    EXPECT_EQ(32, Cs->count());
    EXPECT_EQ("7 to 69", Cs->itemText(0) + " to " + Cs->itemText(31));
    fLayers again(frame, document->handle());
    used = &again;
    EXPECT_EQ("15 Other", text("Cs") + ' ' + text("cFonts"));
}

TEST_F(LayersDialogTest, TextsAreMergedInTheirOrder)
{
    EXPECT_FALSE(find("lblGrip_0")->isVisible());
    const int first = layer({20, 30}, "hello");
    EXPECT_EQ(2, first);
    EXPECT_EQ(QRect(20, 30, 133, 20), shape(first));
    const int second = layer({200, 120}, "up");
    find<QAbstractButton>("tb_Font_3")->click();
    static_cast<fColorButton*>(find("cp"))->setColour(0x00FF00);
    const int third = layer({20, 150}, "gone");
    click(QString("BT_%1").arg(third));
    EXPECT_FALSE(find(QString("lblShape_%1").arg(third))->isVisible());
    EXPECT_TRUE(sameBits(picture, document->bits())) << "untouched until OK";
    click("CmdOK");
    frame.settle();
    TextStyle bold{"Other", 11, true};
    EXPECT_EQ(3, second);
    EXPECT_TRUE(
        sameBits(printed(printed(picture, {20, 30}, "hello"), {200, 120}, "up", bold, 0x00FF00), document->bits()));
    EXPECT_EQ(1, frame.logged("step"));
}

TEST_F(LayersDialogTest, DraggingMovesAndEveryGripResizes)
{
    const int index = layer({100, 80}, "text");
    QWidget* outline = find(QString("lblShape_%1").arg(index));
    drag(outline, {5, 5}, {-30, 17});
    EXPECT_EQ(QRect(70, 97, 133, 20), shape(index));
    const struct {
        Qt::CursorShape pointer;
        QRect wanted; // after a drag by 6, 4
    } grips[] = {{Qt::SizeFDiagCursor, {76, 101, 127, 16}}, {Qt::SizeVerCursor, {70, 101, 133, 16}},
                 {Qt::SizeBDiagCursor, {70, 101, 139, 16}}, {Qt::SizeHorCursor, {70, 97, 139, 20}},
                 {Qt::SizeFDiagCursor, {70, 97, 139, 24}},  {Qt::SizeVerCursor, {70, 97, 133, 24}},
                 {Qt::SizeBDiagCursor, {76, 97, 127, 24}},  {Qt::SizeHorCursor, {76, 97, 127, 20}}};
    for (int i = 0; i < 8; ++i) {
        QWidget* grip = find(QString("lblGrip_%1").arg(i));
        ASSERT_TRUE(grip->isVisible()) << i;
        EXPECT_EQ(grips[i].pointer, grip->cursor().shape()) << i;
        drag(grip, {4, 4}, {6, 4});
        EXPECT_EQ(grips[i].wanted, shape(index)) << i;
        drag(grip, {4, 4}, {-6, -4});
        EXPECT_EQ(QRect(70, 97, 133, 20), shape(index)) << "and back, " << i;
    }
    drag(find("lblGrip_0"), {4, 4}, {900, 900});
    EXPECT_EQ(QRect(199, 113, 4, 4), shape(index)) << "the other corner stands";
}

TEST_F(LayersDialogTest, GripsStayApartAndInReachWhereverTheLayerGoes)
{
    layer({50, 50}, "a");
    QTest::keyClick(canvas(), Qt::Key_Escape);
    for (const int key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_Left, Qt::Key_Up}) {
        for (int i = 0; i < 60; ++i) QTest::keyClick(canvas(), Qt::Key(key), Qt::ShiftModifier);
        for (int i = 0; i < 8; ++i) {
            const QRect grip = find(QString("lblGrip_%1").arg(i))->geometry();
            EXPECT_TRUE(canvas()->rect().contains(grip)) << i;
            for (int j = 0; j < i; ++j)
                EXPECT_FALSE(grip.intersects(find(QString("lblGrip_%1").arg(j))->geometry())) << i << " and " << j;
        }
    }
}

TEST_F(LayersDialogTest, KeysEditTheTextOrMoveTheLayer)
{
    const int index = layer({50, 50}, "abc");
    const auto keys = [&](std::initializer_list<int> list, Qt::KeyboardModifiers with = {}) {
        for (const int key : list) QTest::keyClick(canvas(), Qt::Key(key), with);
    };
    keys({Qt::Key_Left, Qt::Key_Backspace}); // "ac", the caret behind the a
    for (const int key : {Qt::Key_Tab, Qt::Key_Backtab}) {
        keys({key});
        EXPECT_EQ(canvas(), dialog->focusWidget()) << "a Space would press what had the focus";
    }
    QTest::keyClicks(canvas(), "xy");
    keys({Qt::Key_End, Qt::Key_Return});
    QTest::keyClicks(canvas(), "d");
    keys({Qt::Key_Up, Qt::Key_Home, Qt::Key_Delete}); // "xyc", "d"
    Bits wanted = printed(printed(picture, {50, 50}, "xyc"), {50, 63}, "d");
    EXPECT_TRUE(sameBits(wanted, dialog->asTyped().Blend()));
    EXPECT_EQ(26, shape(index).height()) << "two lines";
    keys({Qt::Key_Right, Qt::Key_Down});
    keys({Qt::Key_Left}, Qt::ShiftModifier);
    EXPECT_EQ(QPoint(41, 51), shape(index).topLeft());
    QGuiApplication::clipboard()->setText("p\nq");
    keys({Qt::Key_V}, Qt::ControlModifier);
    QInputMethodEvent composing(QString("z"), {}), committed;
    committed.setCommitString("w");
    QCoreApplication::sendEvent(canvas(), &composing);
    QCoreApplication::sendEvent(canvas(), &committed);
    keys({Qt::Key_Escape});
    wanted = printed(printed(picture, {41, 51}, "p"), {41, 64}, "qwxyc");
    EXPECT_TRUE(sameBits(printed(wanted, {41, 77}, "d"), dialog->asTyped().Blend()));
    keys({Qt::Key_Delete});
    EXPECT_FALSE(dialog->findChild<QWidget*>(QString("lblShape_%1").arg(index)));
    EXPECT_TRUE(sameBits(picture, dialog->asTyped().Blend()));
    EXPECT_TRUE(dialog->isVisible()) << "Esc cost nothing";
}

TEST_F(LayersDialogTest, TextIsMarkedCopiedAndReplacedAsInAnyEditor)
{
    const int index = layer({20, 30}, "one two three");
    auto* clipboard = QGuiApplication::clipboard();
    const auto merged = [&](const char* text) {
        return sameBits(printed(picture, {20, 30}, text), dialog->asTyped().Blend());
    };
    QWidget* outline = find(QString("lblShape_%1").arg(index));
    const auto press = [&](int key, Qt::KeyboardModifiers with = {}) { QTest::keyClick(canvas(), Qt::Key(key), with); };
    QTest::mouseDClick(outline, Qt::LeftButton, {}, {28, 8}); // "two": a character is 5 wide
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ("two", clipboard->text());
    QTest::keyClicks(canvas(), "2");
    EXPECT_TRUE(merged("one 2 three"));
    QTest::mouseClick(outline, Qt::LeftButton, {}, {21, 8}); // puts the caret before the 2
    press(Qt::Key_End, Qt::ShiftModifier);
    press(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ("2 three", clipboard->text());
    press(Qt::Key_Home);
    press(Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_TRUE(merged("2 three"));
    QTest::mouseClick(outline, Qt::LeftButton, {}, {12, 8});
    drag(outline, {12, 8}, {15, 0}); // marks "thr"
    press(Qt::Key_Delete);
    press(Qt::Key_Backspace, Qt::ControlModifier);
    EXPECT_TRUE(merged("ee"));
    press(Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(canvas(), "all");
    EXPECT_TRUE(merged("all"));
}

TEST_F(LayersDialogTest, EveryStepIsUndoneAndRedone)
{
    std::vector<Bits> states{picture};
    const auto stand = [&] { states.push_back(dialog->asTyped().Blend()); };
    const int index = layer({20, 30}, "ab");
    stand();
    find<QAbstractButton>("tb_Font_3")->click();
    stand();
    drag(find(QString("lblShape_%1").arg(index)), {2, 2}, {9, 5});
    stand();
    drag(find("lblGrip_3"), {4, 4}, {-125, 0});
    stand();
    canvas()->setFocus();
    QTest::keyClick(canvas(), Qt::Key_Delete);
    stand();
    EXPECT_TRUE(sameBits(picture, states.back()));
    for (std::size_t i = states.size() - 1; i-- > 1;) {
        click("tbOthers_5");
        EXPECT_TRUE(sameBits(states[i], dialog->asTyped().Blend())) << i;
    }
    EXPECT_TRUE(find<QAbstractButton>("pT_2") && !find<QAbstractButton>("tb_Font_3")->isChecked());
    QTest::keyClick(canvas(), Qt::Key_Z, Qt::ControlModifier); // the letters, then the layer
    QTest::keyClick(canvas(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_FALSE(dialog->findChild<QWidget*>("lblShape_2") || find("tbOthers_5")->isEnabled());
    QTest::keyClick(canvas(), Qt::Key_Y, Qt::ControlModifier);
    for (std::size_t i = 1; i < states.size(); ++i) {
        QTest::keyClick(canvas(), Qt::Key_Y, Qt::ControlModifier);
        EXPECT_TRUE(sameBits(states[i], dialog->asTyped().Blend())) << i;
    }
}

TEST_F(LayersDialogTest, WhatIsComposedIsShownInPlaceAndIsNoStep)
{
    layer({20, 30}, "ab");
    QTest::keyClick(canvas(), Qt::Key_Left);
    const auto compose = [&](const char* text, const char* commit = "") {
        QInputMethodEvent event(text, {{QInputMethodEvent::Cursor, 1, 1, {}}});
        event.setCommitString(commit);
        QCoreApplication::sendEvent(canvas(), &event);
    };
    auto* area = static_cast<fLayerCanvas*>(canvas());
    compose("xyz");
    EXPECT_EQ((std::vector<Rect>{{25, 30, 40, 43}}), area->composed());
    QInputMethodQueryEvent around(Qt::ImSurroundingText);
    QCoreApplication::sendEvent(area, &around);
    EXPECT_EQ("ab", around.value(Qt::ImSurroundingText).toString());
    EXPECT_EQ(QPoint(30, 30), find("Cursor")->pos()) << "within the composition";
    compose("", "q");
    EXPECT_TRUE(sameBits(printed(picture, {20, 30}, "aqb"), dialog->asTyped().Blend()));
    area->step(true);
    EXPECT_TRUE(sameBits(printed(picture, {20, 30}, "ab"), dialog->asTyped().Blend()));
}

TEST_F(LayersDialogTest, ANewTextCanBeSeenAndEveryLayerCaught)
{
    document->setBits(flatBits(kWidth, kHeight, 0, 0, 250)); // nearly the red that texts have
    frame.workspace_.handOver(*document);
    dialog->asTyped();
    auto* area = static_cast<fLayerCanvas*>(canvas());
    layer({290, 100}, "");
    const int index = area->addLayer();
    EXPECT_EQ(0, dialog->asTyped().layer(index).colour);
    EXPECT_EQ(QRect(290, 100, 133, 20), shape(index));
    drag(find("lblGrip_3"), {4, 4}, {-500, 0});
    drag(find("lblGrip_5"), {4, 4}, {0, -500}); // 4 x 4 pixels in a corner
    for (int i = 0; i < 8; ++i) {
        const QRect grip = find(QString("lblGrip_%1").arg(i))->geometry();
        EXPECT_TRUE(area->rect().contains(grip)) << i;
        EXPECT_FALSE(i != 4 && grip.intersects(find("lblGrip_4")->geometry())) << i;
    }
    drag(find(QString("lblShape_%1").arg(index)), {0, 0}, {900, 900});
    EXPECT_EQ(QPoint(kWidth - 4, kHeight - 4), shape(index).topLeft()) << "in sight";
}

TEST_F(LayersDialogTest, TheFontsUsedLastAreOnTopOfTheList)
{
    EXPECT_EQ(2, find<QComboBox>("cFonts")->count());
    layer({10, 10}, "one");
    find<QComboBox>("cFonts")->setCurrentText("Fixed");
    click("CmdOK");
    frame.settle();
    fLayers again(frame, document);
    used = &again;
    auto* fonts = find<QComboBox>("cFonts");
    EXPECT_EQ("Fixed,,Fixed,Other",
              QStringList({fonts->itemText(0), fonts->itemText(1), fonts->itemText(2), fonts->itemText(3)}).join(u','));
    EXPECT_EQ("Other", text("cFonts"));
    EXPECT_EQ("Other", qvariant_cast<QFont>(fonts->itemData(3, Qt::FontRole)).family());
}

TEST_F(LayersDialogTest, ALongTextPastedIsNoHang)
{
    QGuiApplication::clipboard()->setText(QString("word ").repeated(20000));
    layer({1, 1}, "a");
    QTest::keyClick(canvas(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(QRect(1, 1, 297, kHeight - 1), shape(2)) << "as far as the picture reaches";
    EXPECT_LT(frame.platform_.recordingFonts.measures, 20000);
}

TEST_F(LayersDialogTest, ControlsTakeTheSettingsOfTheSelectedLayer)
{
    layer({10, 10}, "one");
    find<QComboBox>("cFonts")->setCurrentText("Fixed");
    find<QComboBox>("Cs")->setCurrentText("21");
    find<QAbstractButton>("tb_Font_4")->click();
    layer({10, 100}, "two");
    find<QComboBox>("Cs")->setCurrentText("9");
    find<QAbstractButton>("tb_Font_1")->click();
    EXPECT_FALSE(find<QAbstractButton>("tb_Font_4")->isChecked());
    find<QAbstractButton>("pT_2")->click();
    EXPECT_EQ("Fixed21", text("cFonts") + text("Cs"));
    EXPECT_TRUE(find<QAbstractButton>("tb_Font_4")->isChecked());
    EXPECT_TRUE(find<QAbstractButton>("pT_2")->isChecked());
    EXPECT_FALSE(find<QAbstractButton>("pT_3")->isChecked());
    const QImage thumbnail = find<QAbstractButton>("pT_2")->icon().pixmap(104, 34).toImage();
    EXPECT_EQ(255, qAlpha(thumbnail.pixel(thumbnail.width() / 2, thumbnail.height() / 2)));
    QTest::mouseClick(find("lblShape_3"), Qt::LeftButton, {}, {3, 3});
    EXPECT_EQ("9", text("Cs"));
}

TEST_F(LayersDialogTest, TheListScrollsWhenItIsLong)
{
    auto* VV = find<QScrollBar>("VV");
    EXPECT_FALSE(VV->isEnabled());
    for (int i = 0; i < 15; ++i) find<QAbstractButton>("tbOthers_1")->click();
    EXPECT_TRUE(VV->isEnabled());
    EXPECT_EQ(VV->maximum(), VV->value()) << "the newest is seen";
    for (int index = 2; index < 16; ++index) {
        find<QAbstractButton>(QString("pT_%1").arg(index))->click();
        find<QAbstractButton>("tbOthers_2")->click();
    }
    EXPECT_FALSE(VV->isEnabled());
}

TEST_F(LayersDialogTest, WhatIsChangedBehindItIsNotLost)
{
    layer({20, 30}, "hello");
    const Bits other = randomBits(kWidth, kHeight, 99);
    document->setBits(other);
    frame.workspace_.handOver(*document);
    click("CmdOK");
    frame.settle();
    EXPECT_TRUE(sameBits(printed(other, {20, 30}, "hello"), document->bits()));
}

TEST_F(LayersDialogTest, SendsTheMergedPictureOn)
{
    layer({20, 30}, "hello");
    controlOf<QAction>(*find<QToolButton>("tbOthers_4")->menu(), "mnuSend_2")->trigger();
    frame.settle();
    EXPECT_TRUE(sameBits(printed(picture, {20, 30}, "hello"), document->bits()));
    EXPECT_EQ("word: IMAGECOLORDEPTH", frame.log.back());
    EXPECT_TRUE(!dialog || !dialog->isVisible());
}

TEST_F(LayersDialogTest, AsksBeforeItClosesWithTextsThatAreNotMerged)
{
    const std::string question = "ask: Velara Studio: /a.png\nThe texts are not in the image yet.\n"
                                 "Do you want to merge them ?";
    document->file.path = "/a.png";
    frame.setup_.AskToSave = false; // concerns documents only
    find<QAbstractButton>("tbOthers_1")->click();
    EXPECT_FALSE(document->waitingWork) << "nothing was typed";
    const auto close = [&](std::optional<QString> answer) {
        frame.platform_.answers = {answer};
        click("CmdCancel");
    };
    layer({20, 30}, "hello");
    EXPECT_TRUE(document->waitingWork);
    close({});
    EXPECT_EQ(question, frame.platform_.log.back());
    EXPECT_FALSE(ActiveComposer::unload()) << "cancelled again";
    EXPECT_TRUE(dialog->isVisible() && dialog->hasTexts() && document->waitingWork);
    close("no");
    EXPECT_FALSE((dialog && dialog->isVisible()) || document->waitingWork);
    EXPECT_TRUE(sameBits(picture, document->bits()));
    delete dialog;

    used = dialog = new fLayers(frame, document);
    dialog->show();
    layer({20, 30}, "hello");
    close("yes");
    EXPECT_FALSE(sameBits(picture, document->bits()));
    EXPECT_EQ(1, frame.logged("step"));
    EXPECT_FALSE((dialog && dialog->isVisible()) || document->waitingWork);
}

TEST_F(LayersDialogTest, ClosesWithItsDocument)
{
    layer({20, 30}, "hello");
    frame.workspace_.close(document);
    frame.document = nullptr;
    QTest::keyClicks(canvas(), "still typing");
    EXPECT_TRUE(comes([&] { return !dialog || !dialog->isVisible(); }));
}

} // namespace
} // namespace velara
