#include "fileio/decode/cage/OpenFonts.h"
#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <ucontext.h>
#include <unistd.h>
#include <vector>

namespace velara::decode {

namespace {

/// The folders in which fontconfig and the metafile readers look for fonts.
constexpr const char* kFontFolders[] = {"/usr/share/fonts", "/usr/local/share/fonts", "/usr/share/libwmf"};
constexpr std::size_t kMostFonts = 16384;

struct Font {
    std::string path;
    int descriptor;
};
std::vector<Font> fonts; // by path

void openFont(const std::string& path)
{
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    struct stat status {};
    if (file >= 0 && fstat(file, &status) == 0 && S_ISREG(status.st_mode))
        fonts.push_back({path, file});
    else if (file >= 0)
        close(file);
}

int fontAt(const char* path) // -1: none
{
    const auto font = std::ranges::lower_bound(
        fonts, path, [](const char* a, const char* b) { return std::strcmp(a, b) < 0; },
        [](const Font& f) { return f.path.c_str(); });
    return font != fonts.end() && font->path == path ? font->descriptor : -1;
}

/// Another descriptor of the font, at its beginning. All copies share one file offset; drawing code maps the file.
long opened(int font, greg_t flags)
{
    if (flags & (O_ACCMODE | O_CREAT | O_TRUNC)) return -EACCES;
    const int copy = fcntl(font, F_DUPFD_CLOEXEC, 0);
    if (copy < 0) return -errno;
    lseek(copy, 0, SEEK_SET);
    return copy;
}

/// What the kernel would answer if nothing but fonts existed. Runs in a signal handler: no allocation, no lock.
long answerTo(long call, const greg_t* registers)
{
    const auto text = [&](int which) { return reinterpret_cast<const char*>(registers[which]); };
    const auto status = [&](int which) { return reinterpret_cast<struct stat*>(registers[which]); };
    const auto of = [](int file, struct stat* to) { return syscall(SYS_fstat, file, to) == 0 ? 0L : -long{errno}; };
    const bool isFirst = call == SYS_open || call == SYS_stat || call == SYS_lstat || call == SYS_access;
    const char* path = text(isFirst ? REG_RDI : REG_RSI);
    if (call == SYS_newfstatat && *path == 0) return of(static_cast<int>(registers[REG_RDI]), status(REG_RDX));
    const int font = fontAt(path);
    if (font < 0) return -EACCES;
    switch (call) {
    case SYS_open:
        return opened(font, registers[REG_RSI]);
    case SYS_openat:
        return opened(font, registers[REG_RDX]);
    case SYS_stat:
    case SYS_lstat:
        return of(font, status(REG_RSI));
    case SYS_newfstatat:
        return of(font, status(REG_RDX));
    case SYS_access:
    case SYS_faccessat:
        return 0;
    default:
        return -EACCES;
    }
}

void answerInPlaceOfTheKernel(int, siginfo_t* info, void* context)
{
    const int before = errno;
    greg_t* registers = static_cast<ucontext_t*>(context)->uc_mcontext.gregs;
    registers[REG_RAX] = answerTo(info->si_syscall, registers);
    errno = before;
}

} // namespace

int highestFont()
{
    int highest = -1;
    for (const Font& font : fonts) highest = std::max(highest, font.descriptor);
    return highest;
}

void handOverFonts()
{
    namespace fs = std::filesystem;
    rlimit descriptors{};
    if (getrlimit(RLIMIT_NOFILE, &descriptors) == 0) {
        descriptors.rlim_cur = descriptors.rlim_max;
        setrlimit(RLIMIT_NOFILE, &descriptors);
    }
    constexpr auto kHow =
        fs::directory_options::follow_directory_symlink | fs::directory_options::skip_permission_denied;
    for (const char* folder : kFontFolders) {
        std::error_code failed, ignored;
        for (fs::recursive_directory_iterator entry(folder, kHow, failed), end; !failed && entry != end;
             entry.increment(failed)) {
            if (entry.depth() > 8) entry.disable_recursion_pending(); // cyclic links
            if (fonts.size() < kMostFonts && !entry->is_directory(ignored)) openFont(entry->path());
        }
    }
    std::ranges::sort(fonts, {}, &Font::path);
    struct sigaction action {};
    action.sa_sigaction = answerInPlaceOfTheKernel;
    action.sa_flags = SA_SIGINFO;
    sigaction(SIGSYS, &action, nullptr);
}

} // namespace velara::decode
