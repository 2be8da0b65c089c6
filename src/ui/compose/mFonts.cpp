#include "ui/compose/mFonts.h"
#include "seams/Fonts.h"
#include "seams/Platform.h"

namespace velara {

bool fillFonts(QComboBox& list, Platform& platform)
{
    const auto families = platform.fonts().list();
    if (!families) {
        platform.tell(QStringLiteral("Failed to get font info"), Icon::Exclamation);
        return false;
    }
    list.clear();
    for (const FontFamily& family : *families) {
        list.addItem(family.name);
        list.setItemData(list.count() - 1, family.writingSystems.join(QStringLiteral(", ")), Qt::ToolTipRole);
    }
    return true;
}

void selectFont(QComboBox& list, Platform& platform, const QString& family)
{
    const int itself = list.findText(family, Qt::MatchFixedString);
    const int standIn = list.findText(platform.fonts().standIn(family), Qt::MatchFixedString);
    list.setCurrentIndex(itself >= 0 ? itself : std::max(standIn, 0));
}

} // namespace velara
