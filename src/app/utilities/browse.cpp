#include "app/utilities/browse.h"
#include "app/frame/fMain.h"
#include "seams/Platform.h"
#include "ui/browse/fAssociation.h"
#include "ui/browse/fBrowse.h"
#include "ui/compose/fToolTextures.h"

namespace velara {

namespace {

const QString kSection = QStringLiteral("Browse"), kLast = QStringLiteral("Last");

fBrowse* makeBrowser(fMain& frame, BrowseMode mode, const QString& start, QWidget* parent)
{
    auto* browser = new fBrowse(frame.platform(), mode, start, parent);
    browser->setAttribute(Qt::WA_DeleteOnClose);
    return browser;
}

} // namespace

void browsePictures(fMain& frame)
{
    const QString start = frame.platform().setting(kSection, kLast, frame.setup().ImagesPath.trimmed());
    fBrowse* browser = makeBrowser(frame, BrowseMode::Pictures, start, &frame);
    QObject::connect(browser, &fBrowse::opened, &frame, [&frame](const QString& path) {
        frame.platform().setSetting(kSection, kLast, path);
        frame.openPicture(path, Unreadable::Refused);
    });
    browser->show();
}

void browseTextureFolder(fMain& frame, fToolTextures& box)
{
    fBrowse* browser = makeBrowser(frame, BrowseMode::TextureFolder, box.textureFolder(), &box);
    QObject::connect(browser, &fBrowse::opened, &box, &fToolTextures::setTextureFolder);
    QObject::connect(browser, &fBrowse::finished, &box, &QWidget::activateWindow); // back to the window that asked
    browser->show();
}

void showAssociation(fMain& frame)
{
    auto* window = frame.findChild<fAssociation*>();
    if (!window) {
        window = new fAssociation(&frame);
        window->setAttribute(Qt::WA_DeleteOnClose);
    }
    window->show();
    window->raise();
    window->activateWindow();
}

} // namespace velara
