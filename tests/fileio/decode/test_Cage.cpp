// The cost of the cage per picture, and the kernel's view of a process inside it. What it refuses is tested in
// fileio/load/test_cage.cpp.
#include "fileio/decode/cage/Cage.h"
#include "fileio/decode/cage/Helpers.h"
#include <algorithm>
#include <array>
#include <atomic>
#include <csignal>
#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <regex>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace velara::decode {

namespace {

double processorTime() // ms
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

constexpr double kMost = 2; // ms

/// What other programs add is not counted: it is enough that it takes no longer once.
bool entersInTime(Needs needs)
{
    int status = 1;
    for (int tries = 400; status != 0 && tries > 0; --tries) {
        const pid_t inside = fork();
        if (inside == 0) {
            const double before = processorTime();
            const unsigned holding = enterCage(needs).holding;
            _exit(holding & NoNewPrivileges && processorTime() - before < kMost ? 0 : 1);
        }
        waitpid(inside, &status, 0);
    }
    return status == 0;
}

} // namespace

TEST(CageCost, EnteringItTakesLessThanTwoMilliseconds)
{
    EXPECT_TRUE(entersInTime(Needs::Nothing));
    EXPECT_TRUE(entersInTime(Needs::Fonts));
}

#ifndef __SANITIZE_ADDRESS__ // limits and filter are off there

TEST(Cage, TheSystemSaysThatItIsClosed)
{
    constexpr std::pair<Needs, unsigned> kTrials[] = {
        {Needs::Nothing, 9}, {Needs::Fonts, 9}, {Needs::Drawing, 9}, {Needs::Helpers, 9}, {Needs::Helpers, 1}};
    for (const auto& [needs, most] : kTrials) {
        const unsigned threads = needs == Needs::Drawing ? 2 : needs == Needs::Helpers ? std::min(4U, most) : 1;
        const std::string told = "Threads: " + std::to_string(threads);
        std::array<int, 2> line{};
        ASSERT_EQ(0, pipe(line.data()));
        const pid_t inside = fork();
        if (inside == 0) {
            dup2(line[1], 1);
            enterCage(needs, kAllLayers, most);
            [[maybe_unused]] const ssize_t written = write(1, "", 1);
            for (;;) usleep(1000);
        }
        char isInside = 0;
        EXPECT_EQ(read(line[0], &isInside, 1), 1);
        const std::string folder = "/proc/" + std::to_string(inside) + '/';
        const auto textOf = [&](const char* name) {
            std::ifstream file(folder + name);
            return std::regex_replace(std::string(std::istreambuf_iterator<char>(file), {}), std::regex("[ \t]+"), " ");
        };
        const std::string status = textOf("status"), limits = textOf("limits");
        for (const char* line :
             {"CapEff: 0000000000000000", "CapPrm: 0000000000000000", "NoNewPrivs: 1", "Seccomp: 2", told.c_str()})
            EXPECT_NE(status.find(line), status.npos) << line;
        EXPECT_TRUE(getuid() != 0 || status.find("CapBnd: 0000000000000000") != status.npos);
        for (const char* line :
             {"Max cpu time 61 61", "Max processes 0 0", "Max file size 0 0", "Max core file size 0 0"})
            EXPECT_NE(limits.find(line), limits.npos) << line << '\n' << limits;
        EXPECT_EQ(limits.find("Max address space unlimited"), limits.npos);
        EXPECT_EQ(textOf("oom_score_adj"), "1000\n");
        EXPECT_EQ(std::filesystem::read_symlink(folder + "cwd"), "/");
        kill(inside, SIGKILL);
        waitpid(inside, nullptr, 0);
        close(line[0]);
        close(line[1]);
    }
}

// Each item once, in several rounds, also while others are under way; and a fault goes to the one who asked.
TEST(Cage, HelpersShareTheWorkInside)
{
    const pid_t inside = fork();
    if (inside == 0) {
        if (enterCage(Needs::Helpers).open != 0) _exit(9);
        std::atomic<int> ahead = 0;
        const std::function<void(std::uint32_t, unsigned)> count = [&](std::uint32_t, unsigned) { ++ahead; };
        const bool hasBegun = beginTogether(0, 1000, count);
        if (hasBegun != (threadsTogether() > 1) || beginTogether(0, 9, count)) _exit(5);
        for (std::uint32_t round = 1; round < 200; ++round) {
            std::vector<std::atomic<int>> done(round * 7);
            runTogether(3, round * 7, [&](std::uint32_t item, unsigned thread) {
                if (thread >= threadsTogether()) _exit(1);
                std::vector<char> memory(item * 1000);
                ++done[item];
            });
            for (std::uint32_t i = 0; i < round * 7; ++i)
                if (done[i] != (i < 3 ? 0 : 1)) _exit(2);
            if (round == 50 && hasBegun) endTogether();
        }
        if (hasBegun && ahead != 1000) _exit(6);
        try {
            runTogether(0, 50, [](std::uint32_t item, unsigned) {
                if (item == 20) throw std::bad_alloc();
            });
        } catch (const std::bad_alloc&) {
            _exit(3);
        }
        _exit(4);
    }
    int status = 0;
    waitpid(inside, &status, 0);
    EXPECT_TRUE(WIFEXITED(status)) << "by signal " << WTERMSIG(status);
    EXPECT_EQ(WEXITSTATUS(status), 3);
}

// Its encoder starts threads, and can do nothing else that a reader can't.
TEST(Cage, AnEncoderHasThreadsAndNoFiles)
{
    const auto endsBy = [](void (*does)()) {
        const pid_t inside = fork();
        if (inside == 0) {
            std::thread([] {}).join();
            if (enterCage(Needs::Encoding).open != 0) _exit(9);
            does();
            _exit(3);
        }
        int status = 0;
        waitpid(inside, &status, 0);
        return WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status);
    };
    EXPECT_EQ(3, endsBy([] {
                  std::atomic<int> sum = 0;
                  std::vector<std::thread> all;
                  for (int i = 0; i < 8; ++i) all.emplace_back([&sum] { sum += 1; });
                  for (std::thread& each : all) each.join();
                  if (sum != 8) _exit(1);
              }));
    EXPECT_EQ(4, endsBy([] {
                  if (open("/etc/passwd", O_RDONLY) < 0 && errno == EACCES) _exit(4);
              }));
    void (*const kForbidden[])() = {[] { unlink("/tmp/velara-nothing"); },
                                    [] { mkdir("/tmp/velara-nothing", 0700); },
                                    [] { [[maybe_unused]] const pid_t child = fork(); },
                                    [] { socket(AF_INET, SOCK_STREAM, 0); },
                                    [] { kill(getppid(), 0); },
                                    [] { execl("/bin/true", "true", nullptr); }};
    for (const auto& does : kForbidden) EXPECT_EQ(-SIGSYS, endsBy(does)) << &does - kForbidden;
}

#endif

} // namespace velara::decode
