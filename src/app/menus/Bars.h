// Bars: the menus and toolbars of the frame, made from the tables of menus.h, and their state: check marks, icons,
// which toolbars are shown and where.
#pragma once
#include <QMainWindow>
#include <QObject>
#include <QStringList>
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
struct SearchRow;
struct Setup;

/// A hover text with the first key of an action: "Copy (Ctrl+C)".
QString withKey(const QString& text, const QAction& action);

class Bars final : public QObject {
    Q_OBJECT
  public:
    /// Called when an item is chosen, with its word, and its index if the word has several.
    using Run = std::function<void(std::string_view word, int index)>;
    using Available = bool (*)(std::string_view word);

    /// Makes all of them; items whose words are not available are disabled.
    Bars(QMainWindow& window, Machine& machine, Setup& setup, Run run, Available available);

    /// By its object name (menus.h); null when there is none.
    QAction* action(const QString& objectName) const;
    /// The menu's item of a word; null when it is in no menu.
    QAction* item(std::string_view word, int index = 0) const { return find(word, index, true); }
    /// The toolbar's button of a word.
    QAction* button(std::string_view word) const { return find(word, 0, false); }
    void mark(std::string_view word, int index, bool on);
    /// The menu item and the button of UNDO or REDO: with the name of the step that it goes, empty if it has none, and
    /// whether there is one.
    void nameStep(std::string_view word, const QString& step, bool exists);
    /// What fSearch lists: the items of the menus, those last used on top.
    std::vector<SearchRow> searchRows() const;
    /// The words of the items last used, the newest first; kept per user.
    void loadLastUsed();
    void saveLastUsed();

    /// Reloads the icons in the variant that fits the palette.
    void refreshIcons();
    /// Shows toolbars and their check marks as in Setup.
    void showBars();
    void toggleBar(int index);
    /// The positions of the toolbars and the boxes, kept per user. False: those of the boxes aren't known.
    bool loadLayout();
    void saveLayout();
    /// A menu of the toolbars; owned by the caller.
    QMenu* makePopup();

  private:
    struct Item {
        QAction* action;
        std::string_view word;
        int index;
        bool ofMenu;
    };

    void used(std::string_view word);
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
    QStringList lastUsed_;
};

} // namespace velara
