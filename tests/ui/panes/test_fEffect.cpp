// The pane of the text tool: effects on the active document at a small amount.
#include "commands/effects.h"
#include "support/RecordingFrame.h"
#include "support/filterOf.h"
#include "support/pictures.h"
#include "tools/toolRows.h"
#include "ui/panes/fEffect.h"
#include <QtTest>
#include <QtWidgets>

namespace velara {

TEST(FEffectTest, RunsTheChosenEffectAtItsAmount)
{
    RecordingFrame frame;
    QTemporaryDir temp;
    Document document(temp.path(), 1);
    const Bits before = randomBits(30, 20, 5);
    document.takePicture(before);
    FEffect pane(frame, "FEffect", findTool(u"Text")->pane);
    auto* list = pane.findChild<QListWidget*>("lstEffects");
    auto* amount = pane.findChild<QSlider*>("sbAmount");
    const auto* shown = pane.findChild<QSpinBox*>("lblsbAmount");
    EXPECT_EQ(kEffects, list->count());
    EXPECT_EQ("Emboss", list->currentItem()->text());
    EXPECT_EQ("5%", shown->text());
    pane.findChild<QPushButton*>("cmdEffect")->click(); // no document: nothing
    frame.document = &document;
    amount->setValue(12);
    EXPECT_EQ("12%", shown->text());
    list->setCurrentRow(7 + 1);
    pane.findChild<QPushButton*>("cmdEffect")->click();
    EXPECT_TRUE(sameBits(run("ENGRAVE", {12}, before, document.Region.working()), document.bits()));
    EXPECT_EQ(1, frame.logged("step"));
    pane.findChild<QSlider*>("sbTextOpacity")->setValue(40);
    EXPECT_EQ(40, frame.setup_.ToolOpacity);
}

} // namespace velara
