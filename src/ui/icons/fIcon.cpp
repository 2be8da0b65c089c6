#include "ui/icons/fIcon.h"
#include "document/Document.h"
#include "document/road/Frame.h"
#include "ui/icons/fIconPicture.h"
#include "ui/widgets/inputs/named.h"
#include <QBoxLayout>
#include <QPushButton>

namespace velara {

fIcon::fIcon(Frame& frame, QWidget* parent)
    : QDialog(parent), frame_(frame), picture_(new fIconPicture(frame)), series_(new fIconSeries(frame))
{
    setObjectName("fIcon");
    setWindowTitle(tr("Extract Icon"));
    setModal(true);
    auto* exit = named(new QPushButton(tr("E&xit")), "CmdExit");
    exit->setAutoDefault(false);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(exit);
    auto* column = new QVBoxLayout(this);
    column->addWidget(picture_);
    column->addWidget(series_, 1);
    column->addLayout(buttons);
    connect(exit, &QPushButton::clicked, this, &QDialog::reject);
}

void fIcon::load()
{
    const DocumentHandle document = frame_.active();
    picture_->setPicture(document && document->PictureExists() ? document->bits() : Bits());
}

} // namespace velara
