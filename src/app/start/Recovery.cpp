#include "app/start/Recovery.h"
#include "app/start/fRecovery.h"
#include "document/Workspace.h"
#include "document/road/Frame.h"
#include "pixels/images.h"
#include "seams/Platform.h"
#include "seams/printable.h"
#include <QDateTime>
#include <QLocale>
#include <QWidget>
#include <algorithm>
#include <iterator>

namespace velara {

namespace {

constexpr int kPathPixels = 400;

/// In a thread of the background.
Offer offerOf(std::shared_ptr<Leftover> leftover)
{
    const QDateTime when = QDateTime::fromMSecsSinceEpoch(leftover->when());
    const FileFacts& file = leftover->about().file;
    QStringList facts{Recovery::tr("Changed on %1").arg(QLocale().toString(when, QLocale::ShortFormat))};
    const int steps = leftover->states() - 1;
    if (steps > 0) facts << (steps == 1 ? Recovery::tr("1 step") : Recovery::tr("%n steps", nullptr, steps));
    if (!leftover->about().texts.empty()) facts << Recovery::tr("texts that are not merged yet");
    Offer offer{leftover, printable(file.caption()), {}, facts.join(QStringLiteral(", ")), leftover->trouble(), {}};
    if (file.path.contains(u'/')) offer.path = printable(file.path);
    return offer;
}

/// Opaque, whatever the fourth bytes are.
QImage thumbnailOf(const Bits& bits)
{
    const QSize side(Recovery::kSide, Recovery::kSide);
    const QImage picture = imageOver(bits);
    if (picture.isNull()) return {};
    const bool isSmall = picture.width() <= side.width() && picture.height() <= side.height();
    return (isSmall ? picture : picture.scaled(side, Qt::KeepAspectRatio, Qt::SmoothTransformation))
        .convertToFormat(QImage::Format_RGB888);
}

} // namespace

Recovery::Recovery(Frame& frame, QWidget* over) : QObject(over), frame_(frame), over_(over) {}

Recovery::~Recovery() { delete dialog_; }

void Recovery::look()
{
    const auto result = std::make_shared<std::vector<Offer>>();
    requests_.push_back(frame_.platform().inBackground(
        [result, folder = frame_.workspace().folder()](const GoOn&) {
            for (auto& leftover : Leftover::find(folder)) result->push_back(offerOf(std::move(leftover)));
        },
        [this, result] { found(std::move(*result)); }));
}

void Recovery::found(std::vector<Offer> offers)
{
    if (offers.empty()) return;
    std::ranges::sort(offers, std::greater(), [](const Offer& offer) { return offer.leftover->when(); });
    std::ranges::move(offers, std::back_inserter(offers_));
    readPictures();
    emit changed();
    show();
}

/// One after the other; the first of the list comes first.
void Recovery::readPictures()
{
    const auto next = std::ranges::find(offers_, false, &Offer::isRead);
    if (next == offers_.end()) return;
    const auto leftover = next->leftover;
    const auto read = std::make_shared<Offer>();
    requests_.push_back(frame_.platform().inBackground(
        [leftover, read](const GoOn&) {
            read->thumbnail = thumbnailOf(leftover->read());
            read->trouble = leftover->trouble();
        },
        [this, leftover, read] {
            const auto offer = std::ranges::find(offers_, leftover, &Offer::leftover);
            if (offer != offers_.end()) {
                offer->isRead = true;
                offer->thumbnail = read->thumbnail;
                offer->trouble = read->trouble;
                if (dialog_) dialog_->follow(offers_);
                emit changed();
            }
            readPictures();
        }));
}

void Recovery::show()
{
    if (offers_.empty()) return frame_.platform().tell(tr("There is nothing to recover."));
    if (!dialog_) {
        dialog_ = new fRecovery(over_);
        connect(dialog_, &fRecovery::recovers, this, &Recovery::recover);
        connect(dialog_, &fRecovery::discards, this, &Recovery::discard);
    }
    dialog_->follow(offers_);
    dialog_->show();
    dialog_->raise();
    dialog_->activateWindow();
}

std::vector<const Leftover*> Recovery::all() const
{
    std::vector<const Leftover*> leftovers;
    for (const Offer& offer : offers_) leftovers.push_back(offer.leftover.get());
    return leftovers;
}

std::shared_ptr<Leftover> Recovery::takeOut(const Leftover* leftover)
{
    const auto offer = std::ranges::find(offers_, leftover, [](const Offer& each) { return each.leftover.get(); });
    if (offer == offers_.end()) return nullptr;
    const auto taken = offer->leftover;
    offers_.erase(offer);
    if (dialog_) dialog_->follow(offers_);
    emit changed();
    return taken;
}

/// One of which nothing can be read is offered again, to be discarded.
void Recovery::recover(const std::vector<const Leftover*>& chosen)
{
    for (const Leftover* each : chosen) {
        const auto leftover = takeOut(each);
        if (!leftover) continue;
        frame_.workspace().recover(leftover, [self = QPointer(this), leftover](const Opened& now) {
            if (!self) return;
            if (now.document) return self->opened(now.document, now.reason);
            Offer offer = offerOf(leftover);
            offer.isRead = true;
            self->offers_.push_back(offer);
            emit self->changed();
            self->frame_.platform().tell(offer.name + u'\n' + now.reason, Icon::Exclamation);
        });
    }
}

void Recovery::discard(const std::vector<const Leftover*>& chosen)
{
    QStringList names;
    for (const Offer& offer : offers_)
        if (std::ranges::count(chosen, offer.leftover.get())) names << offer.name;
    if (names.isEmpty()) return;
    const QPointer<Recovery> self = this;
    const QString what = names.size() == 1 ? frame_.platform().compactPath(names[0], kPathPixels)
                                           : tr("%n pictures", nullptr, int(names.size()));
    const int answer = frame_.platform().choose(kProgramName,
                                                tr("Discard the unsaved changes of %1?\nThey can't be "
                                                   "recovered after that.")
                                                    .arg(what),
                                                {tr("&Discard")});
    if (!self || answer != 0) return;
    std::vector<std::shared_ptr<Leftover>> taken;
    for (const Leftover* each : chosen)
        if (const auto leftover = takeOut(each)) taken.push_back(leftover);
    // Beside the window's thread: one may just be read, and large files take their time to go.
    requests_.push_back(frame_.platform().inBackground(
        [taken](const GoOn&) {
            for (const auto& leftover : taken) leftover->discard();
        },
        [] {}));
}

} // namespace velara
