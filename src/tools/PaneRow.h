// PaneRow: a tool's setting as shown in its panes. ui/panes makes the controls.
#pragma once
#include "seams/Setup.h"
#include "seams/ToolStores.h"
#include <type_traits>

namespace velara {

enum class PaneKind { Slider, Combo, List, Check, Well };

/// A control with its range or entries, and the setting it edits.
struct PaneRow {
    PaneKind kind;
    const char* name;    // of the control; the number beside a slider is "lbl" + name
    const char* caption; // "&" marks the shortcut key; for lists and wells only the accessible name
    int low = 0, high = 0;
    const char* entries = ""; // of lists, separated by "|"
    const char* numbers = ""; // a digit per entry: its value; empty: its index
    const char* hint = "";
    const char* unit = ""; // of a slider, after its number
    int (*get)(const Setup&, const ToolStores&) = nullptr;
    void (*set)(Setup&, ToolStores&, int) = nullptr;
    bool (*applies)(const Setup&) = nullptr; // else the control is disabled; null: always applies

    constexpr PaneRow onlyWhen(bool (*condition)(const Setup&)) const
    {
        PaneRow row = *this;
        row.applies = condition;
        return row;
    }
};

/// Binds the row to a field of Setup or of ToolStores.
template <auto Field> constexpr PaneRow bound(PaneRow row)
{
    constexpr bool inSetup = std::is_invocable_v<decltype(Field), Setup&>;
    row.get = [](const Setup& setup, const ToolStores& stores) -> int {
        if constexpr (inSetup)
            return static_cast<int>(setup.*Field);
        else
            return static_cast<int>(stores.*Field);
    };
    row.set = [](Setup& setup, ToolStores& stores, int value) {
        if constexpr (inSetup)
            setup.*Field = static_cast<std::remove_cvref_t<decltype(setup.*Field)>>(value);
        else
            stores.*Field = static_cast<std::remove_cvref_t<decltype(stores.*Field)>>(value);
    };
    return row;
}
template <auto Field>
constexpr PaneRow slider(const char* name, const char* caption, int low, int high, const char* unit = "")
{
    return bound<Field>({PaneKind::Slider, name, caption, low, high, "", "", "", unit});
}
template <auto Field>
constexpr PaneRow choice(PaneKind kind, const char* name, const char* caption, const char* entries,
                         const char* numbers = "")
{
    return bound<Field>({kind, name, caption, 0, 0, entries, numbers});
}
template <auto Field> constexpr PaneRow check(const char* name, const char* caption, const char* hint = "")
{
    return bound<Field>({PaneKind::Check, name, caption, 0, 1, "", "", hint});
}
template <auto Field> constexpr PaneRow well(const char* name, const char* caption)
{
    return bound<Field>({PaneKind::Well, name, caption});
}

} // namespace velara
