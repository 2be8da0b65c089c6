#include "ui/utilities/fCapture.h"
#include "ui/widgets/inputs/named.h"
#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>

namespace velara {

namespace {

constexpr int kDelay = 500;              // ms
constexpr int kDelays[] = {0, 3, 5, 10}; // s, that the user may choose

constexpr const char* kWords[] = {"CAPTUREDESKTOP", "CAPTUREFOREGROUND", "CAPTUREBACKGROUND"};

} // namespace

fCapture::fCapture(QWidget* parent) : QDialog(parent)
{
    setObjectName("fCapture");
    setWindowTitle(tr("Capture Screen"));
    setModal(true);
    auto* column = new QVBoxLayout(this);
    auto* tabs = named(new QTabWidget, "tabs", tr("How to capture"));
    tabs->addTab(makeCustom(), tr("Custom"));
    column->addWidget(tabs);

    auto* buttons = new QHBoxLayout;
    const auto button = [&](const char* name, const QString& caption) {
        auto* made = named(new QPushButton(caption), name);
        buttons->addWidget(made);
        return made;
    };
    auto* capture = button("cmdCapture", tr("&Capture"));
    auto* custom = button("CmdCustom", tr("C&ustom"));
    buttons->addStretch();
    auto* close = button("CmdExit", tr("E&xit"));
    capture->setDefault(true);
    capture->setToolTip(tr("The whole screen"));
    custom->setToolTip(tr("A rectangle of the screen"));
    column->addLayout(buttons);
    cb_->setFocus();

    Timer2_.setObjectName("Timer2");
    Timer2_.setSingleShot(true);
    connect(&Timer2_, &QTimer::timeout, this, &fCapture::customDue);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    connect(capture, &QPushButton::clicked, this, [this] {
        hide();
        emit captureChosen(kWords[cb_->currentIndex()]);
    });
    connect(custom, &QPushButton::clicked, this, [this] {
        hide();
        emit customChosen(static_cast<Where>(cb_->currentIndex()));
        Timer2_.start(kDelay + delay());
    });
}

int fCapture::delay() const { return kDelays[cbDelay_->currentIndex()] * 1000; }

bool fCapture::withPointer() const { return chkPointer_->isChecked(); }

QWidget* fCapture::makeCustom()
{
    static constexpr struct {
        const char *label, *caption, *explanation;
    } kRows[] = {
        {"lblDesktop", QT_TR_NOOP("Desktop"),
         QT_TR_NOOP("Desktop means the main screen where you go through before opening any windows")},
        {"lblForeground", QT_TR_NOOP("Foreground"),
         QT_TR_NOOP("Foreground means the Current window you are working with i.e, The Velara's Studio Environment.")},
        {"lblBackground", QT_TR_NOOP("Background"),
         QT_TR_NOOP("Background means any windows behind the current active window including your Desktop. "
                    "Desktop is the background if there is no other visible windows behind Velara's Studio")}};
    static_assert(std::size(kRows) == std::size(kWords));
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    cb_ = named(new QComboBox, "cb", tr("What to capture"));
    column->addWidget(cb_);
    for (const auto& row : kRows) {
        cb_->addItem(tr(row.caption));
        auto* label = named(new QLabel(tr(row.explanation)), row.label);
        label->setWordWrap(true);
        label->setMinimumSize(380, label->heightForWidth(380)); // the tabs ask for no height that depends on the width
        column->addWidget(label);
    }
    cbDelay_ = named(new QComboBox, "cbDelay");
    for (const int seconds : kDelays) cbDelay_->addItem(seconds ? tr("%n seconds", nullptr, seconds) : tr("At once"));
    auto* delay = new QLabel(tr("&Delay"));
    delay->setBuddy(cbDelay_);
    chkPointer_ = named(new QCheckBox(tr("With the &pointer")), "chkPointer");
    auto* row = new QHBoxLayout;
    row->addWidget(delay);
    row->addWidget(cbDelay_);
    row->addSpacing(12);
    row->addWidget(chkPointer_);
    row->addStretch();
    column->addLayout(row);
    column->setSpacing(10);
    return page;
}

} // namespace velara
