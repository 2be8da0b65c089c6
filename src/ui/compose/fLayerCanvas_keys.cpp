// The canvas of the layers dialog: keys and input methods for the selected layer and its text.
#include "ui/compose/fLayerCanvas.h"
#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QTextBoundaryFinder>

namespace velara {

namespace {

/// The next caret position, by grapheme clusters.
qsizetype step(const QString& text, qsizetype from, bool forward)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    finder.setPosition(from);
    const qsizetype to = forward ? finder.toNextBoundary() : finder.toPreviousBoundary();
    return to < 0 ? from : to;
}

} // namespace

void fLayerCanvas::setText(const QString& text, qsizetype caret)
{
    caret_ = caret;
    layers_.setText(selected_, text);
    refresh(selected_);
}

void fLayerCanvas::insert(const QString& text)
{
    if (text.isEmpty()) return;
    if (selected_ == 0)
        addLayer();
    else if (!editing_)
        edit(true);
    QString lines = text;
    lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    for (const char16_t other : {u'\r', u'\u2028', u'\u2029'}) lines.replace(QChar(other), QChar(u'\n'));
    lines.replace(QChar(u'\n'), QStringLiteral("\r\n"));
    QString whole = layers_.layer(selected_).text;
    setText(whole.insert(caret_, lines), caret_ + lines.size());
}

void fLayerCanvas::erase(bool back)
{
    QString text = layers_.layer(selected_).text;
    const qsizetype other = step(text, caret_, !back), from = std::min(caret_, other);
    setText(text.remove(from, std::max(caret_, other) - from), from);
}

void fLayerCanvas::moveCaret(int key)
{
    const QString& text = layers_.layer(selected_).text;
    if (key == Qt::Key_Left || key == Qt::Key_Right) {
        caret_ = step(text, caret_, (key == Qt::Key_Right) != text.isRightToLeft());
    } else if (key == Qt::Key_Home) {
        caret_ = caret_ > 0 ? text.lastIndexOf(u'\n', caret_ - 1) + 1 : 0;
    } else if (key == Qt::Key_End) {
        const qsizetype end = text.indexOf(u'\r', caret_);
        caret_ = end < 0 ? text.size() : end;
    } else { // the same column of the line above or below
        const qsizetype start = caret_ > 0 ? text.lastIndexOf(u'\n', caret_ - 1) + 1 : 0,
                        end = text.indexOf(u'\n', caret_);
        const qsizetype column = caret_ - start;
        if (key == Qt::Key_Up && start > 0) {
            const qsizetype above = start > 2 ? text.lastIndexOf(u'\n', start - 3) + 1 : 0;
            caret_ = std::min(above + column, start - 2);
        } else if (key == Qt::Key_Down && end >= 0) {
            const qsizetype below = text.indexOf(u'\r', end + 1);
            caret_ = std::min(end + 1 + column, below < 0 ? text.size() : below);
        }
    }
    placeCursor();
}

/// Keys while a text is edited.
bool fLayerCanvas::editKey(QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
        moveCaret(event.key());
        return true;
    case Qt::Key_Backspace:
    case Qt::Key_Delete:
        erase(event.key() == Qt::Key_Backspace);
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
        layers_.setPlace(selected_,
                         {p.left + move.by.x(), p.top + move.by.y(), p.right + move.by.x(), p.bottom + move.by.y()});
        refresh(selected_);
        return true;
    }
    switch (event.key()) {
    case Qt::Key_Delete:
        removeSelected();
        return true;
    case Qt::Key_Backspace:
        edit(true);
        erase(true);
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

void fLayerCanvas::keyPressEvent(QKeyEvent* event)
{
    const auto paste = [] { return QGuiApplication::clipboard()->text(); };
    if (event->matches(QKeySequence::Paste)) return insert(paste());
    if (selected_ && event->matches(QKeySequence::Copy))
        return QGuiApplication::clipboard()->setText(QString(layers_.layer(selected_).text).remove(u'\r'));
    if (selected_ && (editing_ ? editKey(*event) : layerKey(*event))) return;
    const QString typed = event->text();
    const bool isText = !typed.isEmpty() && typed[0].isPrint();
    if (isText && !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)))
        return insert(typed);
    fPicture::keyPressEvent(event); // scrolls the page, closes the dialog
}

/// Text that an input method is still composing is in the text, after the caret, until it is committed or dropped.
void fLayerCanvas::dropPreedit()
{
    if (preedit_.isEmpty() || selected_ == 0) return preedit_.clear();
    QString text = layers_.layer(selected_).text;
    text.remove(caret_, std::exchange(preedit_, {}).size());
    setText(text, caret_);
}

void fLayerCanvas::inputMethodEvent(QInputMethodEvent* event)
{
    dropPreedit();
    insert(event->commitString());
    if (!event->preeditString().isEmpty()) {
        if (selected_ == 0) addLayer();
        edit(true);
        preedit_ = event->preeditString();
        QString text = layers_.layer(selected_).text;
        setText(text.insert(caret_, preedit_), caret_);
    }
    event->accept();
}

QVariant fLayerCanvas::inputMethodQuery(Qt::InputMethodQuery query) const
{
    switch (query) {
    case Qt::ImEnabled:
        return true;
    case Qt::ImCursorRectangle:
        return cursor_->geometry();
    case Qt::ImSurroundingText:
        return selected_ ? layers_.layer(selected_).text : QString();
    case Qt::ImCursorPosition:
        return static_cast<int>(caret_);
    default:
        return fPicture::inputMethodQuery(query);
    }
}

} // namespace velara
