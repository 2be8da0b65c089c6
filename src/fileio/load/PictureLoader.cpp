#include "fileio/load/PictureLoader.h"
#include "fileio/disk/nativeName.h"
#include "fileio/formats.h"
#include "fileio/load/Capacity.h"
#include "fileio/load/DecodeProtocol.h"
#include "fileio/load/DecoderProcess.h"
#include "fileio/load/ReadPolicy.h"
#include "fileio/load/rowsOf.h"
#include "fileio/marks.h"
#include "pixels/memory/MemoryBudget.h"
#include "pixels/threads/WrittenRows.h"
#include "pixels/threads/parallelFor.h"
#include "seams/printable.h"
#include <QFile>
#include <QFileInfo>
#include <array>
#include <atomic>
#include <bit>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <new>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace velara {

namespace {

using namespace std::chrono_literals;
using Wait = DecoderProcess::Wait;

constexpr const char* kGivenUp = "reading it was given up";
constexpr const char* kTooLong = "reading it took too long and was stopped";
constexpr int kSanitizerSpoke = 99; // the exit code set by make test-sanitize
constexpr const char* kNonsense = "the program that reads pictures (velara-decode) gave a false answer";

/// Its size in bytes; returns why starting a reader would be pointless.
QString faultOfFile(const Descriptor& file, std::int64_t& size)
{
    struct stat status;
    if (fstat(file.get(), &status) != 0) return "the system tells nothing about it";
    size = status.st_size;
    if (S_ISDIR(status.st_mode)) return "it is a folder";
    if (!S_ISREG(status.st_mode)) return "it is not an ordinary file";
    if (status.st_size == 0) return "the file is empty";
    return {};
}

/// The reason for a child that ended without a picture.
QString faultOfEnd(int status)
{
    if (status >= 0 && WIFEXITED(status) && WEXITSTATUS(status) == 127)
        return "the program that reads pictures (velara-decode) can't be started";
    if (status >= 0 && WIFEXITED(status) && WEXITSTATUS(status) == kSanitizerSpoke)
        return "a sanitizer stopped its reader";
    if (status >= 0 && WIFSIGNALED(status) && WTERMSIG(status) == SIGSYS)
        return "it is damaged, and its reader wanted what no picture needs";
    if (status >= 0 && WIFSIGNALED(status) && (WTERMSIG(status) == SIGXCPU || WTERMSIG(status) == SIGKILL))
        return kTooLong;
    if (status >= 0 && WIFEXITED(status) && WEXITSTATUS(status) == decode::kDamagedInside)
        return "it is damaged between its first row and its last";
    return "it is damaged, and its reader gave up";
}

QString faultOf(Wait wait, DecoderProcess& child)
{
    switch (wait) {
    case Wait::TimedOut:
        return kTooLong;
    case Wait::Stopped:
        return kGivenUp;
    case Wait::Nonsense:
        return kNonsense;
    default:
        return faultOfEnd(child.end(2000ms));
    }
}

void copyRows(const Pixel* slot, const WrittenRows& rows, std::size_t width, int first, int count)
{
    for (int y = first; y < first + count; ++y, slot += width) {
        Pixel* row = rows.row(y);
        for (std::size_t x = 0; x < width; ++x) // the fourth byte is ours, whatever the child wrote
            row[x] = std::bit_cast<Pixel>(std::bit_cast<std::uint32_t>(slot[x]) & 0xffffffU);
        std::memset(row - Bits::kMargin, 0, sizeof(Pixel) * Bits::kMargin);
        std::memset(row + width, 0, sizeof(Pixel) * Bits::kMargin);
    }
}

void clearMarginRow(Bits& bits, int y)
{
    std::memset(bits.row(y) - Bits::kMargin, 0, sizeof(Pixel) * static_cast<std::size_t>(bits.stride()));
}

/// Receives the rows from the slots as the child fills them.
Ending receiveRows(DecoderProcess& child, int width, int height, const RowTaker& take)
{
    const int most = decode::rowsInSlot(width);
    std::size_t slot = 0;
    for (int y = 0; y < height; y += most, slot = (slot + 1) % decode::kSlots) {
        std::int32_t first = 0;
        const Wait wait = child.receive(&first, sizeof first);
        if (wait != Wait::Message) return {false, faultOf(wait, child)};
        if (first != y) return {false, kNonsense};
        const auto* rows = reinterpret_cast<const Pixel*>(child.memory() + slot * decode::kSlotBytes);
        take(rows, y, std::min(most, height - y));
        child.releaseSlot();
    }
    return {true, {}};
}

/// Why a picture of that size, or a claim of it, is refused.
QString faultOfSize(const decode::Opening& opening, const Capacity& capacity)
{
    const std::int64_t width = opening.width, height = opening.height;
    if (!Bits::sizeAllowed(width, height)) return kNonsense;
    if (width * height > readPolicy().pixels)
        return QString("it has more than the %1 pixels that limits.conf allows").arg(readPolicy().pixels);
    if (capacity.mayClaim(width * height, opening.bits)) return {};
    return QString("it is damaged: it has hardly any bytes for its %1 x %2 pixels").arg(width).arg(height);
}

/// What comes after an Opening; the reason why it is of no use.
QString receiveParts(DecoderProcess& child, const decode::Opening& opening, Parts& parts)
{
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const std::size_t size = opening.parts[i];
        if (size > decode::mostIn(decode::Part(i))) return kNonsense;
        parts[i].resize(static_cast<qsizetype>(size));
        for (std::size_t at = 0; at < size; at += decode::kPartMessage) {
            const Wait wait = child.receive(parts[i].data() + at, std::min(decode::kPartMessage, size - at));
            if (wait != Wait::Message) return faultOf(wait, child);
        }
    }
    return {};
}

QString reasonIn(const decode::Opening& opening)
{
    const auto length = static_cast<qsizetype>(strnlen(opening.reason, sizeof opening.reason));
    return QString::fromUtf8(opening.reason, length).simplified();
}

Ending receivePicture(DecoderProcess& child, const Capacity& capacity, const Begin& begin)
{
    decode::Opening opening;
    int bits = 0;
    Wait wait = child.receive(&opening, sizeof opening);
    constexpr int kReaders = 2; // by the name and by the mark
    for (int i = 0; i < kReaders && wait == Wait::Message && opening.magic == decode::kClaim; ++i) {
        if (const QString fault = faultOfSize(opening, capacity); !fault.isEmpty()) return {false, fault};
        const std::int64_t pixels = std::int64_t{opening.width} * opening.height;
        child.claim(std::min(pixels, capacity.pixels(opening.bits)));
        bits = opening.bits;
        wait = child.receive(&opening, sizeof opening);
    }
    if (wait != Wait::Message) return {false, faultOf(wait, child)};
    if (opening.magic != decode::kMagic) return {false, kNonsense};
    const QString reason = reasonIn(opening);
    if (opening.width == 0 && opening.height == 0) return {false, reason.isEmpty() ? QString(kNonsense) : reason};
    if (const QString fault = faultOfSize(opening, capacity); !fault.isEmpty()) return {false, fault};
    opening.bits = bits;
    Parts parts;
    if (const QString fault = receiveParts(child, opening, parts); !fault.isEmpty()) return {false, fault};
    Ending ending = receiveRows(child, opening.width, opening.height, begin(opening, parts));
    if (!ending.whole) return ending;
    ending.reason = reason;
    if (!opening.hasLastWord) return ending;
    wait = child.receive(&opening, sizeof opening);
    if (wait != Wait::Message) return {false, faultOf(wait, child)};
    if (reason.isEmpty()) ending.reason = reasonIn(opening);
    return ending;
}

bool isOff(const QString& format)
{
    const std::string known = format.toStdString();
    return std::ranges::any_of(readPolicy().off, [&](const QString& off) {
        const std::string each = off.toStdString();
        return usualExtension(each) == usualExtension(known);
    });
}

DecoderLimits limitsWithin(DecoderLimits limits, const ReadPolicy& policy)
{
    limits.memory = std::min<std::uint64_t>(limits.memory, policy.memory);
    limits.mostSeconds = std::min(limits.mostSeconds, policy.seconds);
    limits.cpuSeconds = std::min(limits.cpuSeconds, policy.seconds);
    return limits;
}

/// The extension of the mark that the file bears; empty when it bears none.
QString markedFormat(const Descriptor& file)
{
    std::array<std::uint8_t, kMarkedBytes> head{};
    const ssize_t got = pread(file.get(), head.data(), head.size(), 0);
    return QLatin1String(markOf(std::span(head).first(static_cast<std::size_t>(std::max<ssize_t>(got, 0)))));
}

/// The bound of the format by its name or of that by its mark, whichever is wider.
Capacity capacityOf(const QString& format, const QString& mark, std::int64_t size)
{
    const Capacity byName(format, size);
    if (mark.isEmpty()) return byName;
    const Capacity byMark(mark, size);
    return byMark.pixels(1) > byName.pixels(1) ? byMark : byName;
}

std::atomic<bool> inSrgb{true};

/// Dots per inch as they may be; else 0.
double dotsOf(double claimed) { return claimed >= 1 && claimed <= 1e5 ? claimed : 0; }

CameraData cameraOf(const decode::Opening& opening, const Parts& parts)
{
    const double across = dotsOf(opening.dotsAcross), down = dotsOf(opening.dotsDown);
    CameraData camera{parts[decode::Exif], parts[decode::Xmp], parts[decode::Iptc],
                      QString::fromUtf8(parts[decode::Comment])};
    if (across > 0 && down > 0) camera.dotsAcross = across, camera.dotsDown = down;
    camera.profile = parts[decode::Profile];
    return camera;
}

/// The child's lines after ours.
QString propertiesOf(const decode::Opening& opening, const Parts& parts)
{
    const QString depth = opening.bits > 0 && opening.bits <= 128
                              ? QStringLiteral("Depth\t%1 bits a pixel in the file\n").arg(opening.bits)
                              : QString();
    return depth + QString::fromUtf8(parts[decode::Properties]);
}

constexpr std::int32_t kMostPages = 1 << 24; // fewer than two gigabytes can have

/// Empty for one that isn't known.
QString formatIn(const decode::Opening& opening)
{
    const std::string_view name(opening.format, strnlen(opening.format, sizeof opening.format));
    const Format* format = findFormat(name);
    return format ? QLatin1String(format->extension) : QString();
}

LoadedPicture loadWhole(const Descriptor& file, const QString& name, const QString& extension, const QString& decoder,
                        const QStringList& wishes, const DecoderLimits& limits, const GoOn& goOn,
                        const RowsCame& came = {})
{
    LoadedPicture picture;
    Bits& bits = picture.bits;
    const Ending ending =
        load(file, extension, decoder, wishes, limits, goOn, [&](const auto& opening, const Parts& parts) {
            picture.camera = cameraOf(opening, parts);
            picture.properties = propertiesOf(opening, parts);
            picture.format = formatIn(opening);
            picture.pages = std::clamp(opening.pages, 1, kMostPages);
            const int height = opening.height;
            {
                const MemoryBudget budget;
                bits = Bits::uninitialized(opening.width, height);
            }
            for (const int y : {-2, -1, height, height + 1}) clearMarginRow(bits, y);
            const WrittenRows to(bits); // who is told of rows may hold the picture, too
            if (came) came(picture, 0);
            return [&, to, width = std::size_t(opening.width)](const Pixel* rows, int first, int count) {
                copyRows(rows, to, width, first, count);
                if (came) came(picture, first + count);
            };
        });
    if (!ending.whole) picture = {};
    picture.reason = named(ending, name);
    return picture;
}

} // namespace

Descriptor openPicture(const QString& path, QString& reason)
{
    Descriptor file(open(nativeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (file.isOpen()) return file;
    if (errno == ENOENT || errno == ENOTDIR)
        reason = "there is no such file";
    else if (errno == EACCES || errno == EPERM)
        reason = "there is no permission to read it";
    else
        reason = QString("the system says \"%1\"").arg(QString::fromLocal8Bit(std::strerror(errno)));
    return file;
}

Ending load(const Descriptor& file, const QString& extension, const QString& decoder, QStringList wishes,
            const DecoderLimits& limits, const GoOn& goOn, const Begin& begin)
try {
    std::int64_t size = 0;
    if (const QString fault = faultOfFile(file, size); !fault.isEmpty()) return {false, fault};
    if (decoder.isEmpty()) return {false, "the program that reads pictures (velara-decode) was not found"};
    const QString format = extension.toLower();
    const QString mark = markedFormat(file);
    for (const QString& each : {format, mark})
        if (isOff(each)) return {false, QString("limits.conf has turned .%1 files off").arg(each)};
    if (!inSrgb) wishes << decode::kStoredWish;
    wishes << decode::kThreadsWish + QString::number(threadCount());
    DecoderProcess child(decoder, file, format, wishes, limitsWithin(limits, readPolicy()), goOn);
    if (!child.started()) return {false, "the program that reads pictures (velara-decode) can't be started"};
    return receivePicture(child, capacityOf(format, mark, size), begin);
} catch (const NotEnoughMemory& refusal) {
    return {false, refusal.what()};
} catch (const std::bad_alloc&) {
    return {false, "there is not enough memory for it"};
}

QString named(const Ending& ending, const QString& name)
{
    if (!ending.whole) return printable(name + " can't be read: " + ending.reason);
    return ending.reason.isEmpty() ? QString() : printable(name + ": " + ending.reason);
}

void readInSrgb(bool on) { inSrgb = on; }

DecoderLimits limitsFor(std::int64_t fileSize)
{
    constexpr std::int64_t kMegabyte = 1 << 20;
    DecoderLimits limits;
    if (fileSize >= kMegabyte)
        limits.cpuSeconds = static_cast<unsigned>(std::min<std::int64_t>(15 + fileSize / kMegabyte, kMostSeconds));
    return limits;
}

unsigned secondsFor(std::int64_t pixels)
{
    constexpr std::int64_t kPixelsASecond = 4 << 20; // the slowest reader, on a slow machine
    return static_cast<unsigned>(std::clamp<std::int64_t>(2 + pixels / kPixelsASecond, 2, kMostSeconds));
}

QString findHelper(const QString& name)
{
    static constexpr const char* kPlaces[] = {"", "../bin/", "../libexec/velara-studio/", "../libexec/",
                                              "../lib/velara-studio/"};
    const QString self = QFile::symLinkTarget("/proc/self/exe");
    const QString folder = QFileInfo(self).path();
    for (const char* place : kPlaces) {
        const QFileInfo program(folder + '/' + place + name);
        if (program.isFile() && program.isExecutable()) return program.canonicalFilePath();
    }
    return {};
}

LoadedPicture loadThroughDecoder(const QString& path, const QString& extension, const QString& decoder,
                                 const DecoderLimits& limits, const GoOn& goOn, int page, const RowsCame& came)
{
    QString reason;
    const QString name = QFileInfo(path).fileName();
    const Descriptor file = openPicture(path, reason);
    if (!file.isOpen()) return {{}, named({false, reason}, name)};
    return loadThroughDecoder(file, name, extension, decoder, limits, goOn, page, came);
}

LoadedPicture loadThroughDecoder(const Descriptor& file, const QString& name, const QString& extension,
                                 const QString& decoder, const DecoderLimits& limits, const GoOn& goOn, int page,
                                 const RowsCame& came)
{
    QStringList wishes;
    if (page > 1) wishes << decode::kPageWish + QString::number(page);
    return loadWhole(file, name, extension, decoder, wishes, limits, goOn, came);
}

LoadedPicture loadColourTable(const Descriptor& profile, const QString& decoder, const GoOn& goOn)
{
    return loadWhole(profile, QStringLiteral("The screen's profile"), {}, decoder,
                     {decode::kTableWish, decode::kBareWish}, {}, goOn);
}

} // namespace velara
