// Bars: the menus and toolbars of the frame, made out of the tables of menus.h, and what is shown of them: marks,
// pictures, which toolbars there are and where.
#pragma once
#include <QMainWindow>
#include <QObject>
#include <array>
#include <functional>
#include <string_view>
#include <vector>

class QAction;
class QMenu;
class QToolBar;
class QToolButton;

namespace velara {

class Machine;
struct ButtonRow;
struct MenuRow;
struct Setup;

class Bars final : public QObject {
    Q_OBJECT
  public:
    /// What choosing an item does: its word, and its index where the word stands for several.
    using Run = std::function<void(std::string_view word, int index)>;
    using Available = bool (*)(std::string_view word);

    /// Makes them all; those of words that are not available are disabled.
    Bars(QMainWindow& window, Machine& machine, Setup& setup, Run run, Available available);

    /// By its object name (menus.h); null when there is none.
    QAction* action(const QString& objectName) const;
    /// The menu's item of a word; null when it stands in no menu.
    QAction* item(std::string_view word, int index = 0) const { return find(word, index, true); }
    /// The toolbar's button of a word.
    QAction* button(std::string_view word) const { return find(word, 0, false); }
    void mark(std::string_view word, int index, bool on);

    /// The pictures in the cut that fits the palette.
    void refreshIcons();
    /// Toolbars and their marks as Setup has them.
    void showBars();
    void toggleBar(int index);
    /// Where the toolbars stand, kept for this user.
    void loadLayout();
    void saveLayout();
    /// A menu of the toolbars; the caller's.
    QMenu* makePopup();

  private:
    struct Item {
        QAction* action;
        std::string_view word;
        int index;
        bool ofMenu;
    };

    QAction* find(std::string_view word, int index, bool ofMenu) const;
    void makeTrigger(QAction* action, std::string_view word, int index, bool ofMenu);
    void buildMenus();
    void addItem(QMenu& menu, const MenuRow& row);
    void buildToolbars();
    void fillToolbar(QToolBar* bar, std::string_view buttons);
    void addDrops(QAction* action, QToolButton* button, const ButtonRow& row);

    QMainWindow& window_;
    Machine& machine_;
    Setup& setup_;
    Run run_;
    Available available_;
    std::vector<Item> items_;
    std::array<QToolBar*, 7> bars_{}; // the order of Setup::BarVisible
};

} // namespace velara
