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

struct WhereRow {
    const char *caption, *word, *explanation;
};
// clang-format off
constexpr WhereRow kRows[] = {
    {"Desktop",    "CAPTUREDESKTOP",    "Desktop means the main screen where you go through before opening any windows"},
    {"Foreground", "CAPTUREFOREGROUND", "Foreground means the Current window you are working with i.e, The Velara's Studio Environment."},
    {"Background", "CAPTUREBACKGROUND", "Background means any windows behind the current active window including your Desktop. "
                                        "Desktop is the background if there is no other visible windows behind Velara's Studio"},
};
// clang-format on

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
        emit captureChosen(kRows[cb_->currentIndex()].word);
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
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    cb_ = named(new QComboBox, "cb", tr("What to capture"));
    column->addWidget(cb_);
    for (const WhereRow& row : kRows) {
        cb_->addItem(row.caption);
        auto* label = named(new QLabel(row.explanation), QString("lbl") + row.caption);
        label->setWordWrap(true);
        label->setMinimumWidth(380);
        column->addWidget(label);
    }
    cbDelay_ = named(new QComboBox, "cbDelay");
    for (const int seconds : kDelays) cbDelay_->addItem(seconds ? tr("%1 seconds").arg(seconds) : tr("At once"));
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
