// What keeps very many names in little memory gives them back as they were.
#include "batch/inputs/InputFiles.h"
#include "batch/inputs/NumberTable.h"
#include <gtest/gtest.h>
#include <map>
#include <random>

namespace velara {
namespace {

TEST(InputFiles, AreWhatWasPutIn)
{
    const InputFile files[] = {{"in/a.jpg", "", {1, 10}, -5, 999999999},
                               {"in/b.jpg", "", {2, 11}, 1, 0},
                               {"in/b/a.jpg", "b", {2, 12}, 1, 0},
                               {"in/b/c.jpg", "", {2, 13}, 1, 0},
                               {"/gone.jpg", "", {}, 0, 0},
                               {"plain", "", {2, 14}, 1, 0},
                               {"in/odd/", "", {}, 0, 0},
                               {"in/a.jpg", "", {1, 10}, -5, 1}};
    InputFiles kept;
    for (const InputFile& file : files) kept.add(file);
    for (int i = 0; i < kept.size(); ++i) {
        const InputFile& wanted = files[i];
        const InputFile got = kept[i];
        EXPECT_EQ(wanted.path, got.path) << i;
        EXPECT_EQ(wanted.dir, got.dir) << i;
        EXPECT_EQ(wanted.identity, got.identity) << i;
        EXPECT_EQ(wanted.seconds, got.seconds) << i;
        EXPECT_EQ(wanted.nanoseconds, got.nanoseconds) << i;
    }
    EXPECT_EQ(int(std::size(files)), kept.size());
}

/// Keys that all have the same hash are told apart by their numbers' keys.
TEST(InputFiles, ATableFindsWhatAMapFinds)
{
    const unsigned seed = std::random_device()();
    std::mt19937 random(seed);
    std::vector<std::string> keys;
    std::map<std::string, int> wanted;
    NumberTable table, alike;
    for (int i = 0; i < 2000; ++i) {
        keys.push_back(std::to_string(random() % 1500));
        const auto isKey = [&](int number) { return keys[std::size_t(number)] == keys.back(); };
        const auto [at, isNew] = wanted.try_emplace(keys.back(), i);
        ASSERT_EQ(isNew ? -1 : at->second, table.find(keys.back(), isKey)) << seed;
        ASSERT_EQ(isNew ? -1 : at->second, table.findOrPut(keys.back(), i, isKey)) << seed;
        ASSERT_EQ(isNew ? -1 : at->second, alike.findOrPut("the same", i, isKey)) << seed;
        ASSERT_EQ(at->second, table.find(keys.back(), isKey)) << seed;
    }
}

} // namespace
} // namespace velara
