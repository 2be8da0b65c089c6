#include "fileio/decode/sanitizer.h"

#ifdef __SANITIZE_ADDRESS__
#include <array>
#include <sanitizer/asan_interface.h>
#include <string_view>
#include <unistd.h>

namespace velara::decode {

namespace {

constexpr int kLibraryFault = 97;
constexpr std::array<std::string_view, 4> kBelow = {"libasan", "libc.so", "libstdc++", "libgcc"}; // called by both

/// The program or library in a line of a stack, "#1 0x... in f (/usr/lib/libx.so.3+0x12)"; empty for other lines.
std::string_view moduleOf(std::string_view line)
{
    const auto frame = line.find_first_not_of(' ');
    if (frame == line.npos || line[frame] != '#') return {};
    const auto end = line.rfind("+0x"), begin = line.rfind('(', end);
    return begin == line.npos || end == line.npos ? std::string_view() : line.substr(begin + 1, end - begin - 1);
}

/// Whether the first stack of the report blames a library: also when it called back into our code, writing to a buffer
/// of its own.
bool isTheLibrarys(std::string_view text)
{
    const bool isWrite = text.find("WRITE of size") != text.npos;
    bool inOurs = false;
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(text.size(), line.size() + 1));
        const std::string_view module = moduleOf(line), file = module.substr(module.rfind('/') + 1);
        if (file.empty() && inOurs) return false; // the end of the stack
        bool isBelow = file.empty();
        for (const std::string_view name : kBelow) isBelow |= file.starts_with(name);
        if (isBelow) continue;
        if (!file.starts_with("velara-decode")) return !inOurs || isWrite;
        inOurs = true;
    }
    return false;
}

void judge(const char* report)
{
    if (isTheLibrarys(report)) _exit(kLibraryFault);
}

} // namespace

void tellOurFaultsFromTheLibraries() { __asan_set_error_report_callback(judge); }

} // namespace velara::decode

#else

void velara::decode::tellOurFaultsFromTheLibraries() {}

#endif
