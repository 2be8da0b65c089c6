#include "ui/geometry/fResolution.h"
#include "commands/recipe/stepText.h"
#include "document/resizing.h"
#include <QLabel>
#include <QRadioButton>

namespace velara {

namespace {

constexpr struct Resolution {
    const char *name, *caption;
    int width, height;
} kResolutions[] = {
    // clang-format off
    {"o480",  "480 x 340",   480, 340},
    {"o340",  "340 x 220",   340, 220},
    {"o640",  "640 x 480",   640, 480},
    {"o720a", "720 x 480",   720, 480},
    {"o720b", "720 x 576",   720, 576},
    {"o800",  "800 x 600",   800, 600},
    {"o1024", "1024 x 768", 1024, 768},
    // clang-format on
};

} // namespace

fResolution::fResolution(Platform& platform, const QString& ofFile, QWidget* parent)
    : fGeometry("fResolution", tr("Resolution"), platform, parent), sizes_(new QButtonGroup(this)),
      smooth_(named(new QCheckBox(tr("Anti-Alias")), "chkAnti", tr("Anti-Alias")))
{
    int row = 0;
    for (const Resolution& r : kResolutions) {
        auto* button = named(new QRadioButton(r.caption), r.name, r.caption);
        sizes_->addButton(button, row);
        grid().addWidget(button, row % 4, row / 4);
        ++row;
    }
    sizes_->button(2)->setChecked(true);
    smooth_->setChecked(true);
    grid().addWidget(smooth_, 4, 0, 1, 2);
    if (!ofFile.isEmpty()) grid().addWidget(named(new QLabel(tr("File: ") + ofFile), "lblOfFile"), 5, 0, 1, 2);
    addButtons("CmdOK", "Command2", tr("OK"), tr("Exit"));
}

Job fResolution::job() const
{
    const Resolution& r = kResolutions[sizes_->checkedId()];
    return [r, smooth = smooth_->isChecked()](Document& document, cBitFilter& filter) {
        resizeImage(document, filter, r.width, r.height, smooth);
    };
}

QString fResolution::words() const
{
    const Resolution& r = kResolutions[sizes_->checkedId()];
    return resizeText(r.width, r.height, smooth_->isChecked());
}

} // namespace velara
