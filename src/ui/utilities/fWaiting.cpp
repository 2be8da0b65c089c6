#include "ui/utilities/fWaiting.h"
#include "ui/widgets/inputs/named.h"
#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace velara {

fWaiting::fWaiting(const QString& title, const QString& text, QWidget* parent) : QDialog(parent)
{
    setObjectName("fWaiting");
    setWindowTitle(title);
    auto* column = new QVBoxLayout(this);
    auto* label = new QLabel(text);
    auto* bar = named(new QProgressBar, "pbWaiting", text);
    bar->setRange(0, 0); // indeterminate
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Cancel)->setObjectName("cmdCancel");
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    column->addWidget(label);
    column->addWidget(bar);
    column->addWidget(buttons);
    column->setSizeConstraint(QLayout::SetFixedSize);
    bar->setMinimumWidth(280);
}

} // namespace velara
