#include "ui/compose/fTextPage.h"
#include "document/road/Frame.h"
#include "pixels/twips.h"
#include "seams/Platform.h"
#include "seams/Setup.h"
#include "ui/compose/mFonts.h"
#include "ui/widgets/fPicture.h"
#include "ui/widgets/inputs/named.h"
#include <QComboBox>
#include <QEvent>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

namespace velara {

namespace {

constexpr float kMargin = 60.f / kTwips;
constexpr int kUsualSize = 10; // if the configuration has none

/// Named, with the accessible name as tool tip.
template <class Control> Control* hinted(Control* control, const char* name, const QString& accessibleName)
{
    control->setToolTip(accessibleName);
    return named(control, QLatin1String(name), accessibleName);
}

QComboBox* choice(const char* name, const QString& accessibleName, const QString& entries)
{
    auto* list = hinted(new QComboBox, name, accessibleName);
    if (!entries.isEmpty()) list->addItems(entries.split(u'|'));
    return list;
}

QToolButton* toggle(const char* name, const QString& accessibleName, const QString& letter)
{
    auto* button = hinted(new QToolButton, name, accessibleName);
    button->setText(letter);
    button->setCheckable(true);
    QFont font = button->font();
    font.setBold(letter == u"B");
    font.setItalic(letter == u"I");
    font.setUnderline(letter == u"U");
    button->setFont(font);
    return button;
}

} // namespace

fTextPage::fTextPage(Frame& frame, QWidget* parent)
    : QWidget(parent), frame_(frame), txtText_(hinted(new QPlainTextEdit, "txtText", tr("Text"))),
      cboFont_(choice("cboFont", tr("Font"), "")), cboSize_(choice("cboSize", tr("Size"), "")),
      cboAlign_(choice("cboAlign", tr("Alignment"), tr("Left Justify|Centre Justify|Right Justify|Full Justify"))),
      cboShadow_(choice("cboShadow", tr("Shadow"),
                        tr("Top Left|Top|Top Right|Left|No Shadow|Right|Bottom Left|Bottom|Bottom Right"))),
      CmdB_(toggle("CmdB", tr("Bold"), QStringLiteral("B"))), CmdI_(toggle("CmdI", tr("Italic"), QStringLiteral("I"))),
      CmdU_(toggle("CmdU", tr("Underline"), QStringLiteral("U"))), lblCustom_(new QLabel(this)),
      lblRefused_(new QLabel(tr("The text is too long for this space: make the window larger."))),
      picCustom_(new fPicture(QStringLiteral("picCustom"), tr("The text as it is stamped")))
{
    makeControls();
    for (QComboBox* list : {cboFont_, cboAlign_, cboShadow_})
        connect(list, &QComboBox::currentIndexChanged, this, &fTextPage::takeStyle);
    connect(cboSize_, &QComboBox::currentTextChanged, this, &fTextPage::takeSize);
    connect(cboSize_->lineEdit(), &QLineEdit::editingFinished, this, [this] {
        cboSize_->setCurrentText(QString::number(style_.size)); // whatever was typed: this is the valid one
    });
    for (QToolButton* button : {CmdB_, CmdI_, CmdU_})
        connect(button, &QToolButton::toggled, this, &fTextPage::takeStyle);
    connect(txtText_, &QPlainTextEdit::textChanged, this, &fTextPage::UpdateText);
}

void fTextPage::makeControls()
{
    txtText_->setPlaceholderText(tr("Type the text here"));
    txtText_->setTabChangesFocus(true);
    txtText_->setFixedHeight(fontMetrics().lineSpacing() * 3 + 14);
    cboFont_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cboFont_->setMinimumContentsLength(14);
    cboSize_->setEditable(true);
    cboSize_->setInsertPolicy(QComboBox::NoInsert);
    cboSize_->lineEdit()->setMaxLength(3);
    for (const int size : {6, 7, 8, 9, 10, 11, 12, 14, 16, 18, 20, 24, 28, 32, 36, 40, 48, 56, 64, 72})
        cboSize_->addItem(QString::number(size));
    lblCustom_->setObjectName(QStringLiteral("lblCustom")); // used for measuring, never shown
    lblCustom_->hide();
    lblRefused_->setObjectName(QStringLiteral("lblRefused"));
    lblRefused_->setWordWrap(true);
    lblRefused_->hide();
    picCustom_->setMinimumSize(160, 90);
    picCustom_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    picCustom_->installEventFilter(this);
    auto* place = hinted(new QPushButton(tr("&Place with the mouse")), "cmdPlace", tr("Place with the mouse"));
    place->setToolTip(tr("Takes the text tool: press on the picture, drag, and let go where the text shall stand"));
    connect(place, &QPushButton::clicked, this, [this] {
        keepFont(frame_.platform(), style_.family);
        showRecentFonts(*cboFont_, frame_.platform());
        emit placing();
    });

    auto* column = new QVBoxLayout(this);
    column->addWidget(txtText_);
    auto* first = new QHBoxLayout;
    first->addWidget(cboFont_, 1);
    first->addWidget(cboSize_);
    for (QToolButton* button : {CmdB_, CmdI_, CmdU_}) first->addWidget(button);
    column->addLayout(first);
    auto* second = new QHBoxLayout;
    second->addWidget(cboAlign_, 1);
    second->addWidget(cboShadow_, 1);
    column->addLayout(second);
    column->addWidget(picCustom_, 1);
    column->addWidget(lblRefused_);
    column->addWidget(place);
}

/// Fills the controls from the configuration. Not before the page is visible: listing the fonts is slow.
void fTextPage::fill()
{
    if (std::exchange(filled_, true)) return;
    const Setup& setup = frame_.setup();
    filling_ = true;
    fillFonts(*cboFont_, frame_.platform());
    style_.family = setup.TextFont.trimmed();
    selectFont(*cboFont_, frame_.platform(), style_.family);
    style_.size = setup.TextSize >= 1 && setup.TextSize <= kLargestText ? setup.TextSize : kUsualSize;
    cboSize_->setCurrentText(QString::number(style_.size));
    CmdB_->setChecked(setup.TextFlag1);
    CmdI_->setChecked(setup.TextFlag2);
    CmdU_->setChecked(setup.TextFlag3);
    const bool isKnown = setup.TextMode >= 0 && setup.TextMode < cboAlign_->count();
    cboAlign_->setCurrentIndex(isKnown ? setup.TextMode : int{LeftJustify});
    cboShadow_->setCurrentIndex(kNoShadow);
    filling_ = false;
    style_.bold = setup.TextFlag1;
    style_.italic = setup.TextFlag2;
    style_.underline = setup.TextFlag3;
}

void fTextPage::showEvent(QShowEvent* event)
{
    fill();
    layOut();
    QWidget::showEvent(event);
}

bool fTextPage::eventFilter(QObject* watched, QEvent* event)
{
    // No message here: it would pop up while the window is being resized.
    if (watched == picCustom_ && event->type() == QEvent::Resize && filled_) layOut();
    return QWidget::eventFilter(watched, event);
}

void fTextPage::takeStyle()
{
    if (filling_) return;
    Setup& setup = frame_.setup();
    if (sender() == cboFont_) setup.TextFont = style_.family = cboFont_->currentText();
    style_.bold = setup.TextFlag1 = CmdB_->isChecked();
    style_.italic = setup.TextFlag2 = CmdI_->isChecked();
    style_.underline = setup.TextFlag3 = CmdU_->isChecked();
    setup.TextMode = static_cast<std::int16_t>(cboAlign_->currentIndex());
    UpdateText();
}

/// Accepts 1 to the limit; anything else leaves the size unchanged.
void fTextPage::takeSize(const QString& typed)
{
    bool isNumber = false;
    const int size = typed.toInt(&isNumber);
    if (filling_ || !isNumber || size < 1 || size > kLargestText || size == style_.size) return;
    style_.size = size;
    frame_.setup().TextSize = static_cast<std::int16_t>(size);
    UpdateText();
}

void fTextPage::UpdateText()
{
    fill();
    if (layOut()) {
        told_ = false;
    } else if (!std::exchange(told_, true)) {
        const QPointer<fTextPage> alive = this;
        frame_.platform().tell(tr("Unable to find suitable font size for text"), Icon::None);
        if (alive) beginText(); // the next letters are text, and not the keys of tools
    }
}

void fTextPage::beginText()
{
    activateWindow();
    txtText_->setFocus();
}

/// False when no size fits; the work picture is blank then, and there is no text to stamp.
bool fTextPage::layOut()
{
    QString text = txtText_->toPlainText();
    QFont font(style_.family, style_.size);
    font.setBold(style_.bold);
    font.setItalic(style_.italic);
    font.setUnderline(style_.underline);
    lblCustom_->setFont(font);
    lblCustom_->setText(text.left(1000));
    if (cboAlign_->currentIndex() < 0 || cboShadow_->currentIndex() < 0) return true;

    Fonts& fonts = frame_.platform().fonts();
    const TextBox box{text.replace(u'\n', QStringLiteral("\r\n")),
                      picCustom_->width(),
                      picCustom_->height(),
                      kMargin,
                      cboAlign_->currentIndex(),
                      cboShadow_->currentIndex(),
                      style_.size};
    const auto layout = layOutText(box, [&](const QString& run, int size) {
        TextStyle sized = style_;
        sized.size = size;
        return fonts.measure(run, sized);
    });
    const Bits drawing = drawOnPaper(box, layout.value_or(TextLayout()), style_, fonts);
    picCustom_->showWhole(drawing);
    lblRefused_->setVisible(!layout);
    frame_.toolStores().text = maskOf(drawing);
    return layout.has_value();
}

} // namespace velara
