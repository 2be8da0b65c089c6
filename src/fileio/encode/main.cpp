// velara-encode: makes one AVIF, JPEG XL or WebP file. Its libraries can't be interrupted in the middle of a picture; a
// process can, by its end. It works in the cage of the readers: what it gets is its memory and the pipe for the file.
#include "fileio/decode/cage/Cage.h"
#include "fileio/encode/encoders.h"
#include <csignal>
#include <ctime>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace velara::encode {

bool put(const void* bytes, std::size_t size)
{
    const auto* from = static_cast<const std::uint8_t*>(bytes);
    while (size > 0) {
        const ssize_t written = write(STDOUT_FILENO, from, size);
        if (written <= 0) return false;
        from += written;
        size -= static_cast<std::size_t>(written);
    }
    return true;
}

namespace {

/// Of processor time: several times what the slower encoder takes for so many pixels.
void limitTime(std::size_t pixels)
{
    constexpr rlim_t kLeast = 60, kPixelsASecond = 100'000;
    const rlim_t seconds = kLeast + pixels / kPixelsASecond;
    const rlimit limit{seconds, seconds};
    setrlimit(RLIMIT_CPU, &limit);
}

/// False when it could not be closed.
bool closeCage(Format format)
{
    if (format == Format::Avif && !prepareAvif()) return false;
    tzset();                   // what a library of profiles asks for
    std::thread([] {}).join(); // the first one sets the C library up for others
    return decode::enterCage(decode::Needs::Encoding).open == 0;
}

bool encodeMemory()
{
    struct stat status {};
    if (fstat(kMemory, &status) != 0) return false;
    const auto size = static_cast<std::size_t>(status.st_size);
    void* memory = size < sizeof(Request) ? MAP_FAILED : mmap(nullptr, size, PROT_READ, MAP_SHARED, kMemory, 0);
    if (memory == MAP_FAILED) return false;
    const Request& request = *static_cast<const Request*>(memory);
    if (size < request.bytes()) return false;
    close(kMemory);
    limitTime(std::size_t{request.width} * request.height);
    if (!closeCage(request.format)) return false;
    const auto* pixels = static_cast<const std::uint8_t*>(memory) + sizeof(Request);
    const std::uint8_t* exif = pixels + request.pixelBytes();
    const std::uint8_t *xmp = exif + request.exif, *profile = xmp + request.xmp;
    const Picture picture{request, pixels, {exif, request.exif}, {xmp, request.xmp}, {profile, request.profile}};
    switch (request.format) {
    case Format::Avif:
        return encodeAvif(picture);
    case Format::Jxl:
        return encodeJxl(picture);
    case Format::Webp:
    case Format::LosslessWebp:
        return encodeWebp(picture);
    }
    return false;
}

} // namespace

} // namespace velara::encode

int main()
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);              // nobody is left to want the file
    _exit(velara::encode::encodeMemory() ? 0 : 1); // what libraries do at an end may not be done in the cage
}
