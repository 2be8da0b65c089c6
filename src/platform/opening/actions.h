// What the program's entry in the desktop's menus offers beside a start, as its "desktop actions".
#pragma once
#include <algorithm>
#include <string_view>

namespace velara {

struct DesktopAction {
    std::string_view name;
    std::string_view caption; // for the menu
    std::string_view word;    // the command that it runs
    std::string_view icon;    // of the theme
};

// clang-format off
inline constexpr DesktopAction kDesktopActions[] = {
    {"new-picture",    "New Picture ...",           "NEW",                 "document-new"},
    {"from-clipboard", "Picture from the Clipboard", "CREATEFROMCLIPBOARD", "edit-paste"},
    {"capture",        "Capture the Screen ...",    "@CAPTURE",            "camera-photo"},
    {"browse",         "Browse Pictures ...",       "@BROWSE",             "folder-pictures"},
};
// clang-format on

/// Null when there is none.
constexpr const DesktopAction* findAction(std::string_view name)
{
    const auto* found = std::ranges::find(kDesktopActions, name, &DesktopAction::name);
    return found == std::end(kDesktopActions) ? nullptr : found;
}

} // namespace velara
