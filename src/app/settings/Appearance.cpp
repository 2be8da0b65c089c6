#include "app/settings/Appearance.h"
#include "seams/Machine.h"
#include "ui/widgets/marks/motion.h"
#include <QApplication>
#include <QMainWindow>
#include <QProxyStyle>
#include <algorithm>

namespace velara {

namespace {

const QString kSection = QStringLiteral("VeStu"), kKey = QStringLiteral("Appearance");

constexpr LookRow kLooks[] = {
    {Look::Desktop, "desktop", QT_TRANSLATE_NOOP("velara::Appearance", "As the desktop")},
    {Look::Light, "light", QT_TRANSLATE_NOOP("velara::Appearance", "Light")},
    {Look::Dark, "dark", QT_TRANSLATE_NOOP("velara::Appearance", "Dark")},
    {Look::ContrastLight, "contrast-light", QT_TRANSLATE_NOOP("velara::Appearance", "High contrast, light")},
    {Look::ContrastDark, "contrast-dark", QT_TRANSLATE_NOOP("velara::Appearance", "High contrast, dark")},
};

// clang-format off
struct Colours {
    Look look;
    QRgb window, text, base, other, button, tip, highlight, highlightedText, link, visited, light, mid, dark, shadow;
};
constexpr Colours kColours[] = {
    {Look::Light,         0xffefefef, 0xff1f2326, 0xffffffff, 0xfff7f7f7, 0xffefefef, 0xffffffdc, 0xff1f6ba3, 0xffffffff, 0xff0a58ca, 0xff6f42c1, 0xffffffff, 0xffb8b8b8, 0xff9f9f9f, 0xff767676},
    {Look::Dark,          0xff2a2e32, 0xfffcfcfc, 0xff1b1e20, 0xff232629, 0xff2a2e32, 0xff31363b, 0xff1f6a94, 0xffffffff, 0xff6cb8e6, 0xffc09ae6, 0xff5c6369, 0xff4d5359, 0xff24282b, 0xff141618},
    {Look::ContrastLight, 0xffffffff, 0xff000000, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 0xff00349e, 0xffffffff, 0xff0000c0, 0xff6a006a, 0xffffffff, 0xff767676, 0xff595959, 0xff000000},
    {Look::ContrastDark,  0xff000000, 0xffffffff, 0xff000000, 0xff000000, 0xff000000, 0xff000000, 0xff1aebff, 0xff000000, 0xffffff00, 0xffffb3ff, 0xffffffff, 0xff808080, 0xff1a1a1a, 0xff000000},
};
// clang-format on

bool isDark(const QPalette& palette) { return palette.color(QPalette::Window).lightness() < 128; }

/// A desktop's own style has its own colours, which follow the desktop without us.
bool isPlain()
{
    const auto* ours = qobject_cast<const QProxyStyle*>(QApplication::style());
    return (ours ? ours->baseStyle() : QApplication::style())->name() == QLatin1String("fusion");
}

Look wished(const Wishes& wishes)
{
    const bool dark = wishes.dark.value_or(isDark(QApplication::palette()));
    if (wishes.contrast) return dark ? Look::ContrastDark : Look::ContrastLight;
    return isPlain() && wishes.dark && dark != isDark(QApplication::palette()) ? (dark ? Look::Dark : Look::Light)
                                                                               : Look::Desktop;
}

} // namespace

std::span<const LookRow> lookRows() { return kLooks; }

Look chosenLook(Machine& machine)
{
    const QString key = machine.setting(kSection, kKey, QLatin1String(kLooks[0].key));
    const auto* row = std::ranges::find_if(kLooks, [&](const LookRow& r) { return key == QLatin1String(r.key); });
    return row == std::end(kLooks) ? Look::Desktop : row->look;
}

void chooseLook(Machine& machine, Look look)
{
    machine.setSetting(kSection, kKey, QLatin1String(std::ranges::find(kLooks, look, &LookRow::look)->key));
}

QPalette paletteOf(Look look)
{
    const Colours& c = *std::ranges::find(kColours, look, &Colours::look);
    QPalette palette(QColor(c.button), QColor(c.window));
    const std::pair<QPalette::ColorRole, QRgb> roles[] = {{QPalette::WindowText, c.text},
                                                          {QPalette::Text, c.text},
                                                          {QPalette::ButtonText, c.text},
                                                          {QPalette::ToolTipText, c.text},
                                                          {QPalette::BrightText, c.highlight},
                                                          {QPalette::Window, c.window},
                                                          {QPalette::Base, c.base},
                                                          {QPalette::AlternateBase, c.other},
                                                          {QPalette::Button, c.button},
                                                          {QPalette::ToolTipBase, c.tip},
                                                          {QPalette::Highlight, c.highlight},
                                                          {QPalette::HighlightedText, c.highlightedText},
                                                          {QPalette::Link, c.link},
                                                          {QPalette::LinkVisited, c.visited},
                                                          {QPalette::Light, c.light},
                                                          {QPalette::Midlight, c.mid},
                                                          {QPalette::Mid, c.mid},
                                                          {QPalette::Dark, c.dark},
                                                          {QPalette::Shadow, c.shadow}};
    for (const auto& [role, colour] : roles) palette.setColor(role, QColor(colour));
    return palette;
}

void showLook(Look chosen, const Wishes& wishes)
{
    static bool isOurs = false; // the palette
    if (isOurs && chosen == Look::Desktop) QApplication::setPalette(QPalette());
    const Look look = chosen == Look::Desktop ? wished(wishes) : chosen;
    isOurs = look != Look::Desktop;
    if (isOurs) {
        QPalette palette = paletteOf(look);
        QApplication::style()->polish(palette);
        QApplication::setPalette(palette);
    }
    setLessMotion(wishes.lessMotion);
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* frame = qobject_cast<QMainWindow*>(window)) frame->setAnimated(!wishes.lessMotion);
}

Appearance::Appearance(Machine& machine, const QDBusConnection& bus) : machine_(machine), wishes_(bus)
{
    connect(&wishes_, &DesktopWishes::changed, this, &Appearance::apply);
    apply();
}

void Appearance::apply() { showLook(chosenLook(machine_), wishes_.wishes()); }

} // namespace velara
