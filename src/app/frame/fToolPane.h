// fToolPane: the side pane cTools: the tool strip tb_tools, a place for the pane of each tool, and the wells of the
// first and second colour. Knows no document; it says what was clicked.
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

    /// The tool whose button is down; a key without a button, such as the empty one, leaves all up.
    void setTool(const QString& key);
    /// Key of the button that is down in the tools' group; empty for none.
    QString tool() const;
    /// Lets go of the tools' button that is down.
    void releaseTools();
    QToolButton* button(const QString& key) const { return buttons_.value(key); }

    /// Gives a tool its pane, in place of what it had. The pane is owned from here on.
    void setPane(const QString& key, QWidget* pane);
    /// Shows the pane of the tool, or an empty one.
    void showPane(const QString& key);

    /// Takes the focus: at the chosen tool, or backwards at the last control. Arrows walk the strip, which is one stop
    /// of the Tab key; Enter and Space choose, Esc leaves. False when there is nothing to focus.
    bool enter(bool forward);

    void refreshIcons();
    /// Colours 0x00BBGGRR of the two wells.
    void setColors(int first, int second);

  signals:
    void clicked(const QString& key);
    void wellClicked(int index); // 0 first, 1 second
    void swapClicked();
    /// The focus has gone past the last control.
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
    QList<QToolButton*> strip_; // in the order of their places
    QHash<QString, QWidget*> panes_;
    QStackedWidget* stack_;
    QToolButton *wells_[2]{}, *swap_ = nullptr;
};

} // namespace velara
