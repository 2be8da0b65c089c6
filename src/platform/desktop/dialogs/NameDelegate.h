// Shows file names in lists in printable form, while the items keep the real ones.
#pragma once
#include "seams/printable.h"
#include <QStyledItemDelegate>

namespace velara {

class NameDelegate final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QString displayText(const QVariant& value, const QLocale& locale) const override
    {
        return printable(QStyledItemDelegate::displayText(value, locale));
    }
};

} // namespace velara
