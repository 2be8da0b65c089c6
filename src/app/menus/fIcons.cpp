#include "app/menus/fIcons.h"
#include "app/menus/menus.h"
#include "seams/text.h"
#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QStandardPaths>

static void initResources() { Q_INIT_RESOURCE(velara); }

namespace velara {

namespace {

constexpr int kMenuSide = 16, kBarSide = 22; // the theme has a drawing of its own for each

/// The file of the theme's drawing for icons of this side; empty without one.
QString drawingOf(const QString& name, int side)
{
    for (const QString& folder : QIcon::themeSearchPaths())
        for (const char* kind : {"actions", "devices"}) {
            const QString path = QStringLiteral("%1/%2/%3/%4/%5.svg")
                                     .arg(folder, QIcon::themeName(), QLatin1String(kind), QString::number(side), name);
            if (QFile::exists(path)) return path;
        }
    return {};
}

/// Scales the drawing that is made for the icon's size on an ordinary screen. At one and a half of it the theme's own
/// choice goes by the pixels, so that thin lines and filled shapes stand side by side.
class ScaledDrawing final : public QIconEngine {
  public:
    ScaledDrawing(const QIcon& forMenus, const QIcon& forBars) : forMenus_(forMenus), forBars_(forBars) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        drawing(rect.width()).paint(painter, rect, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return scaledPixmap(size, mode, state, 1);
    }
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal scale) override
    {
        return drawing(qRound(size.width() / scale)).pixmap(size, 1, mode, state);
    }
    bool isNull() override { return false; }
    QIconEngine* clone() const override { return new ScaledDrawing(*this); }

  private:
    const QIcon& drawing(int side) const { return side > kMenuSide ? forBars_ : forMenus_; }

    QIcon forMenus_, forBars_;
};

} // namespace

void useResources() { initResources(); }

void useIconTheme()
{
    const bool dark = QApplication::palette().color(QPalette::Window).lightness() < 128;
    // Without a desktop environment Qt searches nowhere.
    QStringList paths = QIcon::themeSearchPaths();
    for (const QString& folder : QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation))
        if (!paths.contains(folder + "/icons")) paths << folder + "/icons";
    QIcon::setThemeSearchPaths(paths);
    QIcon::setFallbackThemeName("breeze");
    QIcon::setThemeName(dark ? "breeze-dark" : "breeze");
}

QIcon themeIcon(const QString& name)
{
    const QString forMenus = drawingOf(name, kMenuSide), forBars = drawingOf(name, kBarSide);
    if (forMenus.isEmpty() && forBars.isEmpty()) return QIcon::fromTheme(name);
    return QIcon(new ScaledDrawing(QIcon(forMenus.isEmpty() ? forBars : forMenus),
                                   QIcon(forBars.isEmpty() ? forMenus : forBars)));
}

QIcon iconOf(std::string_view word)
{
    const QString name = text(pictureOf(word));
    if (name.isEmpty()) return {};
    if (name.startsWith(':')) return QIcon(":/icons/" + name.mid(1) + ".svg");
    return themeIcon(name);
}

} // namespace velara
