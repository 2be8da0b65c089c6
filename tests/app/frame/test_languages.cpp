// Every window in every language, in one whose texts are much longer, and from right to left: nothing is cut off, no
// access key is there twice, and nothing stays in English.
#include "app/frame/windowWalk.h"
#include "app/menus/menus.h"
#include "app/settings/language.h"
#include "platform/desktop/dialogs/shownReason.h"
#include <QRegularExpression>
#include <QTranslator>

namespace velara {

namespace {

constexpr QChar kMark = u'\u0118'; // in every text of the invented language, and in no other

/// Marked, and longer by two fifths, but for what a translator must keep.
QString longer(const QString& source)
{
    static const QRegularExpression end(QStringLiteral("( ?\\.\\.\\.)?\\s*$"));
    QStringList parts = source.split(u'|');
    for (QString& part : parts) {
        const qsizetype at = part.indexOf(end), begin = part.size() - QStringView(part).trimmed().size();
        const bool isBlankFirst = !part.isEmpty() && part[0].isSpace();
        part.insert(at, QString((at * 2 + 4) / 5, u'~'));
        part.insert(isBlankFirst ? begin : 0, kMark);
    }
    return parts.join(u'|');
}

/// Of the texts that translators get.
struct Longer : QTranslator {
    explicit Longer(QObject* parent) : QTranslator(parent)
    {
        useLanguage(*qApp, "en"); // the files are in the program
        EXPECT_TRUE(known.load(":/translations/velara_de.qm"));
    }
    QTranslator known;

    QString translate(const char* context, const char* source, const char*, int count) const override
    {
        const bool isOfQt = context[0] == 'Q' && qstrcmp(context, "QObject");
        const bool isKnown = isOfQt || !known.translate(context, source, nullptr, count).isNull();
        if (!isKnown || !qstrcmp(context, "QShortcut")) return {};
        return longer(QString::fromUtf8(source).replace("%n", count < 0 ? "%n" : QString::number(count)));
    }
    bool isEmpty() const override { return false; }
};

struct Languages : WindowWalk, ::testing::WithParamInterface<const char*> {
    QStringList cut, twice, english;
    bool isInvented = false;

    void SetUp() override
    {
        isInvented = !qstrcmp(GetParam(), "longer");
        if (isInvented)
            QCoreApplication::installTranslator(new Longer(qApp));
        else
            useLanguage(*qApp, qstrcmp(GetParam(), "rightToLeft") ? GetParam() : "en");
        if (!qstrcmp(GetParam(), "rightToLeft")) QApplication::setLayoutDirection(Qt::RightToLeft);
        WindowWalk::SetUp();
    }
    void TearDown() override
    {
        WindowWalk::TearDown();
        for (QTranslator* translator : qApp->findChildren<QTranslator*>()) delete translator;
        QApplication::setLayoutDirection(Qt::LeftToRight);
    }

    /// Files, fonts, numbers and names of formats are the same in every language.
    static bool isSame(const QString& text)
    {
        static const QRegularExpression word(QStringLiteral("\\p{L}{2}[\\p{Ll} ]*"));
        static const QRegularExpression same(QStringLiteral(
            "^[RGBHSCMYXK#&:\\W\\d]*$|\\.bmp|\\.png|^/\\S+|Velara Studio|^(PNG|GIF|JPE?G|BMP|TGA|TIF|PCX|WEBP|AVIF|JXL|"
            "P[BGP]M)\\b|^\\*\\.|dpi|\\b(KB|mm)$"));
        return !word.match(text).hasMatch() || same.match(text).hasMatch();
    }
    void readText(const QWidget& widget, const QString& text)
    {
        if (isInvented && !text.contains(kMark) && !isSame(text))
            english << QStringLiteral("%1 %2: %3").arg(widget.window()->objectName(), widget.objectName(), text);
    }
    void readItems(const QAbstractItemView& view)
    {
        static const QStringList kData = {"lstInputs",  "ListFile",      "cbStamps", "lstRecent",
                                          "lstSources", "lstProperties", "lstPages"};
        if (!view.model() || kData.contains(view.objectName()) ||
            isA(&view, {"velara::fFolderTree", "QComboBoxListView"}))
            return;
        const QAbstractItemModel& model = *view.model();
        for (int column = 0; column < model.columnCount(); ++column)
            if (isA(&view, {"QTreeView", "QTableView"}))
                readText(view, model.headerData(column, Qt::Horizontal).toString());
        for (int row = 0; row < model.rowCount(); ++row) readText(view, model.index(row, 0).data().toString());
    }
    void readTexts(const QWidget& widget)
    {
        static constexpr auto kFree = {"QLineEdit", "QAbstractSpinBox", "QTextEdit", "QPlainTextEdit"};
        for (const char* property : {"windowTitle", "text", "title", "toolTip", "placeholderText", "accessibleName"})
            if (qstrcmp(property, "text") || !isA(&widget, kFree))
                readText(widget, widget.property(property).toString());
        if (const auto* list = qobject_cast<const QComboBox*>(&widget);
            list && !QStringList{"cboFont", "cFonts", "cboLanguage"}.contains(list->objectName()))
            for (int i = 0; i < list->count(); ++i) readText(widget, list->itemText(i));
        if (const auto* tabs = qobject_cast<const QTabBar*>(&widget))
            for (int i = 0; i < tabs->count(); ++i) readText(widget, tabs->tabText(i));
        if (const auto* view = qobject_cast<const QAbstractItemView*>(&widget)) readItems(*view);
        for (const QAction* action : widget.actions()) readText(widget, action->text());
    }
    /// Labels and buttons that are smaller than what they show.
    void measure(const QWidget& widget)
    {
        const auto* label = qobject_cast<const QLabel*>(&widget);
        const bool wraps = label && label->wordWrap();
        const auto* button = qobject_cast<const QAbstractButton*>(&widget);
        const bool shortens = (button && button->text().isEmpty()) ||
                              widget.sizePolicy().horizontalPolicy() == QSizePolicy::Ignored ||
                              isA(&widget, {"velara::fPathLabel"});
        if (!widget.isVisible() || shortens || !isA(&widget, {"QLabel", "QAbstractButton", "QGroupBox", "QComboBox"}))
            return;
        const QSize needs = isA(&widget, {"QGroupBox", "QComboBox"}) ? widget.minimumSizeHint() : widget.sizeHint();
        const bool fits = wraps ? widget.heightForWidth(widget.width()) <= widget.height()
                                : needs.width() <= widget.width() && needs.height() <= widget.height();
        const QWidget* around = widget.parentWidget();
        const bool isInside = !around || widget.geometry().right() <= around->width();
        if (!fits || !isInside)
            cut << QStringLiteral("%1 %2 %3: %4x%5 of %6x%7 %8")
                       .arg(widget.window()->objectName(), widget.metaObject()->className(), widget.objectName())
                       .arg(widget.width())
                       .arg(widget.height())
                       .arg(needs.width())
                       .arg(needs.height())
                       .arg(widget.property("text").toString() + widget.property("title").toString());
    }
    static QKeySequence keyOf(const QWidget& widget)
    {
        if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
            return QKeySequence::mnemonic(button->text());
        const auto* label = qobject_cast<const QLabel*>(&widget);
        return label && label->buddy() ? QKeySequence::mnemonic(label->text()) : QKeySequence();
    }
    /// Pictures, and what stands for places in them, are never mirrored.
    static void compareSides(const QWidget& window)
    {
        const auto *left = window.findChild<QWidget*>("anchor_0"), *right = window.findChild<QWidget*>("anchor_2");
        if (left) {
            EXPECT_LT(left->x(), right->x());
        }
        for (const QScrollBar* bar : window.findChildren<QScrollBar*>())
            if (isA(bar->parentWidget(), {"velara::fImage", "velara::fPicturePage"})) {
                EXPECT_EQ(bar->layoutDirection(), Qt::LeftToRight) << window.objectName().toStdString();
            }
    }
    void look(QWidget& window)
    {
        compareSides(window);
        QHash<QKeySequence, QString> keys;
        QList<QWidget*> all = window.findChildren<QWidget*>();
        all << &window;
        for (QWidget* widget : all) {
            if (widget->objectName().startsWith("qt_") || qobject_cast<QMenu*>(widget)) continue;
            if (widget->isVisible()) readTexts(*widget);
            measure(*widget);
            const QKeySequence key = keyOf(*widget);
            if (&window == frame.get() || !widget->isVisible() || key.isEmpty()) continue;
            if (keys.contains(key))
                twice << window.objectName() + ": " + keys[key] + ", " + widget->property("text").toString();
            keys[key] = widget->property("text").toString();
        }
    }
};

} // namespace

TEST_P(Languages, NothingIsCutOffOrTwiceOrInEnglish)
{
    eachWindow([this](QWidget& window) { look(window); });
    QWidgetList menus = {frame->menuBar()};
    for (QMenu* menu : frame->findChildren<QMenu*>())
        if (!menu->objectName().isEmpty() && menu->objectName() != "mnuRecent") menus << menu; // others are of Qt
    for (const QWidget* menu : menus) {
        QHash<QKeySequence, QString> keys;
        for (const QAction* item : menu->actions()) {
            const QKeySequence key = QKeySequence::mnemonic(item->text());
            if (keys.contains(key)) twice << menu->objectName() + ": " + keys[key] + ", " + item->text();
            if (!key.isEmpty()) keys[key] = item->text();
            if (!item->isSeparator()) readText(*menu, item->text());
        }
    }
    for (QStringList* list : {&cut, &twice, &english}) list->removeDuplicates();
    EXPECT_TRUE(cut.isEmpty()) << cut.join('\n').toStdString();
    EXPECT_TRUE(twice.isEmpty()) << twice.join('\n').toStdString();
    EXPECT_TRUE(english.isEmpty()) << english.join('\n').toStdString();
}

INSTANTIATE_TEST_SUITE_P(All, Languages, ::testing::Values("en", "de", "es", "fr", "zh_CN", "longer", "rightToLeft"),
                         [](const auto& info) { return std::string(info.param); });

TEST(Language, IsTheFirstWantedOneThatIsThere)
{
    const std::pair<QStringList, const char*> cases[] = {
        {{"de-AT", "de"}, "de"}, {{"fr-CA"}, "fr"}, {{"xx", "es"}, "es"},      {{"en-GB", "de"}, "en"},
        {{"xx"}, "en"},          {{}, "en"},        {{"zh-Hans-CN"}, "zh_CN"}, {{"zh-SG"}, "zh_CN"},
        {{"zh-TW"}, "en"},       {{"C"}, "en"}};
    for (const auto& [wanted, code] : cases) EXPECT_EQ(languageFor(wanted), code) << wanted.join(' ').toStdString();
}

TEST(Language, ReasonsOfOtherProgramsAreTranslatedWithTheirValues)
{
    EXPECT_EQ(shownReason("a.png can't be read: it is damaged or not a PNG picture"),
              "a.png can't be read: it is damaged or not a PNG picture");
    useLanguage(*qApp, "de");
    EXPECT_EQ(shownReason("a.png can't be read: it is damaged or not a PNG picture"),
              "a.png ist nicht lesbar: Die Datei ist beschädigt oder kein Bild der Art PNG");
    EXPECT_EQ(shownReason("BLUR: Overflow"), "BLUR: Überlauf");
    EXPECT_EQ(shownReason("Something else: 100 %1 %2"), "Something else: 100 %1 %2");
    for (QTranslator* translator : qApp->findChildren<QTranslator*>()) delete translator;
}

} // namespace velara
