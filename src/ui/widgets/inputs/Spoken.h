// Spoken: what a control that draws itself is to a screen reader, beyond its name and description. The controls of Qt
// tell that themselves; a widget of our own is "filler" to a reader unless it is one of these.
#pragma once
#include <QAccessible>
#include <QString>
#include <optional>

class QWidget;

namespace velara {

class Spoken {
  public:
    struct Range {
        int now, least, most;
    };

    virtual ~Spoken() = default;
    virtual QAccessible::Role spokenRole() const = 0;
    /// What it shows, where that changes: a colour, the place of a mark.
    virtual QString spokenValue() const { return {}; }
    /// Of a slider; it then takes a value, too.
    virtual std::optional<Range> spokenRange() const { return {}; }
    virtual void setSpoken(int) {}
    /// Of a button.
    virtual bool isPressable() const { return false; }
    /// What a click does.
    virtual void press() {}
};

/// For a widget that shows or holds something and has no state of its own to tell: what it is. Before its accessible
/// name is set, as readers are told of it then.
void setSpokenRole(QWidget& widget, QAccessible::Role role);

/// Has screen readers told of these; once, before the first window.
void useSpoken();

/// Tells screen readers, if any listens, that spokenValue() is another one.
void sayValue(QWidget& widget);

} // namespace velara
