// fPane: a pane of tool settings, built from rows. It writes straight into what the documents read at their next event.
// The same rows make the pane in the frame's side and the one that pops up from the tool strip.
#pragma once
#include "seams/Setup.h"
#include "seams/ToolStores.h"
#include <QFrame>
#include <functional>
#include <span>
#include <type_traits>

class QVBoxLayout;

namespace velara {

class Frame;

enum class PaneKind { Slider, Combo, List, Check, Well };

/// A control with its range or entries, and the setting behind it.
struct PaneRow {
    PaneKind kind;
    const char* name;    // of the control; its value's label is "lbl" + name
    const char* caption; // "&" marks the key; of lists and wells only the accessible name
    int low = 0, high = 0;
    const char* entries = ""; // of lists, split by "|"
    const char* numbers = ""; // a digit for each entry: the value it stands for; empty: its place
    const char* hint = "";
    int (*get)(const Setup&, const ToolStores&) = nullptr;
    void (*set)(Setup&, ToolStores&, int) = nullptr;
};

/// The row with the field of Setup or of ToolStores behind it.
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
template <auto Field> constexpr PaneRow slider(const char* name, const char* caption, int low, int high)
{
    return bound<Field>({PaneKind::Slider, name, caption, low, high});
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

class fPane : public QFrame {
    Q_OBJECT
  public:
    /// Values out of range are brought into it.
    fPane(Frame& frame, const QString& name, std::span<const PaneRow> rows, QWidget* parent = nullptr);

    /// The controls show the settings.
    void refresh();

  protected:
    void showEvent(QShowEvent* event) override;
    /// A setting was changed here, or all were shown anew.
    virtual void edited() {}
    Frame& frame() const { return frame_; }
    QVBoxLayout* column() const { return column_; }

  private:
    void add(const PaneRow& row);
    void addSlider(const PaneRow& row);
    void addChoice(const PaneRow& row);
    void addCheck(const PaneRow& row);
    void addWell(const PaneRow& row);
    int value(const PaneRow& row) const;
    void write(const PaneRow& row, int value);

    Frame& frame_;
    QVBoxLayout* column_;
    std::vector<std::function<void()>> shows_; // each shows one setting in its control
    bool refreshing_ = false;
};

} // namespace velara
