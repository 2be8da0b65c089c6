// The menus and toolbars as data: the position and caption of each item, and the word of commands/vocabulary.h that it
// sends.
#pragma once
#include <QString>
#include <span>
#include <string_view>
#include <vector>

namespace velara {

enum class MenuKind {
    Menu,
    SubMenu,
    Item,
    Separator,
    End,
    // In the table only; menuRows() has them expanded.
    Items,     // one per item of the word
    Words,     // the words whose place is this part (commands/vocabulary.h)
    Strengths, // a submenu of Light, Heavy and Custom
};

/// One line of the menu tree. An item's object name is array + "_" + index; a menu's is array. Menu and SubMenu open a
/// level, End closes it.
struct MenuRow {
    MenuKind kind;
    std::string_view array = {};
    int index = 0;
    std::string_view caption = {};
    std::string_view word = {};
    std::string_view shortcuts = {}; // separated by blanks; the first is shown
    bool checkable = false;
};

/// The whole tree, top down.
std::span<const MenuRow> menuRows();

/// A caption without its access key and the dots of a dialog.
QString plainCaption(QString caption);

/// An item by a name that is clear outside of its menu, such as "Emboss: Light", and its menus, as "Filters › Emboss".
struct NamedItem {
    const MenuRow* row;
    QString name, path;
};
/// All items, top down.
std::vector<NamedItem> namedItems();
/// The name of a word's first item, or the caption of its button; empty without one.
QString nameOf(std::string_view word);

/// What a user may want to know, or look for, beyond the caption.
struct WordHelp {
    std::string_view word;
    std::string_view about; // one line for the hover text of the item
    std::string_view finds; // other words for it, separated by blanks
};
/// Empty texts for a word without any.
WordHelp helpOf(std::string_view word);

/// A button of a toolbar; missing numbers are separators. A button without a word only opens its drop-down.
struct ButtonRow {
    std::string_view bar; // "tb_0", "tbi", ...; the object name is bar + "_" + number
    int number;
    std::string_view caption;
    std::string_view word;
};

/// An entry of a button's drop-down; missing numbers are separators.
struct DropRow {
    std::string_view bar;
    int button;
    int item;
    std::string_view caption;
    std::string_view word;
};

std::span<const ButtonRow> buttonRows();
std::span<const DropRow> dropRows();

/// The toolbars in the order of Setup::BarVisible.
struct BarRow {
    std::string_view name;    // object name of the toolbar
    std::string_view buttons; // ButtonRow::bar of its buttons
    std::string_view caption;
};
std::span<const BarRow> barRows();

/// The buttons of the tool strip tb_tools below those of the tools; key is what a click sends.
struct StripRow {
    int number;
    std::string_view key;
    std::string_view caption;
    bool checkable;
    std::string_view shortcuts; // separated by blanks
};
std::span<const StripRow> stripRows();

/// Icon name of a word, an "@" action or a button of the strip: from the theme, or our own (":name"). Empty when it has
/// none.
std::string_view pictureOf(std::string_view word);

} // namespace velara
