#include "ui/panes/fStamp.h"
#include "document/road/Frame.h"
#include "fileio/readInBackground.h"
#include "seams/Platform.h"
#include "tools/stamps.h"
#include "ui/widgets/inputs/named.h"
#include "ui/widgets/viewRender.h"
#include <QAbstractItemView>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace velara {

namespace {

constexpr int kPreview = 96; // side of the preview

} // namespace

FStamp::FStamp(Frame& frame, const QString& name, std::span<const PaneRow> rows)
    : fPane(frame, name, rows), cbStamps_(new QComboBox(this)), iStamp_(new QLabel(this)),
      missing_(new QLabel(tr("Stamp sub-Folder Not Found!"), this))
{
    named(cbStamps_, "cbStamps", tr("Stamp"));
    cbStamps_->view()->setObjectName("flStamps"); // the files of the folder, when the list is open
    cbStamps_->view()->setAccessibleName(tr("Stamp files"));
    auto* back = named(new QFrame(this), "iStampBk");
    back->setFrameShape(QFrame::StyledPanel);
    back->setFixedHeight(kPreview + 8);
    auto* inside = new QVBoxLayout(back);
    inside->setContentsMargins(3, 3, 3, 3);
    named(iStamp_, "iStamp", tr("The chosen stamp"));
    iStamp_->setAlignment(Qt::AlignCenter);
    inside->addWidget(iStamp_);
    missing_->setObjectName("lblStamps");
    missing_->setWordWrap(true);
    column()->insertWidget(0, cbStamps_);
    column()->insertWidget(1, back);
    column()->insertWidget(2, missing_);
    connect(cbStamps_, &QComboBox::textActivated, this, &FStamp::choose);
    connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, &FStamp::readFolder);
    readFolder();
}

void FStamp::readFolder()
{
    Platform& platform = frame().platform();
    const auto files = stampFiles(platform);
    found_ = files.has_value();
    missing_->setVisible(!found_);
    // The program's folder is watched, too: a missing stamps folder may be created.
    for (const QString& folder : {platform.programFolder(), platform.programFolder() + "/Stamps"})
        if (QDir(folder).exists() && !watcher_.directories().contains(folder)) watcher_.addPath(folder);

    const QString before = frame().toolStores().stampFile;
    QSignalBlocker quiet(cbStamps_);
    cbStamps_->clear();
    cbStamps_->addItems(files.value_or(QStringList()));
    cbStamps_->setEnabled(cbStamps_->count() > 0);
    const int place = cbStamps_->findText(before);
    cbStamps_->setCurrentIndex(std::max(place, 0));
    if (place < 0 || before.isEmpty())
        choose(cbStamps_->currentText()); // none yet, or it no longer exists
    else
        showStamp();
}

/// The stores keep the last one until this one is read; meanwhile another may be chosen.
void FStamp::choose(const QString& file)
{
    const auto take = [this, file](const Bits& stamp) {
        if (cbStamps_->currentText() != file) return;
        frame().toolStores().stampFile = file;
        frame().toolStores().stamp = stamp;
        showStamp();
    };
    if (file.isEmpty()) return take({});
    Platform& platform = frame().platform();
    readInBackground(platform, this, stampPath(platform, file),
                     [take](const LoadedPicture& loaded) { take(loaded.bits); });
}

void FStamp::showStamp()
{
    const Bits& stamp = frame().toolStores().stamp;
    if (stamp.isNull()) return iStamp_->clear();
    QImage picture(stamp.width(), stamp.height(), QImage::Format_RGB32);
    ViewRenderer().render(stamp, {}, 0, 0, picture);
    if (picture.width() > kPreview || picture.height() > kPreview)
        picture = picture.scaled(kPreview, kPreview, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    iStamp_->setPixmap(QPixmap::fromImage(picture));
}

} // namespace velara
