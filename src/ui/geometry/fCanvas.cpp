#include "ui/geometry/fCanvas.h"
#include "commands/recipe/stepText.h"
#include "document/resizing.h"
#include "pixels/images.h"
#include "pixels/numbers.h"
#include "ui/widgets/fPicture.h"
#include "ui/widgets/inputs/Spoken.h"
#include "ui/widgets/inputs/named.h"
#include <QGroupBox>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QToolButton>
#include <QVBoxLayout>

namespace velara {

namespace {

constexpr QSize kBox{220, 180};

constexpr struct Defined {
    const char* entry;
    int tenths; // of the size, on each side
} kDefined[] = {{"1 +", 1}, {"2 +", 2}, {"3 +", 3}, {"1 -", -1}, {"2 -", -2}, {"3 -", -3}};

constexpr int kMiddle = 4;

} // namespace

fCanvasView::fCanvasView(const Bits& picture)
    : small_(fittingCopy(picture, kBox)), size_(picture.width(), picture.height()), image_(new QWidget(this))
{
    setSpokenRole(*this, QAccessible::Canvas);
    setSpokenRole(*image_, QAccessible::Graphic);
    setObjectName("iCnv");
    setAccessibleName(tr("Canvas"));
    setFixedSize(kBox);
    named(image_, "iImg", tr("Picture on the canvas"));
    image_->setCursor(Qt::SizeAllCursor);
    image_->installEventFilter(this);
}

void fCanvasView::show(QSize canvas, QPoint place)
{
    canvas_ = canvas;
    place_ = place;
    layOut();
}

/// The scale fits the canvas and the picture side by side at their largest, so that it is constant during a drag.
void fCanvasView::layOut()
{
    const double wide = std::max({canvas_.width(), size_.width(), 1}),
                 high = std::max({canvas_.height(), size_.height(), 1});
    scale_ = std::min({(kBox.width() - 20) / wide, (kBox.height() - 20) / high, 1.0});
    const QRect canvas = canvasOnScreen();
    const auto scaled = [this](int v) { return static_cast<int>(std::lround(v * scale_)); };
    image_->setGeometry(canvas.x() + scaled(place_.x()), canvas.y() + scaled(place_.y()),
                        std::max(scaled(size_.width()), 1), std::max(scaled(size_.height()), 1));
    update();
    image_->update();
}

QRect fCanvasView::canvasOnScreen() const
{
    const QSize size((QSizeF(canvas_) * scale_).toSize().expandedTo({1, 1}));
    return {{(width() - size.width()) / 2, (height() - size.height()) / 2}, size};
}

void fCanvasView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Mid));
    painter.fillRect(canvasOnScreen(), Qt::black);
}

bool fCanvasView::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Paint) {
        QPainter painter(image_);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(image_->rect(), imageOver(small_));
        // Parts outside of the canvas will be cropped: shown pale.
        QRegion outside(image_->rect());
        outside -= canvasOnScreen().translated(-image_->pos());
        for (const QRect& part : outside) painter.fillRect(part, QColor(128, 128, 128, 190));
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRect(image_->rect().adjusted(0, 0, -1, -1));
        return true;
    }
    auto* mouse = dynamic_cast<QMouseEvent*>(event);
    if (mouse && event->type() == QEvent::MouseButtonPress) {
        grabbed_ = mouse->globalPosition();
        grabbedPlace_ = place_;
        return true;
    }
    if (mouse && event->type() == QEvent::MouseMove && mouse->buttons() & Qt::LeftButton) {
        const QPointF moved = (mouse->globalPosition() - grabbed_) / scale_;
        place_ = grabbedPlace_ + moved.toPoint();
        layOut();
        emit dragged(place_);
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

fCanvas::fCanvas(Platform& platform, const Bits& picture, QWidget* parent)
    : fGeometry("fCanvas", tr("Canvas size"), platform, parent), size_(picture.width(), picture.height()),
      fields_(new fSizeFields(tr("Proportions"), picture.width(), picture.height(),
                              double(picture.width()) / picture.height())),
      anchors_(new QButtonGroup(this)), view_(new fCanvasView(picture))
{
    auto* list = named(new QComboBox, "cbPreDef", tr("Defined"));
    for (const Defined& d : kDefined) list->addItem(d.entry);
    list->setCurrentIndex(-1);
    list->setPlaceholderText(tr("Choose a step"));
    auto* label = new QLabel(tr("Defined"));
    label->setBuddy(list);

    grid().addWidget(view_, 0, 0, 4, 1);
    grid().addWidget(fields_, 0, 1, 1, 2);
    grid().addWidget(label, 1, 1);
    grid().addWidget(list, 1, 2);
    grid().addWidget(makeAnchors(), 2, 1, 1, 2, Qt::AlignHCenter);
    grid().addWidget(makeHelp(), 4, 0, 1, 3);
    addButtons("cmdOK", "cmdCancel");

    connect(list, &QComboBox::activated, this, &fCanvas::defined);
    connect(fields_, &fSizeFields::changed, this, &fCanvas::placeByAnchor);
    connect(anchors_, &QButtonGroup::idClicked, this, &fCanvas::placeByAnchor);
    connect(view_, &fCanvasView::dragged, this, [this](QPoint place) {
        place_ = place;
        anchors_->setExclusive(false); // none of them applies now
        if (anchors_->checkedButton()) anchors_->checkedButton()->setChecked(false);
        anchors_->setExclusive(true);
    });
    placeByAnchor();
}

QWidget* fCanvas::makeAnchors()
{
    static constexpr struct {
        const char *sign, *name;
    } kAnchors[] = {{"↖", QT_TR_NOOP("Upper left")}, {"↑", QT_TR_NOOP("Top")},    {"↗", QT_TR_NOOP("Upper right")},
                    {"←", QT_TR_NOOP("Left")},       {"•", QT_TR_NOOP("Middle")}, {"→", QT_TR_NOOP("Right")},
                    {"↙", QT_TR_NOOP("Lower left")}, {"↓", QT_TR_NOOP("Bottom")}, {"↘", QT_TR_NOOP("Lower right")}};
    auto* box = new QWidget;
    box->setLayoutDirection(Qt::LeftToRight); // they are places on the picture
    auto* grid = new QGridLayout(box);
    grid->setSpacing(1);
    grid->setContentsMargins(0, 0, 0, 0);
    for (int i = 0; i < 9; ++i) {
        auto* button = named(new QToolButton, "", tr(kAnchors[i].name));
        button->setObjectName(QStringLiteral("anchor_%1").arg(i));
        button->setText(kAnchors[i].sign);
        button->setToolTip(tr(kAnchors[i].name));
        button->setCheckable(true);
        const int side = std::max(28, button->sizeHint().height());
        button->setFixedSize(std::max(side, button->sizeHint().width()), side);
        anchors_->addButton(button, i);
        grid->addWidget(button, i / 3, i % 3);
    }
    anchors_->button(kMiddle)->setChecked(true);
    return box;
}

QWidget* fCanvas::makeHelp()
{
    auto* frame = new QGroupBox(tr("What is Canvas Size?"));
    auto* text =
        new QLabel(tr("The canvas is the area that the picture stands on. A larger canvas adds black room around "
                      "the picture, a smaller one cuts its edges; the pixels themselves keep their size. Drag the "
                      "picture, or press an arrow, to say where it stands."));
    text->setWordWrap(true);
    text->setMinimumWidth(380);
    (new QVBoxLayout(frame))->addWidget(text);
    return frame;
}

void fCanvas::defined(int index)
{
    const auto grown = [&](int size) { return size + 2 * roundEven(size * kDefined[index].tenths / 10.0); };
    fields_->set(grown(fields_->widthValue()), grown(fields_->heightValue()));
}

void fCanvas::placeByAnchor()
{
    const QSize canvas(fields_->widthValue(), fields_->heightValue());
    if (const int anchor = anchors_->checkedId(); anchor >= 0)
        place_ = {(canvas.width() - size_.width()) * (anchor % 3) / 2,
                  (canvas.height() - size_.height()) * (anchor / 3) / 2};
    view_->show(canvas, place_);
}

Job fCanvas::job() const
{
    return [w = fields_->widthValue(), h = fields_->heightValue(), place = place_](
               Document& document, cBitFilter& filter) { resizeCanvas(document, filter, w, h, place.x(), place.y()); };
}

QString fCanvas::words() const
{
    return callText("CanvasSize", {fields_->widthValue(), fields_->heightValue(), place_.x(), place_.y()});
}

} // namespace velara
