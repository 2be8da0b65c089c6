// velara-encode: makes one AVIF or JPEG XL file. Its libraries can't be interrupted in the middle of a picture; a
// process can, by its end.
#include "fileio/encode/encoders.h"
#include <csignal>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/stat.h>
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

bool encodeMemory()
{
    struct stat status {};
    if (fstat(kMemory, &status) != 0) return false;
    const auto size = static_cast<std::size_t>(status.st_size);
    void* memory = size < sizeof(Request) ? MAP_FAILED : mmap(nullptr, size, PROT_READ, MAP_SHARED, kMemory, 0);
    if (memory == MAP_FAILED) return false;
    const Request& request = *static_cast<const Request*>(memory);
    if (size < request.bytes()) return false;
    const auto* pixels = static_cast<const std::uint8_t*>(memory) + sizeof(Request);
    const std::uint8_t* exif = pixels + request.pixelBytes();
    const Picture picture{request, pixels, {exif, request.exif}, {exif + request.exif, request.xmp}};
    return request.format == Format::Avif ? encodeAvif(picture) : encodeJxl(picture);
}

} // namespace

} // namespace velara::encode

int main()
{
    prctl(PR_SET_PDEATHSIG, SIGKILL); // nobody is left to want the file
    return velara::encode::encodeMemory() ? 0 : 1;
}
