#include "ui/geometry/fNew.h"
#include "seams/sizeText.h"
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

namespace velara {

namespace {

constexpr const char* kSizes[] = {"240 x 320", "320 x 240", "480 x 640",  "640 x 480",
                                  "600 x 800", "800 x 600", "768 x 1024", "1024 x 768"};

/// The list of sizes in this run, including typed ones.
QStringList& sizeList()
{
    static QStringList list(std::begin(kSizes), std::end(kSizes));
    return list;
}

/// The size last used in this run.
QSize& lastSize()
{
    static QSize size(640, 480);
    return size;
}

} // namespace

fNew::fNew(Platform& platform, QWidget* parent) : fGeometry("fNew", tr("New"), platform, parent), sizes_(new QComboBox)
{
    named(sizes_, "cbDefault", tr("Standard sizes"))->addItem(tr("<Custom>"));
    sizes_->addItems(sizeList());
    auto* label = new QLabel(tr("Standard sizes"));
    label->setBuddy(sizes_);
    grid().addWidget(label, 0, 0);
    grid().addWidget(sizes_, 0, 1);

    auto* custom = new QGroupBox(tr("Custom:"));
    fields_ = new fSizeFields(tr("&Keep proportions"), lastSize().width(), lastSize().height(), 0);
    (new QVBoxLayout(custom))->addWidget(fields_);
    grid().addWidget(custom, 1, 0, 1, 2);
    addButtons("cmdOK", "cmdCancel");

    sizes_->setCurrentText(sizeText({widthValue(), heightValue()}));
    connect(sizes_, &QComboBox::textActivated, this, [this](const QString& text) {
        if (const QSize size = sizeOf(text); !size.isEmpty()) fields_->set(size.width(), size.height());
    });
    connect(fields_, &fSizeFields::changed, this, [this] {
        const int known = sizes_->findText(sizeText({widthValue(), heightValue()}));
        sizes_->setCurrentIndex(std::max(known, 0));
    });
}

Job fNew::job() const
{
    return [w = widthValue(), h = heightValue()](Document& document, cBitFilter& filter) {
        document.takePicture(Bits(w, h));
        document.handTo(filter);
    };
}

void fNew::accept()
{
    if (!valid()) return;
    lastSize() = {widthValue(), heightValue()};
    const QString text = sizeText({widthValue(), heightValue()});
    if (!sizeList().contains(text)) sizeList().append(text);
    QDialog::accept();
}

} // namespace velara
