#include "fileio/decode/answer.h"
#include "fileio/decode/cage/OpenFonts.h"
#include "fileio/decode/decode.h"
#include "fileio/decode/sanitizer.h"
#include "fileio/load/DecodeProtocol.h"
#include <algorithm>
#include <array>
#include <csignal>
#include <cstring>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace velara::decode {

namespace {

/// Sends the size given by the header, so that the parent allows the time that so many pixels may take, or refuses
/// them.
void claimSize(std::int64_t width, std::int64_t height, int bits)
{
    const Opening claim{kClaim, static_cast<std::int32_t>(width), static_cast<std::int32_t>(height), {}, 0, {}, bits};
    send(kSocket, &claim, sizeof claim, MSG_NOSIGNAL);
}

template <class Message> bool tell(const Message& message)
{
    return send(kSocket, &message, sizeof message, MSG_NOSIGNAL) == static_cast<ssize_t>(sizeof message);
}

using Parts = std::array<QByteArray, kParts>;

/// Those of a length that may be sent.
Parts partsOf(const Decoded& picture)
{
    const CameraData& camera = picture.camera;
    Parts parts{camera.exif,   camera.xmp, camera.iptc, camera.comment.toUtf8(), picture.properties.toUtf8(),
                camera.profile};
    for (std::size_t i = 0; i < parts.size(); ++i)
        if (!picture.ok() || parts[i].size() > static_cast<qsizetype>(mostIn(Part(i)))) parts[i].clear();
    return parts;
}

bool tellPart(const QByteArray& part)
{
    const auto size = static_cast<std::size_t>(part.size());
    for (std::size_t at = 0; at < size; at += kPartMessage) {
        const std::size_t count = std::min(kPartMessage, size - at);
        if (send(kSocket, part.constData() + at, count, MSG_NOSIGNAL) != static_cast<ssize_t>(count)) return false;
    }
    return true;
}

void setReason(Opening& opening, const QString& text)
{
    const QByteArray reason = text.toUtf8().left(sizeof opening.reason - 1);
    std::memcpy(opening.reason, reason.constData(), static_cast<std::size_t>(reason.size()));
}

bool tellOpening(const Decoded& picture)
{
    const Parts parts = partsOf(picture);
    Opening opening{kMagic,
                    picture.width,
                    picture.height,
                    {},
                    picture.carried.pages,
                    {},
                    0,
                    picture.origin,
                    picture.camera.dotsAcross,
                    picture.camera.dotsDown};
    for (std::size_t i = 0; i < kParts; ++i) opening.parts[i] = static_cast<std::uint32_t>(parts[i].size());
    opening.hasLastWord = picture.lastWord ? 1 : 0;
    picture.format.copy(opening.format, sizeof opening.format - 1);
    setReason(opening, picture.reason);
    return tell(opening) && std::ranges::all_of(parts, tellPart);
}

bool tellLastWord(const Decoded& picture)
{
    if (!picture.lastWord) return true;
    Opening closing{kMagic, picture.width, picture.height, {}};
    setReason(closing, picture.lastWord());
    return tell(closing);
}

/// The number of a wish that has one, at least 1; otherwise: it isn't there.
int numberOf(const char* name, const QStringList& wishes, int otherwise)
{
    for (const QString& wish : wishes)
        if (wish.startsWith(name)) return std::max(wish.mid(static_cast<qsizetype>(std::strlen(name))).toInt(), 1);
    return otherwise;
}

/// Fills the slots in turn; waits for the parent when all are full.
bool tellRows(const Decoded& picture, std::uint8_t* memory)
try {
    const int most = rowsInSlot(picture.width);
    std::size_t slot = 0, free = kSlots;
    for (std::int32_t y = 0; y < picture.height; y += most, slot = (slot + 1) % kSlots) {
        char token;
        if (free == 0 && recv(kSocket, &token, 1, 0) != 1) return false;
        if (free > 0) --free;
        auto* to = reinterpret_cast<Pixel*>(memory + slot * kSlotBytes);
        for (int i = 0; i < most && y + i < picture.height; ++i) picture.row(y + i, to + i * picture.width);
        if (!tell(y)) return false;
    }
    return true;
} catch (const Damage&) {
    _exit(kDamagedInside);
} catch (const std::exception&) { // damage between the pixels, or too little memory: the parent says so
    return false;
}

} // namespace

void answer(const QString& extension, const QStringList& wishes)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL); // a reader in an endless loop doesn't outlive the waiting program
    std::signal(SIGXFSZ, SIG_IGN);    // no file may grow here; failing to write a font cache is no reason to end
    void* memory = mmap(nullptr, kMemoryBytes, PROT_READ | PROT_WRITE, MAP_SHARED, kMemory, 0);
    if (memory == MAP_FAILED) return;
    sizeFound = claimSize;
    wantedPage = numberOf(kPageWish, wishes, 1) - 1;
    tellOurFaultsFromTheLibraries();
    FileBytes file(kPicture);
    close(kPicture);
    const Needs needs = prepareReaders(extension, file.bytes());
    if (include(needs, Needs::Fonts)) handOverFonts();
    const auto threads = static_cast<unsigned>(numberOf(kThreadsWish, wishes, 1));
    const CageState cage = enterCage(needs, kAllLayers, threads); // of the file only its mark has been looked at yet
    const Wanted wanted{!wishes.contains(kStoredWish), !wishes.contains(kBareWish), wishes.contains(kTableWish)};
    const Decoded picture =
        cage.open ? refused(QString("its reader could not be locked in (%1)").arg(namesOf(cage.open).c_str()))
                  : decodePicture(std::move(file), extension, wanted);
    const bool done = tellOpening(picture) && picture.ok() && tellRows(picture, static_cast<std::uint8_t*>(memory)) &&
                      tellLastWord(picture);
    _exit(done ? 0 : 1); // no cleanup: the process is disposable
}

} // namespace velara::decode
