// The real platform with its boxes and dialogs on an offscreen desktop: a timer plays the user.
#include "platform/desktop/QtPlatform.h"
#include "platform/desktop/ReadingBox.h"
#include "platform/nameFilters.h"
#include "support/files.h"
#include "support/pictures.h"
#include "support/ui/controls.h"
#include <QtTest>
#include <QtWidgets>

namespace velara {

namespace {

struct QtPlatformTest : FolderTest {
    QtPlatform platform;
};

/// Runs an action on the dialog that opens next.
template <class Dialog> void whenShown(const std::function<void(Dialog&)>& act)
{
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, act] {
        auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        if (!dialog) return;
        timer->deleteLater();
        timer->stop();
        act(*dialog);
    });
    timer->start(5);
}

} // namespace

TEST(NameFilters, BecomeWhatTheDialogTakes)
{
    EXPECT_EQ(nameFilters("Bitmap Files (*.BMP;*.DIB)|*.bmp;*.dib|Koala (*.KOA)| *.koa"),
              QStringList({"Bitmap Files (*.BMP;*.DIB) (*.bmp *.dib)", "Koala (*.KOA) (*.koa)"}));
    EXPECT_EQ(nameFilters("Tagged (*.tif)|*.tif)"), QStringList("Tagged (*.tif) (*.tif)"));
    EXPECT_EQ(suffixFor("Tagged (*.tif)|*.tif)", "Tagged (*.tif)", {}), "tif");
    EXPECT_EQ(nameFilters("Odd|"), QStringList({"Odd (*)"}));
    EXPECT_EQ(nameFilters("cut off"), QStringList());
    const QString filter = "All |*.bmp;*.png|Png (*.PNG)|*.PNG|ASCII (*.ppm)(*.pgm)|*.ppm;*.pgm|Any|*";
    EXPECT_EQ(suffixFor(filter, "All", "png"), "png");
    EXPECT_EQ(suffixFor(filter, "Png (*.PNG)", "bmp"), "png");
    EXPECT_EQ(suffixFor(filter, "Png (*.PNG) (*.PNG)", "bmp"), "png");
    EXPECT_EQ(suffixFor(filter, "ASCII (*.ppm)(*.pgm)", "png"), "ppm");
    EXPECT_EQ(suffixFor(filter, "Any", "png"), "");
}

TEST_F(QtPlatformTest, AMessageStandsAsItIsGivenOverTheFrameAlsoAfterAnotherDialog)
{
    QMainWindow frame;
    frame.setAttribute(Qt::WA_ShowWithoutActivating);
    frame.show();
    ASSERT_EQ(QApplication::activeWindow(), nullptr) << "as between two dialogs";
    whenShown<QMessageBox>([&](QMessageBox& box) {
        EXPECT_EQ(box.parentWidget(), &frame);
        EXPECT_EQ(box.windowTitle(), "Crop");
        EXPECT_EQ(box.text(), "<b>Nothing</b> selected\nin a\\x2066b");
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.icon(), QMessageBox::Warning);
        box.accept();
    });
    platform.message("Crop", QString("<b>Nothing</b> selected\nin a\u2066b"), Icon::Exclamation);
}

TEST_F(QtPlatformTest, QuestionsHaveThreeAnswersAndEscapeCancels)
{
    const std::pair<QMessageBox::StandardButton, Answer> rows[] = {
        {QMessageBox::Yes, Answer::Yes}, {QMessageBox::No, Answer::No}, {QMessageBox::Cancel, Answer::Cancel}};
    for (const auto& [button, answer] : rows) {
        whenShown<QMessageBox>([b = button](QMessageBox& box) { box.button(b)->click(); });
        EXPECT_EQ(platform.askYesNoCancel("t", "q", Icon::Information), answer);
    }
    whenShown<QMessageBox>([](QMessageBox& box) { box.reject(); });
    EXPECT_EQ(platform.askYesNoCancel("t", "q", Icon::Information), Answer::Cancel);
}

TEST_F(QtPlatformTest, ABoxSurvivesTheEndOfItsParent)
{
    auto* parent = new QWidget;
    parent->show();
    QApplication::setActiveWindow(parent);
    whenShown<QMessageBox>([parent](QMessageBox&) { delete parent; });
    platform.message("t", "m", Icon::None);
}

// Nothing for half a second, then a box in which Esc ends the wait.
TEST_F(QtPlatformTest, ALongReadCanBeGivenUp)
{
    using namespace std::chrono_literals;
    ReadingBox box("photo.psd", nullptr);
    EXPECT_TRUE(box.goOn(450ms));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(box.goOn(550ms));
    auto* shown = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(shown, nullptr);
    EXPECT_EQ(shown->labelText(), "Reading photo.psd ...");
    QTest::keyClick(shown, Qt::Key_Escape);
    EXPECT_FALSE(box.goOn(600ms));
}

/// A selected file is not taken while the field has the focus.
static void typed(QFileDialog& dialog, const char* name)
{
    dialog.findChild<QLineEdit*>("fileNameEdit")->setText(name);
}

TEST_F(QtPlatformTest, ANameWithoutASuffixGetsThatOfTheFormat)
{
    whenShown<QFileDialog>([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Save as");
        EXPECT_EQ(static_cast<QStyledItemDelegate*>(dialog.itemDelegate())->displayText(QString("\u200f"), {}),
                  "\\x200f");
        dialog.selectNameFilter("Png (*.png)");
        emit dialog.filterSelected("Png (*.png)");
        typed(dialog, "picture");
        static_cast<QDialog&>(dialog).accept();
    });
    const auto name = platform.saveFileName({"Save as", "Bmp|*.bmp|Png|*.png", folder.path()});
    ASSERT_TRUE(name.has_value());
    EXPECT_EQ(*name, folder.path() + "/picture.png");
    whenShown<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
    EXPECT_FALSE(platform.openFileName({"Open file", "Bmp|*.bmp", folder.path()}).has_value());
}

TEST_F(QtPlatformTest, TheQuestionIsAboutTheFileThatIsWritten)
{
    put("x.ppm", {});
    FileDialog request{"Save as", "Bmp|*.bmp", folder.path()};
    request.writtenAs = [](const QString& name) { return QString(name).replace(".pgm", ".ppm"); };
    for (const bool yes : {false, true}) {
        QString asked;
        whenShown<QFileDialog>([&](QFileDialog& dialog) {
            typed(dialog, "x.pgm");
            whenShown<QMessageBox>([&](QMessageBox& box) {
                asked = box.text();
                box.button(yes ? QMessageBox::Yes : QMessageBox::No)->click();
            });
            static_cast<QDialog&>(dialog).accept();
            if (!yes) dialog.reject(); // it is still open
        });
        EXPECT_EQ(platform.saveFileName(request).has_value(), yes);
        EXPECT_EQ(asked, "x.ppm already exists.\nDo you want to replace it?");
    }
}

// The name follows the chosen kind; another ending typed after that is asked about.
TEST_F(QtPlatformTest, ANameOfAnotherKindIsMendedOrAskedAbout)
{
    FileDialog request{"Save as", "All|*.bmp;*.gif;*.png|Bmp|*.bmp|Png|*.png", folder.path(), {}, "png", "x.gif"};
    ASSERT_TRUE(QDir(folder.path()).mkdir("sub"));
    for (const int choice : {0, 1, -1}) {
        whenShown<QFileDialog>([&](QFileDialog& dialog) {
            auto* field = dialog.findChild<QLineEdit*>("fileNameEdit");
            EXPECT_EQ(field->text(), "x.gif");
            dialog.selectNameFilter("Bmp (*.bmp)");
            emit dialog.filterSelected("Bmp (*.bmp)");
            EXPECT_EQ(field->text(), "x.bmp");
            EXPECT_EQ(field->selectedText(), "x");
            field->setText(path("sub/y.png"));
            whenShown<QMessageBox>([&](QMessageBox& box) {
                EXPECT_EQ(box.text(), "\"y.png\" has the ending of another kind of file.");
                if (choice < 0) return box.reject();
                box.buttons().at(choice)->click();
            });
            static_cast<QDialog&>(dialog).accept();
            if (choice < 0) dialog.reject(); // it is still open
        });
        const auto name = platform.saveFileName(request);
        EXPECT_EQ(name.value_or(""), choice < 0 ? "" : path(choice == 0 ? "sub/y.bmp" : "sub/y.png"));
    }
}

TEST_F(QtPlatformTest, ASaveDialogHasChoicesThatCountWhereItIsAccepted)
{
    bool keep = true, leaveOut = true;
    FileDialog request{"Save as", "Bmp|*.bmp", folder.path()};
    request.name = "x.bmp";
    request.choices = {{"chkA", "&A", &keep}, {"chkB", "B", &leaveOut, &keep}};
    for (const bool accepted : {false, true}) {
        whenShown<QFileDialog>([&](QFileDialog& dialog) {
            auto *a = dialog.findChild<QCheckBox*>("chkA"), *b = dialog.findChild<QCheckBox*>("chkB");
            EXPECT_TRUE(a->isChecked() && b->isChecked() && b->isEnabled());
            a->setChecked(false);
            EXPECT_FALSE(b->isEnabled());
            accepted ? static_cast<QDialog&>(dialog).accept() : dialog.reject();
        });
        EXPECT_EQ(platform.saveFileName(request).has_value(), accepted);
        EXPECT_EQ(keep, !accepted);
        EXPECT_TRUE(leaveOut);
    }
}

// It reopens with its last size, in the requested folder, and previews what is selected or typed.
TEST_F(QtPlatformTest, FileDialogsRememberTheirSizeAndShowThePicture)
{
    const QTemporaryDir other;
    ASSERT_TRUE(QImage(30, 20, QImage::Format_RGB32).save(path("x.png")));
    const FileDialog request{"Open file", "Png|*.png", folder.path()};
    const auto shown = [](QFileDialog& dialog, const char* name) { return dialog.findChild<QLabel*>(name)->text(); };
    whenShown<QFileDialog>([&](QFileDialog& dialog) {
        dialog.resize(901, 523);
        typed(dialog, "x.png");
        EXPECT_TRUE(comes([&] { return shown(dialog, "previewSize") == "30 x 20 pixels"; }));
        EXPECT_EQ(shown(dialog, "previewName"), "x.png");
        dialog.setDirectory(other.path());
        dialog.reject();
    });
    EXPECT_FALSE(platform.openFileName(request));
    whenShown<QFileDialog>([&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.size(), QSize(901, 523));
        EXPECT_EQ(dialog.directory().path(), folder.path());
        typed(dialog, "x.png");
        EXPECT_TRUE(comes([&] { return shown(dialog, "previewSize") == "30 x 20 pixels"; }));
        static_cast<QDialog&>(dialog).accept();
        if (dialog.isVisible()) dialog.reject(); // no endless wait where it is refused
    });
    EXPECT_EQ(platform.openFileName(request), path("x.png"));
}

TEST_F(QtPlatformTest, PicturesPassThroughTheClipboardWithoutMarginAndFourthByte)
{
    const Bits bits = randomBits(7, 5, 9);
    ASSERT_TRUE(platform.clipboard().setBitmap(bits));
    EXPECT_TRUE(sameBits(plain(bits), platform.clipboard().bitmap().bits));
    platform.clipboard().clear();
    EXPECT_FALSE(platform.clipboard().bitmap().ok());
    EXPECT_FALSE(platform.clipboard().setBitmap({}));
}

TEST_F(QtPlatformTest, AShortenedPathKeepsItsFileName)
{
    const QString path = "/a/very/long/folder/name/that/goes/on/and/on/and/on/and/on/picture.png";
    const QFontMetrics metrics(QApplication::font("QMenu"));
    const int whole = metrics.horizontalAdvance(path);
    EXPECT_EQ(platform.compactPath(path, whole), path);
    const QString shorter = platform.compactPath(path, whole / 2);
    EXPECT_LE(metrics.horizontalAdvance(shorter), whole / 2);
    EXPECT_TRUE(shorter.endsWith("/picture.png")) << shorter.toStdString();
    EXPECT_LE(metrics.horizontalAdvance(platform.compactPath(path, 40)), 40);
}

} // namespace velara
