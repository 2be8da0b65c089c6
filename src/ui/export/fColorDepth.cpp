#include "ui/export/fColorDepth.h"
#include "pixels/numbers.h"
#include "reduce/EuroDepth.h"
#include "ui/widgets/ActiveComposer.h"
#include "ui/widgets/inputs/named.h"
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTabWidget>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace velara {

namespace {

constexpr struct DepthRow {
    const char* entry;
    int depth;
} kDepths[] = {{QT_TRANSLATE_NOOP("velara::fColorDepth", "2 Colors (1 Bit)"), 1},
               {QT_TRANSLATE_NOOP("velara::fColorDepth", "16 Colors (4 Bit)"), 4},
               {QT_TRANSLATE_NOOP("velara::fColorDepth", "256 Colors (8 Bit)"), 8},
               {QT_TRANSLATE_NOOP("velara::fColorDepth", "(15 Bit)"), 15},
               {QT_TRANSLATE_NOOP("velara::fColorDepth", "(16 Bit)"), 16},
               {QT_TRANSLATE_NOOP("velara::fColorDepth", "32,000 Colors (24 Bit)"), 24},
               {QT_TRANSLATE_NOOP("velara::fColorDepth", "64,000 Colors (24 Bit)"), 32}};

constexpr int kLevels[] = {10, 6, 5, 4, 3, 2, 1}; // of the zoom menu
constexpr int kFirstLevel = 3;

/// The picture at 1 / level of its size; itself at 1.
Bits reducedCopy(const Bits& picture, int level)
{
    if (level == 1) return picture;
    const auto part = [level](int side) { return std::max(roundEven(double(side) / level), 1); };
    return fittingCopy(picture, {part(picture.width()), part(picture.height())});
}

QPushButton* button(const char* name, const QString& text)
{
    auto* made = named(new QPushButton(text), QLatin1String(name), text.trimmed());
    made->setAutoDefault(false);
    return made;
}

} // namespace

fColorDepth::fColorDepth(const Bits& picture, Actions actions, QWidget* parent)
    : QDialog(parent), picture_(picture), actions_(std::move(actions)),
      original_(new fPicturePage({"COriginalP", "OriginalP", "HHor", "VVor"}, tr("Original"))),
      optimized_(new fPicturePage({"COptimizedP", "OptimizedP", "HHop", "VVop"}, tr("Optimized")))
{
    setObjectName(QStringLiteral("fColorDepth"));
    setWindowTitle(tr("Image Color Depth"));
    setModal(true);
    ActiveComposer::take(Composer::ColorDepth, this);
    original_->setPartner(*optimized_);
    auto* row = new QHBoxLayout(this);
    row->setSpacing(12);
    row->addWidget(makePages(), 1);
    row->addWidget(makeControls());
    cmbDepth_->setFocus();
    resize(760, 480);
    zoomlevel(kFirstLevel);
}

QWidget* fColorDepth::makePages()
{
    auto* tabs = named(new QTabWidget, "SSTab1", tr("Pictures"));
    tabs->addTab(original_, tr("Original"));
    tabs->addTab(optimized_, tr("Optimized"));
    tabs->setUsesScrollButtons(false); // both names are legible at every width
    tabs->setCurrentIndex(1);          // the page that a choice of depth changes
    return tabs;
}

QWidget* fColorDepth::makeControls()
{
    auto* column = new QWidget;
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);

    auto* options = new QGroupBox(tr("Select an option"));
    auto* optionLines = new QVBoxLayout(options);
    cmbDepth_ = named(new QComboBox, "cmbDepth", tr("Color depth"));
    for (const DepthRow& row : kDepths) cmbDepth_->addItem(tr(row.entry));
    optionLines->addWidget(cmbDepth_);

    auto* bar = named(new QToolBar, "Toolbar1", tr("Zoom"));
    auto* zoom = named(new QToolButton, "Toolbar1_1", tr("Zoom"));
    zoom->setPopupMode(QToolButton::InstantPopup);
    zoom->setToolButtonStyle(Qt::ToolButtonTextOnly);
    zoom_ = new QMenu(zoom);
    for (const int level : kLevels) {
        QAction* entry = zoom_->addAction(level == 1 ? tr("Full size") : tr("1/%1 of the size").arg(level),
                                          [this, level] { zoomlevel(level); });
        entry->setData(level);
    }
    zoom->setMenu(zoom_);
    bar->addWidget(zoom);
    optionLines->addWidget(bar);

    Lbloptimized_ = named(new QLabel, "Lbloptimized");
    auto* heading = new QLabel(tr("Optimized to"));
    heading->setForegroundRole(QPalette::PlaceholderText);

    auto* send = new QGroupBox(tr("Send the Optimized Image to "));
    auto* save = button("cmdSave", tr("Optimized Saver "));
    (new QVBoxLayout(send))->addWidget(save);
    auto* ok = button("CmdOK", tr("OK"));
    auto* exit = button("CmdExit", tr("Exit"));
    ok->setDefault(true);

    layout->addWidget(options);
    layout->addWidget(heading);
    layout->addWidget(Lbloptimized_);
    layout->addStretch();
    layout->addWidget(send);
    layout->addWidget(ok);
    layout->addWidget(exit);
    connect(cmbDepth_, &QComboBox::currentIndexChanged, this, &fColorDepth::showDepth);
    connect(ok, &QPushButton::clicked, this, &fColorDepth::finish);
    connect(save, &QPushButton::clicked, this, &fColorDepth::save);
    connect(exit, &QPushButton::clicked, this, &QDialog::reject);
    return column;
}

int fColorDepth::depth() const { return kDepths[std::max(cmbDepth_->currentIndex(), 0)].depth; }

void fColorDepth::zoomlevel(int Level)
{
    for (QAction* entry : zoom_->actions()) {
        const bool isPresent = entry->data().toInt() == Level;
        entry->setEnabled(!isPresent);
        if (isPresent)
            findChild<QToolButton*>(QStringLiteral("Toolbar1_1"))->setText(tr("Zoom: %1").arg(entry->text()));
    }
    original_->setBits(picture_.isNull() ? picture_ : reducedCopy(picture_, Level));
    showDepth();
}

void fColorDepth::showDepth()
{
    optimized_->setBits(bitsAtDepth(original_->picture().bits(), depth()));
    Lbloptimized_->setText(cmbDepth_->currentText());
}

/// Closes the dialog before the action, which may open another.
void fColorDepth::finish()
{
    const auto next = actions_.ok; // lives on whatever becomes of this
    const int wanted = depth();
    accept();
    if (next) next(wanted);
}

void fColorDepth::save()
{
    const auto next = actions_.save;
    const Bits result = bitsAtDepth(picture_, depth());
    accept();
    if (next) next(result);
}

} // namespace velara
