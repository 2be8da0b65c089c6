#include "fileio/writers/encodedFile.h"
#include "fileio/cameraData.h"
#include "fileio/load/Descriptor.h"
#include "fileio/load/PictureLoader.h"
#include "fileio/waitFor.h"
#include "fileio/writers/packRows.h"
#include "fileio/writers/pictureFiles.h"
#include "pixels/threads/parallelFor.h"
#include <QFile>
#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/mman.h>
#include <system_error>
#include <thread>
#include <unistd.h>

namespace velara {

namespace {

using encode::Format, encode::Request;
constexpr int kAskEvery = 20; // milliseconds

/// Pages for all bytes of the file; in pieces, as that is long work, too.
bool allocate(int memory, std::size_t size, ByteSink& to)
{
    constexpr std::size_t kPiece = 4 << 20;
    for (std::size_t at = 0; at < size; at += kPiece)
        if (!to.goesOn() ||
            posix_fallocate(memory, static_cast<off_t>(at), static_cast<off_t>(std::min(kPiece, size - at))) != 0)
            return false;
    return true;
}

/// The request and all that follows it; invalid when there is no memory for it.
Descriptor memoryFor(const Bits& picture, Request request, const CameraData& camera, ByteSink& to)
{
    const std::size_t size = request.bytes();
    Descriptor memory(memfd_create("velara-encode", MFD_CLOEXEC));
    if (memory.get() < 0 || !allocate(memory.get(), size, to)) return Descriptor();
    void* mapped = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED, memory.get(), 0);
    if (mapped == MAP_FAILED) return Descriptor();
    auto* at = static_cast<std::uint8_t*>(mapped);
    std::memcpy(at, &request, sizeof request);
    at += sizeof request;
    bool goesOn = true;
    for (int y = 0; y < picture.height() && goesOn; ++y, at += std::size_t{request.width} * 3) {
        packRow24(picture.row(y), at, picture.width(), Order::RedFirst);
        goesOn = y % 64 != 0 || to.goesOn();
    }
    if (goesOn) {
        std::memcpy(at, camera.exif.constData(), request.exif);
        std::memcpy(at + request.exif, camera.xmp.constData(), request.xmp);
        std::memcpy(at + request.exif + request.xmp, camera.profile.constData(), request.profile);
    }
    munmap(mapped, size);
    return goesOn ? std::move(memory) : Descriptor();
}

/// The process; -1 when none can be started.
pid_t start(int memory, int output)
{
    std::string program = QFile::encodeName(findHelper("velara-encode")).toStdString();
    char* arguments[] = {program.data(), nullptr};
    char* environment[] = {nullptr};
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
    posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_adddup2(&actions, memory, encode::kMemory);
    posix_spawn_file_actions_addclosefrom_np(&actions, encode::kMemory + 1);
    pid_t pid = -1;
    if (posix_spawn(&pid, program.c_str(), &actions, nullptr, arguments, environment) != 0) pid = -1;
    posix_spawn_file_actions_destroy(&actions);
    return pid;
}

/// Takes the file from the pipe. False when it isn't wanted any more, or can't be written.
bool take(int pipe, ByteSink& to)
{
    std::array<std::uint8_t, 64 << 10> buffer;
    for (;;) {
        pollfd ready{pipe, POLLIN, 0};
        const int events = poll(&ready, 1, kAskEvery);
        if (!to.goesOn() || (events < 0 && errno != EINTR)) return false;
        if (events <= 0) continue;
        const ssize_t got = read(pipe, buffer.data(), buffer.size());
        if (got <= 0) return got == 0;
        if (!to.write(buffer.data(), static_cast<std::size_t>(got))) return false;
    }
}

/// Ends the process without waiting for it: to take down its memory lasts longer than an answer to Esc may.
void end(pid_t pid)
{
    kill(pid, SIGKILL);
    try {
        std::thread([pid] { waitFor(pid); }).detach();
    } catch (const std::system_error&) {
        waitFor(pid);
    }
}

} // namespace

bool writeEncoded(const Bits& picture, Format format, int quality, ByteSink& to, const CameraData& carried)
{
    const CameraData camera = inExif(carried);
    const auto bytes = [](const QByteArray& of) { return static_cast<std::uint32_t>(of.size()); };
    const Request request{format,
                          static_cast<std::uint32_t>(picture.width()),
                          static_cast<std::uint32_t>(picture.height()),
                          static_cast<std::uint32_t>(quality),
                          static_cast<std::uint32_t>(threadCount()),
                          bytes(camera.exif),
                          bytes(camera.xmp),
                          bytes(camera.profile)};
    const Descriptor memory = memoryFor(picture, request, camera, to);
    int ends[2];
    if (memory.get() < 0 || pipe2(ends, O_CLOEXEC) != 0) return false;
    const Descriptor reading(ends[0]);
    Descriptor writing(ends[1]);
    const pid_t pid = start(memory.get(), writing.get());
    if (pid < 0) return false;
    writing.close(); // the child's alone, so that its end is seen
    if (take(reading.get(), to)) return waitFor(pid) == 0;
    end(pid);
    return false;
}

bool writeAvif(const Bits& picture, int quality, ByteSink& to, const CameraData& camera)
{
    return writeEncoded(picture, Format::Avif, quality, to, camera);
}

bool writeJxl(const Bits& picture, int quality, ByteSink& to, const CameraData& camera)
{
    return writeEncoded(picture, Format::Jxl, quality, to, camera);
}

} // namespace velara
