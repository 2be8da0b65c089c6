#include "platform/desktop/ReadingBox.h"
#include "seams/Dialogs.h"
#include "seams/printable.h"
#include <QCoreApplication>

namespace velara {

bool ReadingBox::goOn(std::chrono::milliseconds waited)
{
    constexpr std::chrono::milliseconds kUntilShown{500};
    if (waited < kUntilShown) return true;
    if (!shown_) {
        shown_ = true;
        box_ = new QProgressDialog(QCoreApplication::translate("ReadingBox", "Reading %1 ...").arg(printable(name_)),
                                   QCoreApplication::translate("ReadingBox", "Cancel"), 0, 0, parent_);
        box_->setObjectName("readingBox");
        box_->setWindowTitle(kProgramName);
        box_->setWindowModality(Qt::ApplicationModal);
        box_->setMinimumDuration(0);
        box_->show();
    }
    QCoreApplication::processEvents();
    return box_ && !box_->wasCanceled();
}

} // namespace velara
