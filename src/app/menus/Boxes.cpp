#include "app/menus/Boxes.h"
#include "app/menus/Bars.h"
#include "seams/Setup.h"
#include <algorithm>
#include <string_view>

namespace velara {

namespace {

struct BoxRow {
    std::string_view word; // of its item in the menu
    bool Setup::*visible;
    int down; // pixels from the top of the documents to its first place
};

constexpr BoxRow kBoxes[] = {
    {"@COLORBOX", &Setup::ColorBoxVisible, 36},
    {"@TEXTURESBOX", &Setup::TexturesBoxVisible, 0},
    {"@CLIPBOARDBOX", &Setup::ClipboardBoxVisible, 0},
};

} // namespace

Boxes::Boxes(QWidget& frame, const QWidget& sidePane, Setup& setup, Bars& bars)
    : frame_(frame), sidePane_(sidePane), setup_(setup), bars_(bars)
{
}

void Boxes::show(Box which)
{
    QWidget* box = boxes_[which];
    if (!box) return;
    if (!placed_[which]) {
        const int left = frame_.width() - box->width() - sidePane_.width() * 12 / 5;
        const int top = sidePane_.parentWidget()->y() + kBoxes[which].down;
        box->move(frame_.mapToGlobal(QPoint(std::max(0, left), top)));
        placed_[which] = true;
    }
    box->show();
    bars_.mark(kBoxes[which].word, 0, true);
}

void Boxes::toggle(Box which)
{
    bool& visible = setup_.*kBoxes[which].visible;
    visible = !visible;
    QWidget* box = boxes_[which];
    if (visible) {
        show(which);
        if (box) box->activateWindow(); // who asks for it wants to use it
    } else if (box) {
        const QPoint place = box->pos(); // a window manager may place it anew otherwise
        box->hide();
        box->move(place);
    }
    bars_.mark(kBoxes[which].word, 0, visible);
}

void Boxes::showAll()
{
    for (const Box which : {Colours, Textures, Clips, Colours}) // the colours once more: they end up in front
        if (setup_.*kBoxes[which].visible) show(which);
    if (boxes_[Colours]) boxes_[Colours]->raise();
}

void Boxes::bring(Box which)
{
    if (!(setup_.*kBoxes[which].visible)) return toggle(which);
    show(which);
    boxes_[which]->raise();
}

void Boxes::crossed(const QObject* box)
{
    for (int i = 0; i < kCount; ++i)
        if (box == boxes_[std::size_t(i)] && setup_.*kBoxes[i].visible) toggle(Box(i));
}

} // namespace velara
