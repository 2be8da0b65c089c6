#include "ui/compose/fToolTextures.h"
#include "seams/text.h"
#include "ui/compose/fEffectsPage.h"
#include "ui/compose/fTextPage.h"
#include "ui/widgets/inputs/named.h"
#include <QTabWidget>
#include <QVBoxLayout>

namespace velara {

fToolTextures::fToolTextures(Frame& frame, QWidget* parent)
    : QWidget(parent, Qt::Tool), SSTab1_(new QTabWidget), text_(new fTextPage(frame)), effects_(new fEffectsPage(frame))
{
    setObjectName(QStringLiteral("fToolTextures"));
    showEffect(shown("Filters", "Emboss"));
    named(SSTab1_, "SSTab1", tr("Text and effects"));
    SSTab1_->addTab(text_, tr("&Text"));
    SSTab1_->addTab(effects_, tr("&Effects"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(4, 4, 4, 4);
    column->addWidget(SSTab1_);
    connect(effects_, &fEffectsPage::effectChosen, this, &fToolTextures::showEffect);
    connect(effects_, &fEffectsPage::folderWanted, this, &fToolTextures::folderWanted);
    connect(text_, &fTextPage::placing, this, &fToolTextures::placing);
    resize(330, 420);
}

void fToolTextures::beginText()
{
    SSTab1_->setCurrentWidget(text_);
    text_->beginText();
}

const QString& fToolTextures::textureFolder() const { return effects_->folder(); }

void fToolTextures::setTextureFolder(const QString& folder) { effects_->setFolder(folder); }

void fToolTextures::showEffect(const QString& name) { setWindowTitle(tr("Textures: %1").arg(name)); }

} // namespace velara
