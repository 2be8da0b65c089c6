#include "app/utilities/icons.h"
#include "app/frame/fMain.h"
#include "app/utilities/Capture.h"
#include "seams/Platform.h"
#include "ui/icons/fIcon.h"
#include "ui/icons/fIconMaker.h"

namespace velara {

namespace {

fIcon* makeExtractor(fMain& frame)
{
    auto* dialog = new fIcon(frame, &frame);
    auto* maker = new fIconMaker(dialog);
    fIconSeries& series = dialog->series();
    QObject::connect(&series, &fIconSeries::captureAsked, maker, [&frame, &series, maker](fIconSeries::Source source) {
        frame.capture().takeScreens(
            source == fIconSeries::Desktop, [&frame, &series, maker](const ScreenPicture& screens) {
                if (!screens.bits.isNull() && screens.reason.isEmpty())
                    return maker->ShowPicture(screens, series.count());
                frame.capture().bringBack();
                const QString reason = screens.reason;
                frame.platform().tell(reason.isEmpty() ? QObject::tr("The screen gave no picture.") : reason,
                                      Icon::Exclamation);
            });
    });
    QObject::connect(maker, &fIconMaker::taken, &series, &fIconSeries::add);
    QObject::connect(maker, &fIconMaker::left, &series, [&frame, &series] {
        frame.capture().bringBack();
        series.ListIcons();
    });
    return dialog;
}

} // namespace

void extractIcons(fMain& frame)
{
    auto* dialog = frame.findChild<fIcon*>(QString(), Qt::FindDirectChildrenOnly);
    if (!dialog) dialog = makeExtractor(frame);
    dialog->load();
    dialog->open();
}

} // namespace velara
