#include "ui/utilities/fPaste.h"
#include "document/Document.h"
#include "document/road/Frame.h"
#include "pixels/fitSize.h"
#include "pixels/images.h"
#include "seams/Platform.h"
#include "seams/Setup.h"
#include "seams/sizeText.h"
#include "ui/widgets/fPicture.h"
#include "ui/widgets/inputs/Spoken.h"
#include "ui/widgets/inputs/fNumberBox.h"
#include "ui/widgets/inputs/named.h"
#include <QBoxLayout>
#include <QEvent>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <algorithm>

namespace velara {

namespace {

constexpr QSize kThumbnail{39, 31};
constexpr int kSharpness = 2; // pixels of a thumbnail per logical pixel, at most
constexpr int kSamples = 4;   // pixels of a clip that are averaged, in each direction
constexpr int kSlotsInView = 5;

QString sizeOfClip(const Bits& bits) { return sizeText({bits.width(), bits.height()}); }

/// Unselected pixels, black in the clip, are of the background colour.
Bits thumbnailOf(const Bits& clip, const QColor& ground)
{
    const QSize box = kThumbnail * kSharpness, dense = box * kSamples;
    const int step = std::max(1, std::min(clip.width() / dense.width(), clip.height() / dense.height()));
    const Pixel colour = {{std::uint8_t(ground.blue()), std::uint8_t(ground.green()), std::uint8_t(ground.red()), 0}};
    Bits thinned((clip.width() + step - 1) / step, (clip.height() + step - 1) / step);
    for (int y = 0; y < thinned.height(); ++y) {
        const Pixel* from = clip.row(y * step);
        Pixel* to = thinned.row(y);
        for (int x = 0; x < thinned.width(); ++x) to[x] = from[x * step].c[3] == 255 ? colour : from[x * step];
    }
    return fittingCopy(thinned, box);
}

/// A thumbnail, centred, with a screen pixel for each of its own where the screen has so many.
class ClipPicture final : public QWidget {
  public:
    explicit ClipPicture(const QString& name)
    {
        setSpokenRole(*this, QAccessible::Graphic);
        named(this, name, fPaste::tr("Picture of the clip"));
        setFixedSize(kThumbnail);
    }
    void setBits(const Bits& bits)
    {
        bits_ = bits;
        update();
    }

  protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), palette().color(QPalette::Mid));
        if (bits_.isNull()) return;
        QRect place({}, fitSize({bits_.width(), bits_.height()}, kThumbnail).expandedTo({1, 1}));
        place.moveCenter(rect().center());
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(place, imageOver(bits_));
    }

  private:
    Bits bits_;
};

} // namespace

fPaste::fPaste(Frame& frame, QWidget* parent) : QWidget(parent, Qt::Tool), frame_(frame)
{
    setObjectName("fPaste");
    setWindowTitle(tr("Clip History"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(6, 6, 6, 6);
    column->addWidget(makeSlots());
    lstImages_ = named(new QListWidget, "lstImages", tr("Clips, oldest first"));
    lstImages_->setToolTip(tr("Enter pastes the clip"));
    lstImages_->setFixedHeight(4 * lstImages_->fontMetrics().lineSpacing() + 12);
    column->addWidget(lstImages_);
    column->addWidget(makeOpacity());
    connect(lstImages_, &QListWidget::itemActivated, this, [this] { paste(lstImages_->currentRow()); });
    connect(lstImages_, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0) area_->ensureWidgetVisible(slots_[std::size_t(row)].pc, 0, 0);
    });
    showClips();
    adjustSize();
    setFixedSize(size());
}

QWidget* fPaste::makeSlots()
{
    auto* inside = new QWidget;
    auto* column = new QVBoxLayout(inside);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    for (int i = 0; i < ClipHistory::kSlots; ++i) {
        slots_[std::size_t(i)] = makeSlot(i);
        column->addWidget(slots_[std::size_t(i)].pc);
    }
    area_ = new QScrollArea;
    area_->setFrameShape(QFrame::NoFrame);
    area_->setWidget(inside);
    area_->setWidgetResizable(true);
    area_->setFocusPolicy(Qt::NoFocus);
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    named(area_->verticalScrollBar(), "V", tr("Scroll the clips"));
    const int slot = slots_[0].pc->sizeHint().height() + column->spacing();
    area_->verticalScrollBar()->setSingleStep(slot);
    area_->setFixedHeight(kSlotsInView * slot - column->spacing());
    area_->setMinimumWidth(inside->sizeHint().width() + area_->verticalScrollBar()->sizeHint().width());
    return area_;
}

fPaste::Slot fPaste::makeSlot(int index)
{
    const QString number = "_" + QString::number(index);
    auto* panel = named(new QFrame, "pc" + number);
    panel->setFrameShape(QFrame::StyledPanel);
    auto* row = new QHBoxLayout(panel);
    row->setContentsMargins(3, 3, 3, 3);
    auto* picture = new ClipPicture("pT" + number);
    auto* button = named(new QPushButton, "BT" + number);
    button->setMinimumWidth(
        button->fontMetrics().horizontalAdvance("    " + tr("Clip %1").arg(QStringLiteral("0000")) + "  "));
    auto* size = named(new QLabel, "lblSize" + number);
    size->setMinimumWidth(size->fontMetrics().horizontalAdvance("00000 x 00000"));
    row->addWidget(picture);
    row->addWidget(button, 1);
    row->addWidget(size);
    connect(button, &QPushButton::clicked, this, [this, index] { paste(index); });
    return {panel, [picture](const Bits& bits) { picture->setBits(bits); }, button, size};
}

QWidget* fPaste::makeOpacity()
{
    auto* panel = new QWidget;
    auto* row = new QHBoxLayout(panel);
    row->setContentsMargins(0, 0, 0, 0);
    auto* caption = new QLabel(tr("Opaque &Intensity"));
    auto* slider = BrSelectionMovePressure_ = new QSlider(Qt::Horizontal);
    named(slider, "BrSelectionMovePressure", tr("Opaque Intensity"));
    slider->setRange(0, 100);
    caption->setBuddy(slider);
    row->addWidget(caption);
    row->addWidget(slider, 1);
    row->addWidget(new fNumberBox(*slider, "lblBrSelectionMovePressure"));
    connect(slider, &QSlider::valueChanged, this,
            [this](int opacity) { frame_.setup().ClipOpacity = static_cast<std::int16_t>(opacity); });
    slider->setValue(frame_.setup().ClipOpacity);
    return panel;
}

fPaste::Take fPaste::take(const Document& document, const QString& tooSmall)
{
    frame_.setup().PasteMode = PasteMode::Waiting;
    if (!hasSelectedPart(document)) {
        frame_.platform().tell(tooSmall);
        return {};
    }
    return [ground = palette().color(QPalette::Mid)](const Document& of) {
        const Bits bits = selectedPart(of);
        return Part{bits, thumbnailOf(bits, ground)};
    };
}

void fPaste::add(const Part& part)
{
    frame_.toolStores().paste = part.bits;
    history_.add(part.bits);
    thumbnails_[history_.clips().back().number] = part.thumbnail;
    showClips();
    Update_V();
}

/// Made once per clip; those of dropped clips are discarded.
Bits fPaste::thumbnail(const Clip& clip)
{
    std::erase_if(thumbnails_, [this](const auto& entry) { return entry.first < history_.at(0)->number; });
    Bits& drawn = thumbnails_[clip.number];
    if (drawn.isNull()) drawn = thumbnailOf(clip.bits, palette().color(QPalette::Mid));
    return drawn;
}

void fPaste::showClips()
{
    lstImages_->clear();
    for (int i = 0; i < ClipHistory::kSlots; ++i) {
        const Slot& slot = slots_[std::size_t(i)];
        const Clip* clip = history_.at(i);
        const QString caption = tr("Clip %1").arg(history_.numberAt(i));
        slot.BT->setText("    " + caption);
        slot.BT->setEnabled(clip);
        slot.size->setText(clip ? sizeOfClip(clip->bits) : QString());
        slot.BT->setToolTip(clip ? tr("Clip History: \n%1").arg(sizeOfClip(clip->bits)) : QString());
        slot.BT->setAccessibleDescription(slot.size->text());
        slot.setThumbnail(clip ? thumbnail(*clip) : Bits());
        if (clip) lstImages_->addItem(caption);
    }
}

void fPaste::Update_V()
{
    const int newest = lstImages_->count() - 1;
    if (newest < 0) return;
    area_->widget()->layout()->activate();
    lstImages_->setCurrentRow(newest);
    area_->ensureWidgetVisible(slots_[std::size_t(newest)].pc, 0, 0);
}

void fPaste::paste(int slot)
{
    const Clip* clip = history_.at(slot);
    if (!clip || clip->bits.isNull()) return;
    frame_.toolStores().paste = clip->bits;
    emit chosen();
    frame_.Mmenu("PASTE");
}

void fPaste::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::PaletteChange || !lstImages_) return;
    thumbnails_.clear();
    showClips();
}

void fPaste::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    BrSelectionMovePressure_->setValue(frame_.setup().ClipOpacity); // it may have been changed in the options
}

} // namespace velara
