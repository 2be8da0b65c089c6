// A command's share of the memory, and how much is free.
#include "pixels/Bits.h"
#include "pixels/BlockPool.h"
#include "pixels/memory/freeMemory.h"
#include "support/files.h"
#include "support/freeMemory.h"
#include <QDir>

namespace velara {
namespace {

std::string refusalOf(const std::function<void()>& command)
{
    const MemoryBudget budget;
    try {
        command();
    } catch (const std::bad_alloc& refusal) {
        return refusal.what();
    }
    return {};
}

TEST(MemoryBudget, HalfOfWhatIsFreeIsForAllBlocksOfACommandTogether)
{
    BlockPool::instance().clear();
    const FreeMemory free(20'000'000);
    const auto take = [](int width) { return Bits(width, 996); }; // 4000 bytes per column, margin included
    EXPECT_EQ("", refusalOf([&] { take(2496); }));
    EXPECT_EQ("it needs 11 MB of memory, more than half of the 20 MB that are free", refusalOf([&] { take(2746); }));
    EXPECT_EQ("it needs 12 MB of memory, more than half of the 20 MB that are free", refusalOf([&] {
                  const Bits source = take(1496);
                  Bits copy = source;
                  copy.at(0, 0) = {};
              }));
    EXPECT_EQ("", refusalOf([&] {
                  for (const int width : {1496, 1500, 1504}) take(width); // one after the other
                  const MemoryBudget meanwhile(MemoryBudget::Kind::Without);
                  take(3000);
              }));
    const Bits outsideOfCommands = take(9000);
    const FreeMemory much(3'000'000'000);
    EXPECT_EQ("it needs 1.6 GB of memory, more than half of the 3.0 GB that are free",
              refusalOf([] { Bits(20000, 20000); }));
}

TEST(BlockPool, KeepsSeveralSizesUntilMemoryIsShort)
{
    constexpr std::size_t kLarge = 3'000'000, kSmall = 2'000'000;
    BlockPool pool;
    pool.keepSeveral(2);
    const FreeMemory free(12'000'000);
    const MemoryBudget budget; // of six million
    std::uint8_t* large = pool.take(kLarge);
    large[0] = 7; // fresh memory has zeros
    pool.give(large, kLarge);
    std::uint8_t* small = pool.take(kSmall);
    large = pool.take(kLarge);
    EXPECT_EQ(7, large[0]);
    pool.give(large, kLarge);
    pool.give(small, kSmall);
    std::uint8_t* third = pool.take(kLarge + 1); // too much beside what is kept, which goes
    pool.give(third, kLarge + 1);
    pool.clear();
}

TEST(MemoryBudget, FreeIsWhatTheMachineHasAndTheTightestGroupLeaves)
{
    const struct {
        const char *what, *groups, *files; // "NAME=CONTENT;NAME=CONTENT..."
        std::int64_t wanted;
    } kCases[] = {
        {"no limit", "0::/a/b\n", "a/b/memory.max=max\n;a/b/memory.current=70\n", 8192000},
        {"a group's", "0::/a/b\n", "a/b/memory.max=900\n;a/b/memory.current=700\n", 200},
        {"less what is cached", "0::/a\n",
         "a/memory.max=900\n;a/memory.current=700\n;a/memory.stat=anon 1\ninactive_file 50\nactive_file 7\n", 257},
        {"one further up", "0::/a/b\n",
         "a/b/memory.max=900;a/b/memory.current=100;a/memory.max=300;a/memory.current=250", 50},
        {"a container's", "0::/elsewhere\n", "memory.max=400;memory.current=500", 0},
        {"by kind", "7:cpu,memory:/a\n0::/\n",
         "memory/a/memory.limit_in_bytes=600;memory/a/memory.usage_in_bytes=500;"
         "memory/a/memory.stat=inactive_file 9\ntotal_inactive_file 30\n",
         130},
        {"nonsense", "::\nx\n0::a\n", "a/memory.max=9", 8192000},
    };
    for (const auto& c : kCases) {
        QTemporaryDir root;
        const auto put = [&](const QString& name, const QByteArray& content) {
            QDir(root.path()).mkpath(QFileInfo(name).path());
            putFile(root.filePath(name), content);
        };
        put("proc/meminfo", "MemTotal: 99999 kB\nMemFree:  11 kB\nMemAvailable:    8000 kB\n");
        put("proc/self/cgroup", c.groups);
        for (const QByteArray& file : QByteArray(c.files).split(';'))
            put("sys/fs/cgroup/" + file.split('=')[0], file.split('=')[1]);
        EXPECT_EQ(c.wanted, freeMemory(root.path().toStdString())) << c.what;
    }
    EXPECT_EQ(INT64_MAX, freeMemory("/nowhere"));
    EXPECT_GT(freeMemory(), 1 << 20) << "of this machine";
}

} // namespace
} // namespace velara
