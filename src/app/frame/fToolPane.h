// fToolPane: the side pane cTools: the tool strip tb_tools, a place for the pane of each tool, and the wells of the
// first and second colour. Knows no document; it emits what was clicked.
#pragma once
#include <QButtonGroup>
#include <QHash>
#include <QStackedWidget>
#include <QToolButton>

namespace velara {

class fToolPane final : public QFrame {
    Q_OBJECT
  public:
    explicit fToolPane(QWidget* parent);

    /// Presses the tool's button; a key without a button, such as the empty one, releases all.
    void setTool(const QString& key);
    /// Key of the pressed button in the tools' group; empty for none.
    QString tool() const;
    /// Releases the tools' pressed button.
    void releaseTools();
    QToolButton* button(const QString& key) const { return buttons_.value(key); }

    /// Gives a tool its pane, replacing the previous one, and takes ownership.
    void setPane(const QString& key, QWidget* pane);
    /// Shows the pane of the tool, or an empty one.
    void showPane(const QString& key);

    /// Takes the focus: at the chosen tool, or backwards at the last control. Arrow keys move along the strip, which is
    /// a single tab stop; Enter and Space choose, Esc leaves. False when there is nothing to focus.
    bool enter(bool forward);

    void refreshIcons();
    /// The colours 0x00BBGGRR of the two wells.
    void setColors(int first, int second);

  signals:
    void clicked(const QString& key);
    void wellClicked(int index); // 0 first, 1 second
    void swapClicked();
    /// The focus has moved beyond the last control.
    void left();

  protected:
    bool focusNextPrevChild(bool next) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QList<QWidget*> stops() const;
    QWidget* makeStrip();
    QWidget* makeWells();

    QButtonGroup group_;
    QHash<QString, QToolButton*> buttons_;
    QList<QToolButton*> strip_; // in order of their positions
    QHash<QString, QWidget*> panes_;
    QStackedWidget* stack_;
    QToolButton *wells_[2]{}, *swap_ = nullptr;
};

} // namespace velara
