#include "fileio/decode/FileBytes.h"
#include <QFile>
#include <cstring>
#include <fcntl.h>
#include <string_view>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velara::decode {

FileBytes::FileBytes(const QString& path)
{
    const int fd = open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) return;
    map(fd);
    close(fd);
}

FileBytes::FileBytes(int descriptor) { map(descriptor); }

void FileBytes::map(int fd)
{
    struct stat status;
    if (fstat(fd, &status) == 0 && S_ISREG(status.st_mode) && status.st_size > 0) {
        const auto size = static_cast<std::size_t>(status.st_size);
        void* mapped = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE, fd, 0);
        if (mapped != MAP_FAILED) {
            owner_ = {mapped, [size](void* memory) { munmap(memory, size); }};
            bytes_ = {static_cast<std::uint8_t*>(mapped), size};
        }
    }
}

bool FileBytes::startsWith(std::string_view magic) const
{
    return size() >= magic.size() && std::memcmp(bytes_.data(), magic.data(), magic.size()) == 0;
}

} // namespace velara::decode
