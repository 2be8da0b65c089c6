// Names for controls: fixed ones, by which tests and scripts find them, and accessible ones for screen readers.
#pragma once
#include <QString>

namespace velara {

/// Sets a control's object name and, unless it is empty, its accessible name; returns the control.
template <class Control> Control* named(Control* control, const QString& name, const QString& accessibleName = {})
{
    control->setObjectName(name);
    if (!accessibleName.isEmpty()) control->setAccessibleName(accessibleName);
    return control;
}

} // namespace velara
