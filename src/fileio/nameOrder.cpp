#include "fileio/nameOrder.h"
#include <QLocale>

namespace velara {

const QCollator& nameOrder()
{
    static const QCollator collator = [] {
        const QLocale own; // in a system without a language it compares bytes
        QCollator byName(own.language() == QLocale::C ? QLocale(QLocale::English) : own);
        byName.setNumericMode(true);
        byName.setCaseSensitivity(Qt::CaseInsensitive);
        return byName;
    }();
    return collator;
}

} // namespace velara
