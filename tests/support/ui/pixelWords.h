// The command words that change pixels, and what a user does in the dialogs that some of them open.
#pragma once
#include "commands/vocabulary.h"
#include <QtWidgets>
#include <algorithm>

namespace velara {

/// Words of the windows that change pixels.
constexpr std::string_view kWindowWords[] = {"IMAGESIZE",       "CANVASSIZE",    "IMAGEORIENTATION", "IMAGEROTATE",
                                             "IMAGERESOLUTION", "IMAGETEXTURES", "IMAGECOLORDEPTH",  "CUT"};

inline bool changesPixels(const CommandWord& word)
{
    const auto is = [&](auto... kinds) { return ((word.kind == kinds) || ...); };
    return is(WordKind::Step, WordKind::Preset, WordKind::Dialog, WordKind::Size) ||
           std::ranges::find(kWindowWords, word.word) != std::end(kWindowWords);
}

/// Sliders to three quarters, boxes to the other state, lists to the second entry; a small size.
inline void moveEverything(QWidget& dialog)
{
    for (auto* slider : dialog.findChildren<QSlider*>())
        slider->setValue((slider->minimum() + 3 * slider->maximum()) / 4);
    for (auto* box : dialog.findChildren<QCheckBox*>()) box->toggle();
    for (auto* list : dialog.findChildren<QComboBox*>()) list->setCurrentIndex(1);
    if (auto* width = dialog.findChild<QLineEdit*>("txtW")) width->setText("31");
    if (auto* smallest = dialog.findChild<QRadioButton*>("o340")) smallest->click();
}

inline void clickOk(const QWidget& dialog)
{
    for (const char* name : {"cmdOK", "CmdOK"})
        if (auto* ok = dialog.findChild<QAbstractButton*>(name)) return ok->click();
}

} // namespace velara
