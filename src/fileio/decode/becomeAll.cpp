#include "fileio/decode/becomeAll.h"
#include "fileio/decode/decode.h"
#include "fileio/load/DecodeProtocol.h"
#include "fileio/marks.h"
#include <algorithm>
#include <array>
#include <filesystem>
#include <span>
#include <unistd.h>

namespace velara::decode {

bool readsFileHere(std::string_view extension)
{
    std::array<std::uint8_t, kMarkedBytes> head{};
    const ssize_t count = pread(kPicture, head.data(), head.size(), 0);
    return readsHere(extension, std::span(head).first(static_cast<std::size_t>(std::max<ssize_t>(count, 0))));
}

void becomeAllReaders(char** argv)
{
    std::error_code failed;
    const auto self = std::filesystem::read_symlink("/proc/self/exe", failed);
    execv((self.parent_path() / "velara-decode-all").c_str(), argv);
}

} // namespace velara::decode
