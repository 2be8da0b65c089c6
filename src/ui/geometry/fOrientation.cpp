#include "ui/geometry/fOrientation.h"
#include "commands/recipe/stepText.h"
#include "document/resizing.h"
#include "ui/widgets/fPicture.h"
#include <QLabel>

namespace velara {

namespace {

constexpr const char* kTurns[] = {
    QT_TRANSLATE_NOOP("velara::fOrientation", "Unchanged"), QT_TRANSLATE_NOOP("velara::fOrientation", "90º left"),
    "180º", QT_TRANSLATE_NOOP("velara::fOrientation", "90º right")}; // the index counts quarter turns

} // namespace

fOrientation::fOrientation(Platform& platform, const Bits& picture, QWidget* parent)
    : fGeometry("fOrientation", tr("Orientation"), platform, parent),
      picture_(fittingCopy(picture, {kPreview.height(), kPreview.height()})),
      turns_(named(new QComboBox, "cbOrientation", tr("Canvas orientation"))),
      vertical_(named(new QCheckBox(tr("Flip &vertical")), "chkFlip_0", tr("Flip vertical"))),
      horizontal_(named(new QCheckBox(tr("Flip &horizontal")), "chkFlip_1", tr("Flip horizontal")))
{
    for (const char* turn : kTurns) turns_->addItem(tr(turn));
    auto* preview = new fPicture("iSrc", tr("Preview"), {kPreview.height(), kPreview.height()});
    auto* label = new QLabel(tr("Canvas orientation"));
    label->setBuddy(turns_);

    grid().addWidget(preview, 0, 0, 6, 1);
    grid().addWidget(label, 0, 1);
    grid().addWidget(turns_, 1, 1);
    grid().addWidget(new QLabel(tr("Flip image")), 2, 1);
    grid().addWidget(vertical_, 3, 1);
    grid().addWidget(horizontal_, 4, 1);
    grid().setRowStretch(5, 1);
    addButtons("cmdOK", "cmdCancel");

    const auto show = [this, preview] { preview->showWhole(tried(picture_, job())); };
    connect(turns_, &QComboBox::currentIndexChanged, this, show);
    connect(vertical_, &QCheckBox::toggled, this, show);
    connect(horizontal_, &QCheckBox::toggled, this, show);
    show();
}

Job fOrientation::job() const
{
    return [turns = turns_->currentIndex(), v = vertical_->isChecked(), h = horizontal_->isChecked()](
               Document& document, cBitFilter& filter) { orientImage(document, filter, turns, v, h); };
}

QString fOrientation::words() const
{
    return callText("Orientation", {turns_->currentIndex(), vertical_->isChecked(), horizontal_->isChecked()});
}

} // namespace velara
