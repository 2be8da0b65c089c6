#include "app/help/manualPages.h"
#include "seams/text.h"
#include <QFile>
#include <QRegularExpression>
#include <QWidget>
#include <algorithm>
#include <span>
#include <string_view>

static void initResources() { Q_INIT_RESOURCE(manual); }

namespace velara {

namespace {

struct PageRow {
    std::string_view name; // the object name of a window, a box or a part of one
    std::string_view page;
};

// clang-format off
constexpr PageRow kWindows[] = {
    {"fSplash", "start"},          {"fSearch", "keys"},        {"fHelp", "keys"},
    {"fManual", "start"},         {"fNew", "start"},             {"fBrowse", "opening"},     {"QFileDialog", "opening"},
    {"fAssociation", "formats"},  {"fProperties", "camera"},     {"fPreferences", "settings"},
    {"fRecovery", "recovery"},    {"fHistory", "history"},       {"fFolderRun", "folder"},
    {"fSize", "size"},            {"fCanvas", "size"},           {"fOrientation", "size"},   {"fRotate", "size"},
    {"fResolution", "size"},      {"fFilter", "filters"},        {"fColorDepth", "colours"}, {"fPicker", "colours"},
    {"fPalette", "colours"},      {"fToolTextures", "text"},     {"fLayers", "text"},        {"fTexturize", "merging"},
    {"fOverlay", "merging"},      {"fPaste", "clips"},           {"FWeb", "web"},            {"fWebTable", "web"},
    {"fCapture", "capture"},      {"fAcquire", "scanner"},       {"fSource", "scanner"},     {"fPrint", "printing"},
    {"Dlg", "printing"},          {"fIcon", "icons"},            {"fIconMaker", "icons"},    {"fIconBrowse", "icons"},
};
constexpr PageRow kTools[] = {
    {"Select", "selecting"}, {"SelectionMove", "selecting"}, {"Text", "text"},         {"GetColor", "colours"},
    {"Brush", "painting"},   {"Fill", "painting"},           {"Shape", "painting"},    {"Airbrush", "painting"},
    {"Stamp", "painting"},   {"Gradient", "painting"},       {"Pencil", "painting"},   {"Paste", "clips"},
};
// clang-format on

QString pageIn(std::span<const PageRow> rows, const QString& name)
{
    const auto found = std::ranges::find_if(rows, [&](const PageRow& row) { return name == text(row.name); });
    return found == rows.end() ? QString() : text(found->page);
}

} // namespace

QString manualAddress(const QString& page)
{
    initResources();
    return QStringLiteral(":/manual/manual/%1.md").arg(page);
}

QString manualText(const QString& page)
{
    QFile file(manualAddress(page));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QList<ManualPage> manualPages()
{
    static const QRegularExpression kLink(QStringLiteral("\\]\\(([a-z]+)\\.md\\)"));
    QList<ManualPage> pages{{kFirstManualPage, {}}};
    for (auto each = kLink.globalMatch(manualText(kFirstManualPage)); each.hasNext();) {
        const QString name = each.next().captured(1);
        if (std::ranges::none_of(pages, [&](const ManualPage& page) { return page.name == name; }))
            pages.append({name, {}});
    }
    for (ManualPage& page : pages) page.title = manualText(page.name).section(u'\n', 0, 0).mid(2);
    return pages;
}

QString manualPageOf(const QWidget& widget)
{
    for (const QWidget* each = &widget; each; each = each->isWindow() ? nullptr : each->parentWidget())
        if (const QString page = pageIn(kWindows, each->objectName()); !page.isEmpty()) return page;
    return {};
}

QString manualPageOfTool(const QString& tool)
{
    const QString page = pageIn(kTools, tool.trimmed());
    return page.isEmpty() ? kFirstManualPage : page;
}

} // namespace velara
