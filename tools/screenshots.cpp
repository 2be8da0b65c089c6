// Takes screenshots of the editor's windows for docs/screenshots: screenshots FOLDER light|dark|contrast-light|
// contrast-dark. The scale is Qt's own QT_SCALE_FACTOR. Works without a display.
#include "app/frame/fToolPane.h"
#include "app/help/fManual.h"
#include "app/menus/fIcons.h"
#include "app/menus/fMenuStyle.h"
#include "app/menus/menus.h"
#include "app/settings/Appearance.h"
#include "app/settings/fPreferences.h"
#include "app/start/fRecovery.h"
#include "app/start/fSplash.h"
#include "document/recovery/Leftover.h"
#include "document/undo/UndoStore.h"
#include "pixels/images.h"
#include "platform/desktop/dialogs/fileDialogs.h"
#include "support/RecordingPlatform.h"
#include "support/ui/startedEditor.h"
#include "ui/many/fFolderRun.h"
#include "ui/view/fProperties.h"
#include <QApplication>
#include <QComboBox>
#include <QDateTime>
#include <QDialogButtonBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPainter>
#include <QPointer>
#include <QTabWidget>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>
#include <cstdio>
#include <functional>

using namespace velara;

namespace {

QString folder, suffix;

void settle(int milliseconds = 60)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds) QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
}

void save(const QPixmap& pixmap, const QString& name)
{
    const QString path = folder + "/" + name + suffix + ".png";
    if (!pixmap.save(path, "PNG", 0)) std::fprintf(stderr, "can't write %s\n", qPrintable(path));
}

/// The frame with one of its menus open over it, submenus beside it.
void shootMenu(QWidget& frame, QMenu& menu)
{
    QPixmap all = frame.grab();
    QPainter painter(&all);
    QPoint at = frame.mapFromGlobal(menu.pos());
    QRegion painted;
    const auto show = [&](QMenu& shown) {
        painter.drawPixmap(at, shown.grab());
        painted += QRect(at, shown.size());
    };
    show(menu);
    at.rx() += menu.width();
    for (QAction* item : menu.actions())
        if (QMenu* sub = item->menu()) {
            sub->popup(QPoint(0, 0));
            settle(20);
            show(*sub);
            at.rx() += sub->width() + 4;
            if (at.x() + 120 > frame.width())
                at = QPoint(frame.mapFromGlobal(menu.pos()).x() + menu.width(), at.y() + 200);
            sub->close();
        }
    painter.end();
    constexpr int kLeast = 400, kRoom = 40; // of the frame, around its menus
    const QRect menus = QRect(QPoint(), painted.boundingRect().bottomRight()).adjusted(0, 0, kRoom, kRoom);
    const QRect part = menus.united(QRect(0, 0, kLeast, 0)) & frame.rect();
    save(all.copy(QRect(part.topLeft(), part.size() * all.devicePixelRatio())), "menu_" + menu.objectName());
}

/// The dialogs by the words that open them; large: at double size as well.
struct DialogRow {
    const char* word;
    bool large;
    const char* list = nullptr; // where an entry is selected first
    int entry = 0;
};
// clang-format off
constexpr DialogRow kDialogs[] = {
    {"NEW", false}, {"IMAGESIZE", false}, {"CANVASSIZE", true}, {"IMAGEORIENTATION", false}, {"IMAGEROTATE", false},
    {"IMAGERESOLUTION", false}, {"CUSTOMGLASS", false}, {"CUSTOMCURTAIN", false}, {"COLORIZE", true}, {"GAMMA", false},
    {"REPLACEHUESAT", false}, {"RGBBANKS", false}, {"LENS", false}, {"ADDGRID", false}, {"IMAGETEXTURES", false},
    {"IMAGECOLORDEPTH", false, "cmbDepth", 1}, {"IMAGESAVEOPTIONS", true, "CboFiles", 4}, {"@ICON", false},
    {"PRINT", true}, {"ACQUIRETWAIN", true}, {"@CAPTURE", false},
};
// clang-format on

/// Opens a dialog, and takes its picture once it is prepared.
void shootDialog(const QString& name, const std::function<void()>& open,
                 const std::function<void(QWidget&)>& prepare = {})
{
    bool shot = false;
    QTimer::singleShot(1500, [&] { // textures are read one after the other
        if (QWidget* dialog = QApplication::activeModalWidget()) {
            if (prepare) prepare(*dialog);
            save(dialog->grab(), "dialog_" + QString(name).remove('@'));
            dialog->close();
        }
        shot = true;
    });
    open();
    while (!shot) settle(); // some windows run a loop of their own in there, others don't
}

void shootDialog(fMain& frame, const DialogRow& row)
{
    shootDialog(
        row.word, [&] { frame.run(row.word); },
        [&row](QWidget& dialog) {
            if (!row.list) return;
            dialog.findChild<QComboBox*>(row.list)->setCurrentIndex(row.entry);
            settle(1000);
        });
}

/// A modeless window.
void shootFreeWindow(fMain& frame, const QString& word, const QString& objectName)
{
    frame.run(word.toStdString());
    settle(500);
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() != objectName || !window->isVisible()) continue;
        save(window->grab(), "dialog_" + QString(word).remove('@'));
        window->close();
    }
}

/// Gives the small copies of pictures that lists and panes have asked for.
void answerPreviews(RecordingPlatform& platform)
{
    for (const QString& asked : std::vector(platform.previews().asked)) {
        const QImage image(QString(asked).remove("thumbnail "));
        const QSize box = asked.startsWith("thumbnail ") ? QSize(128, 128) : image.size();
        platform.previews().answer(asked, {image.scaled(box, Qt::KeepAspectRatio), image.size(), {}});
    }
}

/// The browser on the program's own folder: this machine's tree is private.
void shootBrowser(fMain& frame, RecordingPlatform& platform, const QString& picture)
{
    platform.settings["Browse/Last"] = picture;
    QFile file(picture); // the same date in every picture
    if (file.open(QIODevice::ReadWrite))
        file.setFileTime(QDateTime(QDate(2024, 5, 1), QTime(12, 0)), QFileDevice::FileModificationTime);
    file.close();
    shootDialog(
        "BROWSE", [&] { frame.run("@BROWSE"); },
        [&](QWidget& dialog) {
            auto* tree = dialog.findChild<QTreeView*>("BF");
            QModelIndex root = tree->currentIndex();
            while (root.parent().isValid() && root.data().toString() != QFileInfo(platform.folder.path()).fileName())
                root = root.parent();
            tree->setRootIndex(root);
            answerPreviews(platform);
            if (auto* name = dialog.findChild<QLabel*>("FileName")) name->setText(QFileInfo(picture).fileName());
            settle(200);
        });
}

/// The boxes; the textures box with each of its pages.
void shootBoxes(fMain& frame)
{
    for (const char* name : {"fPalette", "fToolTextures", "fPaste"}) {
        auto* box = frame.findChild<QWidget*>(name);
        auto* pages = box->findChild<QTabWidget*>();
        for (int page = 0; page < (pages ? pages->count() : 1); ++page) {
            if (pages) pages->setCurrentIndex(page);
            settle(300);
            if (auto* label = box->findChild<QLabel*>("lblFolder")) label->setText("Texture files of Textures");
            save(box->grab(), "box_" + QString(name) + (page ? "_" + QString::number(page) : QString()));
        }
    }
}

/// The box "History" with steps of all kinds, and the window that runs them on a folder.
void shootHistory(fMain& frame)
{
    for (const char* word : {"LIGHTSHARPEN", "SEPIATONE", "FLIPH", "N180", "UNDO"}) {
        frame.Mmenu(word);
        frame.workspace().wait();
    }
    frame.boxes().bring(Boxes::History);
    settle(300);
    save(frame.findChild<QWidget*>("fHistory")->grab(), "box_fHistory");
    frame.run("@RUNONFOLDER");
    auto* window = frame.findChild<fFolderRun*>();
    window->addInput("/home/ana/pictures");
    window->addInput("/home/ana/pictures/2024/lake.jpg");
    window->findChild<QLineEdit*>("txtInto")->setText("/home/ana/pictures-done");
    settle(300);
    save(window->grab(), "run_on_folder");
    window->close();
}

/// What a photo says of itself.
void shootProperties(fMain& frame)
{
    fProperties window({{"Name", "lake.jpg"},
                        {"Folder", "/home/ana/pictures"},
                        {"Kind", "JPEG"},
                        {"Size", "4000 x 3000 pixels (12 megapixels)"},
                        {"Camera", "Lumen X100"},
                        {"Lens", "23 mm F2"},
                        {"Exposure", "1/250 s, f/5.6, ISO 200"},
                        {"Date", "2024-05-01 12:00:00"},
                        {"Place", "46.4611 N, 6.8375 E"}},
                       &frame);
    window.show();
    settle(200);
    save(window.grab(), "properties");
}

/// What a program that died has left, in the box that offers it.
void shootRecovery(fMain& frame, const Bits& lake)
{
    const QTemporaryDir folder;
    std::vector<Offer> offers;
    for (const int number : {1, 2}) {
        UndoStore store(folder.path(), number);
        store.willDescribe({.isUnsaved = true});
        store.save(lake, "Blur");
        store.stands();
    }
    for (const auto& leftover : Leftover::find(folder.path())) {
        const bool first = offers.empty();
        const QImage small = imageOver(lake).scaled(128, 128, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        offers.push_back({leftover,
                          first ? "lake.jpg" : "New.bmp",
                          first ? "/home/ana/pictures/lake.jpg" : "New.bmp",
                          first ? "1 May 2024 12:00, 7 steps" : "1 May 2024 11:48, 2 steps",
                          {},
                          small,
                          true});
    }
    auto* box = new fRecovery(&frame);
    box->follow(offers);
    box->show();
    settle(300);
    save(box->grab(), "recovery");
    delete box;
}

/// The dialog that asks for a name, with its boxes; this machine's folders are private.
void shootSaveAs(RecordingPlatform& platform, const Bits& lake)
{
    const QTemporaryDir folder;
    const QString pictures = folder.filePath("pictures");
    QDir().mkpath(pictures);
    for (const char* name : {"beach.jpg", "boat.jpg", "lake.jpg"}) {
        const QString path = pictures + '/' + name;
        imageOver(lake).save(path, "JPEG");
        QFile file(path);
        if (file.open(QIODevice::ReadWrite))
            file.setFileTime(QDateTime(QDate(2024, 5, 1), QTime(12, 0)), QFileDevice::FileModificationTime);
    }
    bool camera = true, withoutPlace = false;
    const auto ask = [&] {
        FileDialog request{"Save as",       "JPEG (*.jpg)|*.jpg|PNG (*.png)|*.png", pictures, "*.jpg", "jpg",
                           "lake-small.jpg"};
        request.choices = {{"chkKeepCamera", fMain::tr("&Keep camera data"), &camera},
                           {"chkWithoutPlace", fMain::tr("without the &place"), &withoutPlace, &camera}};
        askSaveName(platform, request);
    };
    shootDialog("SAVEAS", ask, [&](QWidget& dialog) {
        for (QComboBox* list : dialog.findChildren<QComboBox*>())
            if (list->objectName() == "lookInCombo") list->setItemText(list->currentIndex(), "/home/ana/pictures");
        if (auto* sidebar = dialog.findChild<QAbstractItemView*>("sidebar")) sidebar->hide();
        answerPreviews(platform);
        settle(200);
    });
}

void shootManual(fMain& frame)
{
    auto* window = new fManual(&frame);
    window->open("filters");
    settle(400);
    save(window->grab(), "manual");
    delete window;
}

/// The side pane with each tool, and the floating copies of the panes one below the other.
void shootPanes(fMain& frame)
{
    const QStringList keys = {"Select", "SelectionMove", "Brush", "Airbrush", "Fill", "Shape", "Stamp", "Gradient"};
    constexpr int kPaneHeight = 560;
    QPixmap all(int(keys.size()) * frame.toolPane().width(), kPaneHeight);
    QPainter painter(&all);
    int x = 0;
    for (const QString& key : keys) {
        frame.toolClicked(key);
        settle(30);
        painter.drawPixmap(x, 0, frame.toolPane().grab(QRect(0, 0, frame.toolPane().width(), kPaneHeight)));
        x += frame.toolPane().width();
    }
    painter.end();
    save(all, "tool_panes");

    QPointer<QWidget> popup;
    QToolButton* button = frame.toolPane().button("Brush");
    QEvent enter(QEvent::Enter);
    QCoreApplication::sendEvent(button, &enter);
    const auto find = [&] {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->isVisible() && window->findChild<QLabel*>("lblTool", Qt::FindDirectChildrenOnly))
                popup = window;
    };
    for (int i = 0; i < 40 && !popup; ++i) { // the pointer has to rest
        settle(100);
        find();
    }
    if (popup) save(popup->grab(), "tool_popup");
}

} // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    if (argc != 3) {
        std::fprintf(stderr, "usage: screenshots FOLDER light|dark|contrast-light|contrast-dark\n");
        return 2;
    }
    folder = argv[1];
    QDir().mkpath(folder);
    const auto row = std::ranges::find_if(lookRows(), [&](const LookRow& r) { return QString(argv[2]) == r.key; });
    const Look look = row == lookRows().end() ? Look::Desktop : row->look;
    const bool isLight = look == Look::Desktop || look == Look::Light;
    suffix = (isLight ? QString() : '_' + QString(argv[2])) + (qApp->devicePixelRatio() > 1 ? "_2x" : "");
    application.setStyle(new fMenuStyle);
    showLook(look, {});

    RecordingPlatform platform;
    platform.printers().printers = {{"Office", "Photo"}, "Photo"};
    platform.printers().mostCopies = 99;
    platform.scanner().sources = {{"flat:0", "Flatbed scanner"}};
    platform.scanner().range.choices = {{"Flatbed", "Color", false, {50, 1200}, 1, 300, {216, 297}},
                                        {"Document feeder", "Color", true, {100, 300}, 0, 300, {216, 356}}};
    Setup setup;
    const auto frame = startedEditor(platform, setup);
    frame->resize(1100, 760);
    settle();
    save(frame->grab(), "frame_empty");
    const QString picture = platform.folder.filePath("Images/Velara.bmp");
    platform.answers = {picture, picture};
    for (const char* word : {"OPEN", "OPEN", "LIGHTEMBOSS"}) {
        frame->Mmenu(word);
        frame->workspace().wait();
    }
    const auto windows = frame->area().subWindowList();
    windows[0]->setGeometry(20, 20, 560, 420);
    windows[1]->setGeometry(260, 120, 600, 420);
    settle();
    save(frame->grab(), "frame_two_pictures");

    setup.Recent = {}; // no paths of this machine
    frame->FillRecent();
    const bool few = qApp->devicePixelRatio() > 1; // double size: a few windows are enough
    const auto menus = frame->menuBar()->findChildren<QMenu*>(Qt::FindDirectChildrenOnly);
    for (QMenu* menu : menus) {
        if (few && menu->objectName() != "mnuFilters") continue;
        if (menu->objectName().isEmpty()) continue;
        menu->popup(frame->mapToGlobal(QPoint(frame->menuBar()->actionGeometry(menu->menuAction()).bottomLeft())));
        settle(20);
        for (QAction* item : menu->actions())
            if (item->isEnabled() && !item->isSeparator() && !item->icon().isNull()) {
                menu->setActiveAction(item);
                break;
            }
        settle(20);
        shootMenu(*frame, *menu);
        menu->close();
    }

    setup.ImagesPath = "/home/ana/pictures/";
    fPreferences options(platform, setup, frame.get());
    options.show();
    settle();
    save(options.grab(), "options");
    options.hide();

    QMessageBox question(QMessageBox::Information, "Velara Studio",
                         "/home/ana/pictures/lake.bmp\nThis image has changed.\nDo you want to save it ?",
                         QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    question.show();
    settle();
    save(question.grab(), "close_question");
    question.hide();

    fSplash about(platform, frame.get());
    about.showFacts();
    about.show();
    settle();
    save(about.grab(), "about");
    about.hide();

    frame->area().setActiveSubWindow(windows[0]); // the coloured one
    for (const DialogRow& row : kDialogs)
        if (!few || row.large) shootDialog(*frame, row);
    if (!few) {
        shootDialog("color", [&] { frame->pickColour(0xE9AE3D, "First color", frame.get()); });
        shootFreeWindow(*frame, "TEXTTOOLS", "fLayers");
        shootFreeWindow(*frame, "IMAGEMERGING", "fOverlay");
        shootFreeWindow(*frame, "@ASSOCIATION", "fAssociation");
        shootFreeWindow(*frame, "@SEARCH", "fSearch");
        shootFreeWindow(*frame, "@KEYS", "fHelp");
        shootBrowser(*frame, platform, picture);
        shootBoxes(*frame);
        shootHistory(*frame);
        shootProperties(*frame);
        shootRecovery(*frame, frame->GetActiveImage()->bits());
        shootSaveAs(platform, frame->GetActiveImage()->bits());
        shootManual(*frame);
    }
    if (!few) shootPanes(*frame);
    setup.AskToSave = false;
    frame->close();
    return 0;
}
