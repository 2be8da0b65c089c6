#include "fileio/nameOrder.h"
#include <QLocale>

namespace velara {

const QCollator& nameOrder()
{
    static const QCollator collator = [] {
        const QLocale own; // of a system without a language compares bytes alone
        QCollator byName(own.language() == QLocale::C ? QLocale(QLocale::English) : own);
        byName.setNumericMode(true);
        byName.setCaseSensitivity(Qt::CaseInsensitive);
        return byName;
    }();
    return collator;
}

} // namespace velara
