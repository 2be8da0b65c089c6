#include "ui/compose/mFonts.h"
#include "seams/Fonts.h"
#include "seams/Platform.h"
#include <QFont>
#include <QSignalBlocker>
#include <algorithm>

namespace velara {

namespace {

constexpr const char *kSection = "Fonts", *kKey = "Recent";
constexpr int kMostRecent = 5;

QStringList recentFonts(Platform& platform)
{
    return platform.setting(kSection, kKey, {}).split(u'|', Qt::SkipEmptyParts).mid(0, kMostRecent);
}

void addFont(QComboBox& list, const FontFamily& family)
{
    list.addItem(family.name);
    const int row = list.count() - 1;
    list.setItemData(row, family.writingSystems.join(QStringLiteral(", ")), Qt::ToolTipRole);
    // A face without Latin letters would make its own name unreadable.
    if (family.writingSystems.contains(QStringLiteral("Latin")))
        list.setItemData(row, QFont(family.name, list.font().pointSize()), Qt::FontRole);
}

} // namespace

bool fillFonts(QComboBox& list, Platform& platform)
{
    const auto families = platform.fonts().list();
    if (!families) {
        platform.tell(QCoreApplication::translate("Fonts", "Failed to get font info"), Icon::Exclamation);
        return false;
    }
    list.clear();
    for (const bool ofSymbols : {false, true}) // nobody begins a text with those
        for (const FontFamily& family : *families)
            if (family.writingSystems.isEmpty() == ofSymbols) addFont(list, family);
    showRecentFonts(list, platform);
    return true;
}

int firstFont(const QComboBox& list)
{
    for (int row = 0; row < list.count(); ++row)
        if (list.itemText(row).isEmpty()) return row + 1; // the separator
    return 0;
}

void selectFont(QComboBox& list, Platform& platform, const QString& family)
{
    const int itself = list.findText(family, Qt::MatchFixedString);
    const int standIn = list.findText(platform.fonts().standIn(family), Qt::MatchFixedString);
    list.setCurrentIndex(itself >= 0 ? itself : std::max(standIn, 0));
}

void keepFont(Platform& platform, const QString& family)
{
    QStringList recent = recentFonts(platform);
    recent.removeAll(family);
    recent.prepend(family);
    platform.setSetting(kSection, kKey, recent.mid(0, kMostRecent).join(u'|'));
}

void showRecentFonts(QComboBox& list, Platform& platform)
{
    const QSignalBlocker quiet(list);
    const QString chosen = list.currentText();
    for (int old = firstFont(list); old > 0; --old) list.removeItem(0);
    int top = 0;
    for (const QString& name : recentFonts(platform)) {
        const int row = list.findText(name, Qt::MatchExactly);
        if (row < top) continue; // no longer installed
        list.insertItem(top, name);
        for (const int role : {int{Qt::ToolTipRole}, int{Qt::FontRole}})
            list.setItemData(top, list.itemData(row + 1, role), role);
        ++top;
    }
    if (top > 0) list.insertSeparator(top);
    list.setCurrentIndex(list.findText(chosen, Qt::MatchExactly));
}

} // namespace velara
