// Controls are found by tests and scripts under their fixed names, and told by screen readers under names for people.
#pragma once
#include <QString>

namespace velara {

/// The control itself, with its name and, unless it is empty, the one that a person is told.
template <class Control> Control* named(Control* control, const QString& name, const QString& accessibleName = {})
{
    control->setObjectName(name);
    if (!accessibleName.isEmpty()) control->setAccessibleName(accessibleName);
    return control;
}

} // namespace velara
