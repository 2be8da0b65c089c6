#include "ui/browse/fAssociation.h"
#include "fileio/formats.h"
#include "seams/text.h"
#include "ui/widgets/inputs/Spoken.h"
#include "ui/widgets/inputs/named.h"
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace velara {

fAssociation::fAssociation(QWidget* parent) : QDialog(parent)
{
    setObjectName("fAssociation");
    setWindowTitle(tr("File Association"));
    auto* column = new QVBoxLayout(this);
    auto* note = new QLabel(tr("The picture formats that Velara Studio knows. Which program opens\n"
                               "a file is chosen in the settings of your desktop."));
    column->addWidget(note);
    column->addWidget(makeRows(), 1);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    const auto button = [&](const char* name, const QString& caption) {
        auto* made = named(new QPushButton(caption), name);
        buttons->addWidget(made);
        return made;
    };
    button("Command1", tr("OK"))->setAutoDefault(false); // has no effect: nothing is registered
    QPushButton* exit = button("Command2", tr("E&xit"));
    exit->setDefault(true);
    connect(exit, &QPushButton::clicked, this, &fAssociation::reject);
    column->addLayout(buttons);
    resize(sizeHint().width(), 460);
}

QWidget* fAssociation::makeRows()
{
    auto* picA = named(new QWidget, "picA");
    auto* grid = new QGridLayout(picA);
    grid->setColumnStretch(1, 1);
    grid->setHorizontalSpacing(24);
    int row = 0;
    for (const Family& family : kFamilies) {
        auto* cT = named(new QCheckBox(text(family.patterns)), QString("cT_%1").arg(row),
                         text(family.patterns) + ' ' + shown("Formats", family.name));
        grid->addWidget(cT, row, 0);
        grid->addWidget(new QLabel(shown("Formats", family.name)), row++, 1);
    }
    auto* area = new QScrollArea;
    setSpokenRole(*area, QAccessible::Pane);
    named(area, "areaA", tr("Formats"));
    area->setWidget(picA);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setMinimumWidth(picA->sizeHint().width() + 32);
    return area;
}

} // namespace velara
