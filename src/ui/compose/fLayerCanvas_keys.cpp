// The canvas of the layers dialog: keys and input methods for the selected layer and its text.
#include "ui/compose/fLayerCanvas.h"
#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QTextBoundaryFinder>

namespace velara {

namespace {

/// The next letter or word boundary. Words end where the next one begins.
qsizetype boundary(const QString& text, qsizetype from, bool forward, bool word)
{
    QTextBoundaryFinder finder(word ? QTextBoundaryFinder::Word : QTextBoundaryFinder::Grapheme, text);
    finder.setPosition(from);
    for (;;) {
        const qsizetype to = forward ? finder.toNextBoundary() : finder.toPreviousBoundary();
        if (to < 0) return forward ? text.size() : 0;
        const bool begins = to == 0 || to == text.size() || finder.boundaryReasons() & QTextBoundaryFinder::StartOfItem;
        if (!word || begins) return to;
    }
}

/// With the line breaks of a text; other kinds become them.
QString withLineBreaks(QString text)
{
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    for (const char16_t other : {u'\r', u'\u2028', u'\u2029'}) text.replace(QChar(other), QChar(u'\n'));
    return text.replace(QChar(u'\n'), QStringLiteral("\r\n"));
}

} // namespace

// --- Changing the text

void fLayerCanvas::setText(const QString& text, qsizetype caret)
{
    caret_ = anchor_ = caret;
    layers_.setText(selected_, text);
    refresh(selected_);
}

void fLayerCanvas::setCaret(qsizetype to, bool marks)
{
    if (!preedit_.isEmpty()) edit(true); // ends the composition
    history_.close();
    caret_ = std::clamp(to, qsizetype(0), text().size());
    if (!marks) anchor_ = caret_;
    showMarks();
}

void fLayerCanvas::insert(const QString& typed)
{
    if (typed.isEmpty()) return;
    if (selected_ == 0)
        addLayer();
    else if (!editing_)
        edit(true);
    const QString lines = withLineBreaks(typed);
    const bool letter = typed.size() <= 2 && typed[0].isLetterOrNumber() && caret_ == anchor_;
    remember(letter ? QStringLiteral("typing") : QString());
    const qsizetype from = std::min(caret_, anchor_);
    QString whole = text();
    setText(whole.replace(from, std::max(caret_, anchor_) - from, lines), from + lines.size());
}

void fLayerCanvas::removeMarked()
{
    const qsizetype from = std::min(caret_, anchor_), to = std::max(caret_, anchor_);
    QString whole = text();
    if (from < to) setText(whole.remove(from, to - from), from);
}

void fLayerCanvas::erase(bool back, bool word)
{
    const bool marked = caret_ != anchor_;
    if (!marked) anchor_ = boundary(text(), caret_, !back, word);
    if (anchor_ == caret_) return;
    const qsizetype to = std::exchange(anchor_, marked ? anchor_ : caret_); // what undo comes back to
    remember(marked || word ? QString() : back ? QStringLiteral("back") : QStringLiteral("delete"));
    anchor_ = to;
    removeMarked();
}

// --- Moving the caret

/// The end of what is marked, as a reader sees it.
qsizetype fLayerCanvas::beyond(bool right) const
{
    const Rect a = layers_.caret(selected_, caret_), b = layers_.caret(selected_, anchor_);
    const bool caretIsRight = a.top == b.top ? a.left > b.left : a.top > b.top;
    return caretIsRight == right ? caret_ : anchor_;
}

qsizetype fLayerCanvas::lineBeside(bool up) const
{
    const Rect at = layers_.caret(selected_, caret_);
    const int y = up ? at.top - 1 : at.bottom;
    if (y < layers_.layer(selected_).place.top) return caret_;
    const qsizetype to = layers_.characterAt(selected_, at.left, y);
    return layers_.caret(selected_, to).top == at.top ? caret_ : to; // there is no other line
}

/// Where a key takes the caret; -1 for keys that don't move it.
qsizetype fLayerCanvas::caretFor(const QKeyEvent& event) const
{
    const bool word = event.modifiers() & Qt::ControlModifier, marks = event.modifiers() & Qt::ShiftModifier;
    const auto [lineStart, lineEnd] = layers_.lineOf(selected_, caret_);
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right: {
        const bool right = event.key() == Qt::Key_Right;
        if (word) return boundary(text(), caret_, right != text().isRightToLeft(), true);
        return caret_ != anchor_ && !marks ? beyond(right) : layers_.beside(selected_, caret_, right);
    }
    case Qt::Key_Up:
    case Qt::Key_Down:
        return lineBeside(event.key() == Qt::Key_Up);
    case Qt::Key_Home:
        return word ? 0 : lineStart;
    case Qt::Key_End:
        return word ? text().size() : lineEnd;
    default:
        return -1;
    }
}

// --- Keys

/// Keys while a text is edited.
bool fLayerCanvas::editKey(QKeyEvent& event)
{
    if (const qsizetype to = caretFor(event); to >= 0) {
        setCaret(to, event.modifiers() & Qt::ShiftModifier);
        return true;
    }
    switch (event.key()) {
    case Qt::Key_Backspace:
    case Qt::Key_Delete:
        erase(event.key() == Qt::Key_Backspace, event.modifiers() & Qt::ControlModifier);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        insert(QStringLiteral("\n"));
        return true;
    case Qt::Key_Escape:
        edit(false);
        return true;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return true;
    default:
        return false;
    }
}

/// A user who types on after a Tab means the text: a Space must not press the button that would have the focus.
bool fLayerCanvas::focusNextPrevChild(bool next) { return !editing_ && fPicture::focusNextPrevChild(next); }

/// Keys while a layer is selected and not edited.
bool fLayerCanvas::layerKey(QKeyEvent& event)
{
    const int far = event.modifiers() & Qt::ShiftModifier ? 10 : 1;
    const struct {
        int key;
        QPoint by;
    } moves[] = {
        {Qt::Key_Left, {-far, 0}}, {Qt::Key_Right, {far, 0}}, {Qt::Key_Up, {0, -far}}, {Qt::Key_Down, {0, far}}};
    for (const auto& move : moves) {
        if (event.key() != move.key) continue;
        const Rect p = layers_.layer(selected_).place;
        remember(QStringLiteral("moving"));
        layers_.setPlace(selected_, keptInSight({p.left + move.by.x(), p.top + move.by.y(), p.right + move.by.x(),
                                                 p.bottom + move.by.y()}));
        refresh(selected_);
        return true;
    }
    switch (event.key()) {
    case Qt::Key_Delete:
        removeSelected();
        return true;
    case Qt::Key_Backspace:
        edit(true);
        erase(true, false);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_F2:
        edit(true);
        return true;
    case Qt::Key_Escape:
        select(0);
        return true;
    default:
        return false;
    }
}

/// What is marked; the whole text of a layer that isn't edited.
void fLayerCanvas::copyMarked()
{
    const qsizetype from = editing_ ? std::min(caret_, anchor_) : 0,
                    to = editing_ ? std::max(caret_, anchor_) : text().size();
    if (from < to) QGuiApplication::clipboard()->setText(text().mid(from, to - from).remove(u'\r'));
}

bool fLayerCanvas::clipboardKey(QKeyEvent& event)
{
    if (event.matches(QKeySequence::Paste)) {
        insert(QGuiApplication::clipboard()->text());
    } else if (selected_ == 0) {
        return false;
    } else if (event.matches(QKeySequence::Copy)) {
        copyMarked();
    } else if (event.matches(QKeySequence::Cut)) {
        copyMarked();
        if (!editing_) {
            removeSelected();
        } else if (caret_ != anchor_) {
            remember({});
            removeMarked();
        }
    } else if (event.matches(QKeySequence::SelectAll)) {
        edit(true);
        setCaret(0, false);
        setCaret(text().size(), true);
    } else {
        return false;
    }
    return true;
}

bool fLayerCanvas::stepKey(QKeyEvent& event)
{
    const bool back = event.matches(QKeySequence::Undo);
    const bool forth = event.matches(QKeySequence::Redo) || event.keyCombination() == (Qt::CTRL | Qt::Key_Y);
    if (back || forth) step(back);
    return back || forth;
}

bool fLayerCanvas::zoomKey(QKeyEvent& event)
{
    if (!(event.modifiers() & Qt::ControlModifier)) return false;
    const bool in = event.key() == Qt::Key_Plus || event.key() == Qt::Key_Equal, out = event.key() == Qt::Key_Minus;
    if (!in && !out && event.key() != Qt::Key_0) return false;
    emit zoomWanted(in ? 1 : out ? -1 : 0);
    return true;
}

void fLayerCanvas::keyPressEvent(QKeyEvent* event)
{
    if (clipboardKey(*event) || stepKey(*event) || zoomKey(*event)) return;
    if (selected_ && (editing_ ? editKey(*event) : layerKey(*event))) return;
    const QString typed = event->text();
    const bool isText = !typed.isEmpty() && typed[0].isPrint();
    if (isText && !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)))
        return insert(typed);
    fPicture::keyPressEvent(event); // scrolls the page, closes the dialog
}

// --- Input methods: what is still being composed is in the text, after the caret, until it is committed or dropped

void fLayerCanvas::dropPreedit()
{
    if (preedit_.isEmpty() || selected_ == 0) return preedit_.clear();
    QString whole = text();
    whole.remove(caret_, std::exchange(preedit_, {}).size());
    setText(whole, caret_);
}

void fLayerCanvas::inputMethodEvent(QInputMethodEvent* event)
{
    dropPreedit();
    if (event->replacementLength() > 0 && selected_) {
        const qsizetype from = std::clamp(caret_ + event->replacementStart(), qsizetype(0), text().size());
        remember({});
        anchor_ = from;
        caret_ = std::min(from + event->replacementLength(), text().size());
        removeMarked();
    }
    insert(event->commitString());
    if (!event->preeditString().isEmpty()) {
        if (selected_ == 0) addLayer();
        if (!editing_) edit(true);
        if (caret_ != anchor_) remember({});
        removeMarked();
        preedit_ = event->preeditString();
        preeditCaret_ = static_cast<int>(preedit_.size());
        for (const auto& each : event->attributes())
            if (each.type == QInputMethodEvent::Cursor) preeditCaret_ = std::clamp(each.start, 0, preeditCaret_);
        QString whole = text();
        setText(whole.insert(caret_, preedit_), caret_);
    }
    event->accept();
}

QVariant fLayerCanvas::inputMethodQuery(Qt::InputMethodQuery query) const
{
    const qsizetype from = std::min(caret_, anchor_), to = std::max(caret_, anchor_);
    switch (query) {
    case Qt::ImEnabled:
        return true;
    case Qt::ImCursorRectangle:
        return cursor_->geometry();
    case Qt::ImSurroundingText: // without what is being composed
        return selected_ ? QString(text()).remove(caret_, preedit_.size()) : QString();
    case Qt::ImCursorPosition:
        return static_cast<int>(caret_);
    case Qt::ImAnchorPosition:
        return static_cast<int>(anchor_);
    case Qt::ImCurrentSelection:
        return selected_ ? text().mid(from, to - from) : QString();
    default:
        return fPicture::inputMethodQuery(query);
    }
}

} // namespace velara
