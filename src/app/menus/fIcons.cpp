#include "app/menus/fIcons.h"
#include "app/menus/menus.h"
#include "seams/text.h"
#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QStandardPaths>
#include <QStyle>
#include <QStyleOption>
#include <QSvgRenderer>
#include <optional>
#include <utility>

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
///
/// Files are looked for and read when the icon is first shown: the menus have hundreds, of which a start shows a few.
/// Qt's own engine reads each file twice.
class Drawing final : public QIconEngine {
  public:
    explicit Drawing(QString name) : name_(std::move(name)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal scale = painter->device() ? painter->device()->devicePixelRatioF() : 1;
        painter->drawPixmap(rect, scaledPixmap(rect.size() * scale, mode, state, scale));
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return scaledPixmap(size, mode, state, 1);
    }
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal scale) override
    {
        const QString file = fileFor(qRound(size.width() / scale));
        if (file.isEmpty()) return QIcon::fromTheme(name_).pixmap(size, 1, mode, state);
        const qint64 colours = QGuiApplication::palette().cacheKey(); // which a disabled icon is mixed with
        const QString key = QStringLiteral("%1 %2 %3 %4 %5")
                                .arg(file, QString::number(size.width()), QString::number(size.height()),
                                     QString::number(mode), QString::number(colours));
        QPixmap pixmap;
        if (!QPixmapCache::find(key, &pixmap)) QPixmapCache::insert(key, pixmap = drawn(file, size, mode));
        return pixmap;
    }
    bool isNull() override { return fileFor(kBarSide).isEmpty() && QIcon::fromTheme(name_).isNull(); }
    QIconEngine* clone() const override { return new Drawing(*this); }

  private:
    static QPixmap drawn(const QString& file, const QSize& most, QIcon::Mode mode)
    {
        QSvgRenderer drawing(file);
        const QSize size = drawing.defaultSize().scaled(most, Qt::KeepAspectRatio);
        if (!drawing.isValid() || size.isEmpty()) return {};
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        drawing.render(&painter);
        painter.end();
        QStyleOption option(0);
        option.palette = QGuiApplication::palette();
        return mode == QIcon::Normal ? pixmap : QApplication::style()->generatedIconPixmap(mode, pixmap, &option);
    }
    /// Empty where the theme has none.
    const QString& fileFor(int side)
    {
        const bool isForBars = side > kMenuSide;
        std::optional<QString>& file = isForBars ? forBars_ : forMenus_;
        if (!file) file = find(isForBars ? kBarSide : kMenuSide, isForBars ? kMenuSide : kBarSide);
        return *file;
    }
    QString find(int side, int otherSide) const
    {
        if (name_.startsWith(':')) return name_;
        const QString file = drawingOf(name_, side);
        return file.isEmpty() ? drawingOf(name_, otherSide) : file;
    }

    QString name_;                              // in the theme, or the path of a resource
    std::optional<QString> forMenus_, forBars_; // the files, once they were looked for
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

QIcon themeIcon(const QString& name) { return QIcon(new Drawing(name)); }

QIcon iconOf(std::string_view word)
{
    const QString name = text(pictureOf(word));
    if (name.isEmpty()) return {};
    return themeIcon(name.startsWith(':') ? ":/icons/" + name.mid(1) + ".svg" : name);
}

} // namespace velara
