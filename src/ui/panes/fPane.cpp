#include "ui/panes/fPane.h"
#include "document/road/Frame.h"
#include "seams/text.h"
#include "ui/widgets/fColorButton.h"
#include "ui/widgets/inputs/fNumberBox.h"
#include "ui/widgets/inputs/named.h"
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QSlider>
#include <QVBoxLayout>

namespace velara {

namespace {

QString plain(const char* caption) { return shown("Tools", caption).remove('&').remove(':').trimmed(); }

void name(QWidget* widget, const PaneRow& row)
{
    named(widget, row.name, plain(row.caption));
    widget->setToolTip(shown("Tools", row.hint));
}

QStringList entriesOf(const PaneRow& row)
{
    QStringList entries = QString::fromUtf8(row.entries).split('|');
    for (QString& entry : entries) entry = shown("Tools", entry.toStdString());
    return entries;
}

int numberOf(const PaneRow& row, int place) { return *row.numbers ? row.numbers[place] - '0' : place; }

/// The index of the entry with that value; the first one if there is none.
int placeOf(const PaneRow& row, int number)
{
    const int count = static_cast<int>(entriesOf(row).size());
    for (int place = 0; place < count; ++place)
        if (numberOf(row, place) == number) return place;
    return 0;
}

} // namespace

fPane::fPane(Frame& frame, const QString& name, std::span<const PaneRow> rows, QWidget* parent)
    : QFrame(parent), frame_(frame), column_(new QVBoxLayout(this)), rows_(rows)
{
    setObjectName(name);
    column_->setContentsMargins(6, 6, 6, 6);
    column_->setSpacing(4);
    for (const PaneRow& row : rows) add(row);
    refresh();
}

void fPane::showEvent(QShowEvent* event)
{
    refresh(); // the tool's other pane may have changed something
    QFrame::showEvent(event);
}

void fPane::refresh()
{
    refreshing_ = true;
    for (const auto& show : shows_) show();
    refreshing_ = false;
    showWhatApplies();
    edited();
}

void fPane::showWhatApplies()
{
    for (const PaneRow& row : rows_) {
        if (!row.applies) continue;
        for (const QString& control : {QString(row.name), QString("lbl") + row.name})
            if (auto* widget = findChild<QWidget*>(control)) widget->setEnabled(row.applies(frame_.setup()));
    }
}

int fPane::value(const PaneRow& row) const { return row.get(frame_.setup(), frame_.toolStores()); }

void fPane::write(const PaneRow& row, int value)
{
    row.set(frame_.setup(), frame_.toolStores(), value);
    if (refreshing_) return;
    showWhatApplies();
    edited();
}

void fPane::add(const PaneRow& row)
{
    switch (row.kind) {
    case PaneKind::Slider:
        return addSlider(row);
    case PaneKind::Combo:
    case PaneKind::List:
        return addChoice(row);
    case PaneKind::Check:
        return addCheck(row);
    case PaneKind::Well:
        return addWell(row);
    }
}

void fPane::addSlider(const PaneRow& row)
{
    auto* caption = new QLabel(shown("Tools", row.caption), this);
    auto* slider = new QSlider(Qt::Horizontal, this);
    name(slider, row);
    slider->setRange(row.low, row.high);
    slider->setPageStep(std::max(1, (row.high - row.low) / 10));
    caption->setBuddy(slider);
    auto* line = new QHBoxLayout;
    line->addWidget(caption, 1);
    line->addWidget(new fNumberBox(*slider, QString("lbl") + row.name, {1, 0, row.unit}));
    column_->addLayout(line);
    column_->addWidget(slider);
    connect(slider, &QSlider::valueChanged, this, [=, this](int now) { write(row, now); });
    shows_.push_back([=, this] {
        slider->setValue(value(row));
        if (slider->value() != value(row)) write(row, slider->value());
    });
}

void fPane::addChoice(const PaneRow& row)
{
    const auto connectAndShow = [&](auto* list, auto signal, auto current, auto select) {
        name(list, row);
        column_->addWidget(list);
        connect(list, signal, this, [=, this](int place) {
            if (place >= 0) write(row, numberOf(row, place));
        });
        shows_.push_back([=, this] {
            (list->*select)(placeOf(row, value(row)));
            if (value(row) != numberOf(row, (list->*current)())) write(row, numberOf(row, (list->*current)()));
        });
    };
    if (row.kind == PaneKind::Combo) {
        auto* combo = new QComboBox(this);
        combo->addItems(entriesOf(row));
        connectAndShow(combo, &QComboBox::currentIndexChanged, &QComboBox::currentIndex, &QComboBox::setCurrentIndex);
    } else {
        auto* list = new QListWidget(this);
        list->addItems(entriesOf(row));
        list->setFixedHeight(list->sizeHintForRow(0) * list->count() + 2 * list->frameWidth());
        using Select = void (QListWidget::*)(int);
        connectAndShow(list, &QListWidget::currentRowChanged, &QListWidget::currentRow,
                       static_cast<Select>(&QListWidget::setCurrentRow));
    }
}

void fPane::addCheck(const PaneRow& row)
{
    auto* box = new QCheckBox(shown("Tools", row.caption), this);
    name(box, row);
    column_->addWidget(box);
    connect(box, &QCheckBox::toggled, this, [=, this](bool on) { write(row, on); });
    shows_.push_back([=, this] { box->setChecked(value(row) != 0); });
}

void fPane::addWell(const PaneRow& row)
{
    auto* button = new fColorButton(frame_, row.name, plain(row.caption), this);
    column_->addWidget(button);
    connect(button, &fColorButton::colourChanged, this, [=, this] { write(row, button->colour()); });
    shows_.push_back([=, this] { button->setColour(value(row)); });
}

} // namespace velara
