#include "ui/compose/fLayers.h"
#include "commands/recipe/textStep.h"
#include "document/Document.h"
#include "document/Workspace.h"
#include "document/road/Frame.h"
#include "seams/Platform.h"
#include "seams/Setup.h"
#include "seams/printable.h"
#include "ui/compose/fLayerCanvas.h"
#include "ui/compose/fLayerList.h"
#include "ui/compose/mFonts.h"
#include "ui/widgets/ActiveComposer.h"
#include "ui/widgets/fColorButton.h"
#include "ui/widgets/fPicturePage.h"
#include "ui/widgets/inputs/named.h"
#include <QCloseEvent>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace velara {

namespace {

constexpr int kPathPixels = 400;
constexpr int kLeastLayersZoom = -62;         // a 64th of the size
constexpr int kFirstSize = 7, kLastSize = 69; // the odd ones
constexpr int kUsualEntry = 4;                // size 15

constexpr struct {
    int number;
    const char *caption, *icon;
    bool TextStyle::*flag; // null: clears all of them
} kStyles[] = {
    {1, QT_TRANSLATE_NOOP("velara::fLayers", "Regular"), "draw-text", nullptr},
    {3, QT_TRANSLATE_NOOP("velara::fLayers", "Bold"), "format-text-bold", &TextStyle::bold},
    {4, QT_TRANSLATE_NOOP("velara::fLayers", "Italic"), "format-text-italic", &TextStyle::italic},
    {5, QT_TRANSLATE_NOOP("velara::fLayers", "Underline"), "format-text-underline", &TextStyle::underline},
    {6, QT_TRANSLATE_NOOP("velara::fLayers", "Strike out"), "format-text-strikethrough", &TextStyle::strikeOut}};

constexpr struct {
    const char *name, *caption, *word;
} kSends[] = {{"mnuSend_1", QT_TRANSLATE_NOOP("velara::fLayers", "Save for Web"), "IMAGESAVEOPTIONS"},
              {"mnuSend_2", QT_TRANSLATE_NOOP("velara::fLayers", "Color Depth"), "IMAGECOLORDEPTH"}};

QToolButton* button(const QString& name, const QString& caption, const char* icon = "")
{
    auto* made = named(new QToolButton, name, caption);
    made->setToolTip(caption);
    made->setText(caption);
    made->setIcon(QIcon::fromTheme(QLatin1String(icon)));
    made->setFocusPolicy(Qt::TabFocus);
    return made;
}

} // namespace

fLayers::fLayers(Frame& frame, const DocumentHandle& document, QWidget* parent)
    : QDialog(parent), frame_(frame), document_(document), layers_(frame.platform().fonts()),
      canvas_(new fLayerCanvas(layers_)),
      page_(new fPicturePage({"PicFrame", "picImage", "H", "V"}, tr("Picture with its texts"), canvas_)),
      list_(new fLayerList(layers_)), cFonts_(new QComboBox), Cs_(new QComboBox),
      cp_(new fColorButton(frame, QStringLiteral("cp"), tr("Color of the text"), this)), hint_(new QLabel)
{
    setObjectName(QStringLiteral("fLayers"));
    setWindowTitle(tr("Apply Text"));
    setAttribute(Qt::WA_DeleteOnClose);
    ActiveComposer::take(Composer::Layers, this);
    auto* column = new QVBoxLayout(this);
    column->addWidget(makeFontBar());
    column->addWidget(makeLayerBar());
    auto* middle = new QHBoxLayout;
    middle->addWidget(list_);
    middle->addWidget(page_, 1);
    column->addLayout(middle, 1);
    auto* ok = named(new QPushButton(tr("OK")), "CmdOK");
    auto* exit = named(new QPushButton(tr("Exit")), "CmdCancel");
    auto* last = new QHBoxLayout;
    named(hint_, "lblHint")->setWordWrap(true);
    last->addWidget(hint_, 1);
    for (QPushButton* each : {ok, exit}) {
        each->setAutoDefault(false); // Return belongs to the text
        last->addWidget(each);
    }
    column->addLayout(last);
    connect(ok, &QPushButton::clicked, this, [this] {
        apply([this](bool done) {
            if (done) close();
        });
    });
    connect(exit, &QPushButton::clicked, this, &QWidget::close);
    connectAll();
    followDocument();
    if (document_ && !document_->waitingTexts.empty()) {
        layers_.restore(document_->waitingTexts);
        canvas_->showLayers();
    }
    resize(760, 560);
    canvas_->setFocus();
}

/// The widgets that show the layers are deleted before them.
fLayers::~fLayers()
{
    const QSignalBlocker quiet(this);
    done_ = true;
    tellDocument();
    hide();
    delete page_;
    delete list_;
}

QWidget* fLayers::makeFontBar()
{
    auto* bar = named(new QWidget, "tb_Font");
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(0, 0, 0, 0);
    named(cFonts_, "cFonts", tr("Font"));
    cFonts_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cFonts_->setMinimumContentsLength(18);
    named(Cs_, "Cs", tr("Size"));
    fillFonts(*cFonts_, frame_.platform());
    for (int size = kFirstSize; size <= kLastSize; size += 2) Cs_->addItem(QString::number(size));
    cFonts_->setCurrentIndex(std::min(firstFont(*cFonts_) + 1, cFonts_->count() - 1));
    Cs_->setCurrentIndex(kUsualEntry);
    row->addWidget(cFonts_);
    row->addWidget(Cs_);
    for (const auto& style : kStyles) {
        QToolButton* each = button(QStringLiteral("tb_Font_%1").arg(style.number), tr(style.caption), style.icon);
        each->setCheckable(style.flag != nullptr);
        style_[std::size_t(style.number)] = each;
        row->addWidget(each);
        if (style.number == 1) row->addSpacing(8);
    }
    cp_->setColour(frame_.setup().ForeColor);
    cp_->setFixedWidth(44);
    row->addWidget(cp_);
    row->addStretch();
    return bar;
}

QWidget* fLayers::makeLayerBar()
{
    auto* bar = named(new QWidget, "tbOthers");
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(0, 0, 0, 0);
    QToolButton* add = button(QStringLiteral("tbOthers_1"), tr("New text"), "list-add");
    delete_ = button(QStringLiteral("tbOthers_2"), tr("Delete text"), "edit-delete");
    QToolButton* send = button(QStringLiteral("tbOthers_4"), tr("Send Optimized Image To"), "document-send");
    auto* menu = new QMenu(send);
    for (const auto& entry : kSends) {
        QAction* action = menu->addAction(tr(entry.caption));
        action->setObjectName(QLatin1String(entry.name));
        connect(action, &QAction::triggered, this, [this, word = QString::fromLatin1(entry.word)] { sendTo(word); });
    }
    send->setMenu(menu);
    send->setPopupMode(QToolButton::InstantPopup);
    undo_ = button(QStringLiteral("tbOthers_5"), tr("Undo"), "edit-undo");
    redo_ = button(QStringLiteral("tbOthers_6"), tr("Redo"), "edit-redo");
    QToolButton* fit = button(QStringLiteral("tbOthers_7"), tr("Zoom to fit"), "zoom-fit-best");
    for (QToolButton* each : {add, delete_, send}) {
        each->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        row->addWidget(each);
    }
    row->addStretch();
    for (const auto& [each, keys] : {std::pair{undo_, "Ctrl+Z"}, {redo_, "Ctrl+Y"}, {fit, "Ctrl+0"}}) {
        each->setToolTip(QStringLiteral("%1 (%2)").arg(each->text(), QLatin1String(keys)));
        row->addWidget(each);
    }
    for (const bool back : {true, false})
        connect(back ? undo_ : redo_, &QToolButton::clicked, this, [this, back] {
            canvas_->step(back);
            canvas_->setFocus();
        });
    connect(fit, &QToolButton::clicked, this, [this] { changeZoom(0); });
    connect(add, &QToolButton::clicked, this, [this] {
        canvas_->select(0);
        canvas_->addLayer();
        canvas_->setFocus();
    });
    connect(delete_, &QToolButton::clicked, this, [this] {
        canvas_->removeSelected();
        canvas_->setFocus();
    });
    return bar;
}

void fLayers::connectAll()
{
    connect(canvas_, &fLayerCanvas::added, list_, &fLayerList::add);
    connect(canvas_, &fLayerCanvas::removed, list_, &fLayerList::remove);
    connect(canvas_, &fLayerCanvas::layerChanged, list_, &fLayerList::refresh);
    for (const auto signal : {&fLayerCanvas::added, &fLayerCanvas::removed, &fLayerCanvas::layerChanged})
        connect(canvas_, signal, this, &fLayers::tellDocument);
    connect(canvas_, &fLayerCanvas::selectionChanged, this, [this](int index) {
        list_->select(index);
        showStyle(index);
    });
    connect(canvas_, &fLayerCanvas::stateChanged, this, &fLayers::showState);
    connect(canvas_, &fLayerCanvas::caretMoved, page_, &fPicturePage::follow);
    page_->setLeastZoom(kLeastLayersZoom);
    connect(canvas_, &fLayerCanvas::zoomWanted, this, &fLayers::changeZoom);
    connect(list_, &fLayerList::chosen, this, [this](int index) {
        canvas_->select(index);
        list_->select(index); // the button may have unchecked itself
        canvas_->setFocus();
    });
    connect(list_, &fLayerList::shown, this, [this](int index, bool on) {
        canvas_->remember();
        layers_.setShown(index, on);
        canvas_->refresh(index);
    });
    connect(cFonts_, &QComboBox::currentIndexChanged, this, &fLayers::takeStyle);
    connect(Cs_, &QComboBox::currentIndexChanged, this, &fLayers::takeStyle);
    connect(cp_, &fColorButton::colourChanged, this, [this] {
        if (!showing_) canvas_->keepColour = true;
        takeStyle();
    });
    for (const auto& style : kStyles)
        connect(style_[std::size_t(style.number)], &QToolButton::clicked, this, [this, regular = !style.flag] {
            if (regular)
                for (QToolButton* each : style_)
                    if (each) each->setChecked(false);
            takeStyle();
        });
    connect(&watch_, &QTimer::timeout, this, [this] {
        if (!document_) close();
    });
    watch_.start(200);
    takeStyle();
    showStyle(0);
    showState();
}

/// Applies the controls' settings to the selected layer, and to later ones.
void fLayers::takeStyle()
{
    if (showing_) return;
    TextStyle style{cFonts_->currentText(), kFirstSize + 2 * std::max(0, Cs_->currentIndex())};
    for (const auto& row : kStyles)
        if (row.flag) style.*row.flag = style_[std::size_t(row.number)]->isChecked();
    canvas_->nextStyle = style;
    canvas_->nextColour = cp_->colour();
    const int index = canvas_->selected();
    if (index == 0) return;
    const Layer& layer = layers_.layer(index);
    if (layer.style == style && layer.colour == cp_->colour()) return;
    canvas_->remember();
    layers_.setStyle(index, style, cp_->colour());
    canvas_->refresh(index);
}

/// What can be undone, and how to go on.
void fLayers::showState()
{
    undo_->setEnabled(canvas_->canStep(true));
    redo_->setEnabled(canvas_->canStep(false));
    hint_->setText(canvas_->editing()
                       ? tr("Type. A drag marks letters, at the frame it moves the text. Esc ends typing.")
                   : canvas_->selected() ? tr("Drag the text or its grips. A click or Enter puts the caret into it.")
                                         : tr("Click on the picture where a text shall stand, and type."));
}

/// 1 or -1; 0 shows the whole picture, as large as possible.
void fLayers::changeZoom(int by)
{
    by == 0 ? page_->zoomToFit() : page_->setZoom(page_->picture().zoom() + by);
    canvas_->setFocus();
}

/// Shows the layer's settings in the controls.
void fLayers::showStyle(int index)
{
    delete_->setEnabled(index != 0);
    if (index == 0) return;
    const Layer& layer = layers_.layer(index);
    showing_ = true;
    selectFont(*cFonts_, frame_.platform(), layer.style.family);
    Cs_->setCurrentIndex((layer.style.size - kFirstSize) / 2);
    for (const auto& row : kStyles)
        if (row.flag) style_[std::size_t(row.number)]->setChecked(layer.style.*row.flag);
    cp_->setColour(layer.colour);
    showing_ = false;
    canvas_->nextStyle = layer.style;
    canvas_->nextColour = layer.colour;
}

/// Updates the canvas to the document's present picture.
void fLayers::followDocument()
{
    const Document* document = document_.get();
    if (!document || !document->PictureExists()) return;
    if (document->bits().sharesWith(layers_.canvas())) return;
    layers_.setCanvas(document->bits());
    page_->setBits(layers_.canvas());
    canvas_->refresh(0);
}

void fLayers::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) followDocument();
    QDialog::changeEvent(event);
}

/// Esc belongs to the canvas; pressing it by mistake must not lose the texts.
void fLayers::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Escape) QDialog::keyPressEvent(event);
}

const Layers& fLayers::asTyped()
{
    canvas_->edit(false); // text that an input method is still composing isn't committed
    followDocument();
    return layers_;
}

/// Tells the document about waiting texts, for which it asks before it closes, and which it has for recovery.
void fLayers::tellDocument()
{
    Document* document = document_.get();
    if (!document) return;
    Layers::State texts = hasTexts() ? layers_.state() : Layers::State();
    const bool wereWaiting = std::exchange(waiting_, hasTexts());
    if (waiting_ == wereWaiting && texts == document->waitingTexts) return;
    document->waitingTexts = std::move(texts);
    if (waiting_ != wereWaiting) document->waitingWork = nullptr;
    if (waiting_ && !wereWaiting)
        document->waitingWork = [alive = QPointer(this)] {
            return !alive || (alive->applyNow() && (!alive || alive->close())); // anything may happen during a change
        };
    document->describe();
    if (waiting_ != wereWaiting) emit waitingChanged();
}

void fLayers::closeEvent(QCloseEvent* event)
{
    const QPointer<fLayers> alive = this;
    const bool closes = mayClose();
    if (!alive) return;
    if (!closes) return event->ignore();
    done_ = true;
    tellDocument();
    QDialog::closeEvent(event);
}

bool fLayers::mayClose()
{
    if (!document_ || !hasTexts()) return true;
    Platform& platform = frame_.platform();
    const QPointer<fLayers> alive = this;
    const QString text = platform.compactPath(printable(document_->Tag()), kPathPixels) +
                         tr("\nThe texts are not in the image yet.\nDo you want to merge them ?");
    const Answer answer = platform.askYesNoCancel(kProgramName, text, Icon::Information);
    return alive && (answer == Answer::No || (answer == Answer::Yes && applyNow()));
}

/// The fonts of what was merged stand on top of the lists from now on.
void fLayers::keepFonts()
{
    for (const int index : layers_.indices()) {
        const auto& layer = layers_.layer(index);
        if (layer.shown && !layer.text.isEmpty()) keepFont(frame_.platform(), layer.style.family);
    }
}

/// Calls then(true) once the document has the texts; not called if this window is destroyed first.
void fLayers::apply(std::function<void(bool done)> then)
{
    if (!document_ || done_) return then(true);
    setEnabled(false);
    const Job job = [layers = asTyped()](Document& draft, cBitFilter&) { draft.setBits(layers.Blend()); };
    const QString words = textWords(layers_.state(), frame_.platform().fonts());
    frame_.workspace().change(document_, {job, After::Step, tr("Text"), words},
                              [this, alive = QPointer(this), then](const Outcome& outcome) {
                                  if (!alive) return;
                                  setEnabled(true);
                                  frame_.report(windowTitle(), outcome);
                                  done_ = outcome || outcome.kind == Outcome::Gone;
                                  if (outcome) keepFonts();
                                  tellDocument();
                                  then(done_);
                              });
}

/// Synchronously, for a question that needs the result.
bool fLayers::applyNow()
{
    const auto has = std::make_shared<bool>(false);
    apply([has](bool done) { *has = done; });
    frame_.workspace().wait(document_);
    return *has;
}

void fLayers::sendTo(const QString& word)
{
    if (!document_ || frame_.active() != document_)
        return frame_.platform().tell(tr("Bring this picture to the front first."));
    apply([this, word](bool done) {
        if (!done) return;
        Frame& frame = frame_;
        close();
        frame.Mmenu(word);
    });
}

} // namespace velara
