#include "app/start/fAboutFacts.h"
#include "ui/widgets/inputs/named.h"
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace velara {

namespace {

struct Library {
    const char *name, *does;
};

constexpr Library kLibraries[] = {
    // clang-format off
    {"libjpeg-turbo, libpng, libtiff, FreeImage", QT_TRANSLATE_NOOP("velara::fAboutFacts", "picture files")},
    {"giflib, libimagequant", QT_TRANSLATE_NOOP("velara::fAboutFacts", "GIF and palettes")},
    {"libwmf, libemf2svg",   QT_TRANSLATE_NOOP("velara::fAboutFacts", "metafiles")},
    {"SANE",                 QT_TRANSLATE_NOOP("velara::fAboutFacts", "scanners")},
    {"CUPS",                 QT_TRANSLATE_NOOP("velara::fAboutFacts", "printers")},
    {"Highway",              QT_TRANSLATE_NOOP("velara::fAboutFacts", "vector arithmetic")},
    {"libseccomp",           QT_TRANSLATE_NOOP("velara::fAboutFacts", "the cage of the decoders")},
    {"Breeze",               QT_TRANSLATE_NOOP("velara::fAboutFacts", "icons")},
    // clang-format on
};

QString libraries()
{
    const QString row = QStringLiteral("<tr><td>%1&nbsp;&nbsp;</td><td>%2</td></tr>");
    QString rows = row.arg(QStringLiteral("Qt ") + QLatin1String(qVersion()), fAboutFacts::tr("windows"));
    for (const Library& library : kLibraries)
        rows += row.arg(QLatin1String(library.name), fAboutFacts::tr(library.does));
    return QStringLiteral("<table cellspacing=1>") + rows + QStringLiteral("</table>");
}

} // namespace

fAboutFacts::fAboutFacts(QWidget* parent) : QFrame(parent)
{
    setAutoFillBackground(true);
    setAttribute(Qt::WA_NoMousePropagation); // a click on the picture above closes the window
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(16, 12, 16, 12);
    auto* facts = new QLabel(tr("<b>Velara Studio %1</b>"
                                "<p>Free software under the GNU General Public License, version 2 or later, "
                                "without any warranty.</p>"
                                "<p>It stands on</p>")
                                     .arg(QStringLiteral(VELARA_VERSION)) +
                                 libraries(),
                             this);
    named(facts, "lblFacts", tr("Version, license and libraries"));
    facts->setTextFormat(Qt::RichText);
    facts->setWordWrap(true);
    facts->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    facts->setCursor(Qt::IBeamCursor);
    auto* close = named(new QPushButton(tr("&Close"), this), "cmdClose");
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &fAboutFacts::closed);
    column->addWidget(facts);
    column->addWidget(close, 0, Qt::AlignRight);
    close->setFocus();
}

} // namespace velara
