#include "tools/compare/Reading.h"
#include "fileio/load/Capacity.h"
#include "tools/reference/Dice.h"
#include <csignal>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <malloc.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace velara::compare {

namespace {

// Of the child.
Result* filled = nullptr;
const Capacity* capacity = nullptr;

void keepReason(const QString& reason)
{
    const QByteArray text = reason.toUtf8().left(static_cast<qsizetype>(filled->reason.size()) - 1);
    std::memcpy(filled->reason.data(), text.constData(), static_cast<std::size_t>(text.size()));
}

/// The program that loads pictures refuses such a claim, whatever the reader would make of it.
void checkClaim(std::int64_t width, std::int64_t height, int bits)
{
    if (capacity->mayClaim(width * height, bits)) return;
    filled->end = End::Refused;
    keepReason("it has hardly any bytes for its pixels");
    _exit(0);
}

void limit(const Terms& terms)
{
    const auto set = [](auto what, rlim_t most) {
        const rlimit limit{most, most};
        setrlimit(what, &limit);
    };
    set(RLIMIT_CORE, 0);
    set(RLIMIT_CPU, static_cast<rlim_t>(terms.seconds));
    if (terms.megabytes) set(RLIMIT_AS, static_cast<rlim_t>(terms.megabytes) << 20);
    if (terms.perturb) mallopt(M_PERTURB, terms.perturb);
}

void fill(const decode::Decoded& picture, int wanted)
{
    keepReason(picture.reason);
    filled->width = picture.width;
    filled->height = picture.height;
    if (picture.ok()) {
        std::vector<Pixel> row(static_cast<std::size_t>(picture.width));
        for (int y = 0; y < picture.height; ++y) {
            picture.row(y, row.data());
            filled->rows[static_cast<std::size_t>(y)] = checksum(row.data(), row.size() * sizeof(Pixel));
            if (y == wanted) std::memcpy(filled->row.data(), row.data(), row.size() * sizeof(Pixel));
        }
    }
    filled->end = !picture.ok() ? End::Refused : picture.reason.isEmpty() ? End::Picture : End::CutOff;
}

} // namespace

Reading::Reading()
    : result_(static_cast<Result*>(
          mmap(nullptr, sizeof(Result), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0)))
{
    if (result_ == MAP_FAILED) std::perror("shared memory"), std::exit(2);
}

Reading::~Reading() { munmap(result_, sizeof(Result)); }

const Result& Reading::read(Decode decode, std::span<const std::uint8_t> bytes, const QString& extension,
                            const Terms& terms)
{
    result_->reason.fill('\0');
    result_->end = End::Died;
    const pid_t child = fork();
    if (child < 0) std::perror("fork"), std::exit(2);
    if (child == 0) {
        dup2(open("/dev/null", O_WRONLY | O_CLOEXEC), STDERR_FILENO);
        filled = result_;
        const Capacity most(extension, static_cast<std::int64_t>(bytes.size()));
        capacity = &most;
        decode::sizeFound = checkClaim;
        limit(terms);
        fill(decode(decode::FileBytes(std::vector<std::uint8_t>(bytes.begin(), bytes.end())), extension), terms.row);
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    result_->signal = WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    if (result_->signal)
        result_->end = result_->signal == SIGXCPU || result_->signal == SIGKILL ? End::TooLong : End::Died;
    return *result_;
}

} // namespace velara::compare
