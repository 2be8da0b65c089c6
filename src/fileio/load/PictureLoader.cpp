#include "fileio/load/PictureLoader.h"
#include "fileio/load/DecodeProtocol.h"
#include "fileio/load/DecoderProcess.h"
#include <QFile>
#include <QFileInfo>
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

constexpr const char* kTooLong = "reading it took too long and was stopped";
constexpr const char* kNonsense = "the program that reads pictures (velara-decode) gave a false answer";

/// Why it makes no sense to start a reader; empty when it does. Opens the file, since only that tells the truth.
QString faultOfFile(const QString& path)
{
    const Descriptor file(open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!file.isOpen()) {
        if (errno == ENOENT || errno == ENOTDIR) return "there is no such file";
        if (errno == EACCES || errno == EPERM) return "there is no permission to read it";
        return QString("the system says \"%1\"").arg(QString::fromLocal8Bit(std::strerror(errno)));
    }
    struct stat status;
    if (fstat(file.get(), &status) != 0) return "the system tells nothing about it";
    if (S_ISDIR(status.st_mode)) return "it is a folder";
    if (!S_ISREG(status.st_mode)) return "it is not an ordinary file";
    if (status.st_size == 0) return "the file is empty";
    return {};
}

/// What the end of a child that gave no picture means.
QString faultOfEnd(int status)
{
    if (status >= 0 && WIFEXITED(status) && WEXITSTATUS(status) == 127)
        return "the program that reads pictures (velara-decode) can't be started";
    if (status >= 0 && WIFSIGNALED(status) && (WTERMSIG(status) == SIGXCPU || WTERMSIG(status) == SIGKILL))
        return kTooLong;
    return "it is damaged, and its reader gave up";
}

QString faultOf(Wait wait, DecoderProcess& child)
{
    switch (wait) {
    case Wait::TimedOut:
        return kTooLong;
    case Wait::Nonsense:
        return kNonsense;
    default:
        return faultOfEnd(child.end(2000ms));
    }
}

void copyRows(const std::uint8_t* slot, Bits& bits, int first, int count)
{
    const std::size_t bytes = sizeof(Pixel) * static_cast<std::size_t>(bits.width());
    for (int y = first; y < first + count; ++y, slot += bytes) {
        Pixel* row = bits.row(y);
        std::memcpy(row, slot, bytes);
        std::memset(row - Bits::kMargin, 0, sizeof(Pixel) * Bits::kMargin);
        std::memset(row + bits.width(), 0, sizeof(Pixel) * Bits::kMargin);
    }
}

void clearMarginRow(Bits& bits, int y)
{
    std::memset(bits.row(y) - Bits::kMargin, 0, sizeof(Pixel) * static_cast<std::size_t>(bits.stride()));
}

/// The picture out of the slots, as the child fills them; sets reason instead when it breaks off.
LoadedPicture receiveRows(DecoderProcess& child, int width, int height)
{
    Bits bits = Bits::uninitialized(width, height);
    for (const int y : {-2, -1, height, height + 1}) clearMarginRow(bits, y);
    const int most = decode::rowsInSlot(width);
    std::size_t slot = 0;
    for (int y = 0; y < height; y += most, slot = (slot + 1) % decode::kSlots) {
        std::int32_t first = 0;
        const Wait wait = child.receive(&first, sizeof first);
        if (wait != Wait::Message) return {{}, faultOf(wait, child)};
        if (first != y) return {{}, kNonsense};
        copyRows(child.memory() + slot * decode::kSlotBytes, bits, y, std::min(most, height - y));
        child.releaseSlot();
    }
    return {bits, {}};
}

LoadedPicture receivePicture(DecoderProcess& child)
{
    decode::Opening opening;
    const Wait wait = child.receive(&opening, sizeof opening);
    if (wait != Wait::Message) return {{}, faultOf(wait, child)};
    if (opening.magic != decode::kMagic) return {{}, kNonsense};
    if (opening.width == 0 && opening.height == 0) {
        const auto length = static_cast<qsizetype>(strnlen(opening.reason, sizeof opening.reason));
        const QString reason = QString::fromUtf8(opening.reason, length).simplified();
        return {{}, reason.isEmpty() ? QString(kNonsense) : reason};
    }
    if (!Bits::sizeAllowed(opening.width, opening.height)) return {{}, kNonsense};
    return receiveRows(child, opening.width, opening.height);
}

LoadedPicture load(const QString& path, const QString& extension, const QString& decoder, const DecoderLimits& limits)
try {
    if (const QString fault = faultOfFile(path); !fault.isEmpty()) return {{}, fault};
    if (decoder.isEmpty()) return {{}, "the program that reads pictures (velara-decode) was not found"};
    DecoderProcess child(decoder, QFileInfo(path).absoluteFilePath(), extension.toLower(), limits);
    if (!child.started()) return {{}, "the program that reads pictures (velara-decode) can't be started"};
    return receivePicture(child);
} catch (const std::bad_alloc&) {
    return {{}, "there is not enough memory for it"};
}

} // namespace

DecoderLimits limitsFor(std::int64_t fileSize)
{
    DecoderLimits limits;
    limits.cpuSeconds = static_cast<unsigned>(std::min<std::int64_t>(limits.cpuSeconds + (fileSize >> 20), 60));
    return limits;
}

QString findDecoder()
{
    static constexpr const char* kPlaces[] = {"", "../bin/", "../libexec/velara-studio/", "../libexec/",
                                              "../lib/velara-studio/"};
    const QString self = QFile::symLinkTarget("/proc/self/exe");
    const QString folder = QFileInfo(self).path();
    for (const char* place : kPlaces) {
        const QFileInfo program(folder + '/' + place + "velara-decode");
        if (program.isFile() && program.isExecutable()) return program.canonicalFilePath();
    }
    return {};
}

LoadedPicture loadThroughDecoder(const QString& path, const QString& extension, const QString& decoder,
                                 const DecoderLimits& limits)
{
    LoadedPicture picture = load(path, extension, decoder, limits);
    if (!picture.ok()) picture.reason = QFileInfo(path).fileName() + " can't be read: " + picture.reason;
    return picture;
}

} // namespace velara
