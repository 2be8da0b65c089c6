#include "ui/panes/fGradient.h"
#include "document/road/Frame.h"
#include "engine/cBitFilter.h"
#include "pixels/RuntimeError.h"
#include "ui/widgets/inputs/named.h"
#include "ui/widgets/viewRender.h"
#include <QLabel>
#include <QVBoxLayout>

namespace velara {

namespace {

constexpr int kWidth = 150, kHeight = 48; // of the preview

/// A checkerboard that shows through transparent parts of the gradient.
Bits squares()
{
    Bits bits(kWidth, kHeight);
    for (int y = 0; y < kHeight; ++y)
        for (int x = 0; x < kWidth; ++x) {
            const std::uint8_t grey = (x / 8 + y / 8) % 2 ? 255 : 204;
            bits.at(x, y) = {{grey, grey, grey, 0}};
        }
    return bits;
}

Bits previewOf(const Setup& s)
{
    cBitFilter filter;
    filter.setBits(squares());
    filter.setBitsRegion(Region::rectangle(0, 0, kWidth, kHeight));
    const Colour first = s.GradientTransparent1 ? -1 : s.GradientColor1;
    const Colour second = s.GradientTransparent2 ? -1 : s.GradientColor2;
    const int y = kHeight / 2;
    if (s.GradientMode == GradientMode::Circular)
        return filter.GradientCircular(kWidth / 2, y, kWidth - 1, y, first, second, s.GradientPressure,
                                       s.GradientFrequency);
    return filter.GradientLinear(0, y, kWidth - 1, y, first, second, s.GradientPressure, s.GradientFrequency);
}

} // namespace

FGradient::FGradient(Frame& frame, const QString& name, std::span<const PaneRow> rows)
    : fPane(frame, name, rows), iGrad_(new QLabel(this))
{
    named(iGrad_, "iGrad", tr("The gradient"));
    iGrad_->setFixedSize(kWidth, kHeight);
    column()->addWidget(iGrad_, 0, Qt::AlignHCenter);
    edited();
}

void FGradient::edited()
try {
    QImage picture(kWidth, kHeight, QImage::Format_RGB32);
    ViewRenderer().render(previewOf(frame().setup()), {}, 0, 0, picture);
    iGrad_->setPixmap(QPixmap::fromImage(picture));
} catch (const RuntimeError&) {
    iGrad_->clear();
}

} // namespace velara
