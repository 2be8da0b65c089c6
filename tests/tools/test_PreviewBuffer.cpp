#include "engine/cBitFilter.h"
#include "support/pictures.h"
#include "support/seed.h"
#include "tools/PreviewBuffer.h"
#include <QTemporaryDir>
#include <random>

namespace velara {
namespace {

struct Preview : ::testing::Test {
    QTemporaryDir folder;
    Document document{folder.path(), 1};
    cBitFilter filter;
    PreviewBuffer preview{document, filter};
    std::mt19937 random{seedOf(9)};

    Preview()
    {
        document.takePicture(randomBits(200, 150, 1));
        document.handTo(filter);
    }
    void change(int y, int x0, int x1)
    {
        for (int x = x0; x < x1; ++x) document.edit().at(x, y).c[1] ^= 0x55;
        document.touched.fit(200, 150);
        document.touched.mark(y, x0, x1);
    }
    void paint()
    {
        const int x = static_cast<int>(random() % 200), y = static_cast<int>(random() % 150);
        change(y, x, std::min(200, x + 1 + static_cast<int>(random() % 90)));
    }
};

TEST_F(Preview, RestoresAndCommitsAsAWholeCopyWould)
{
    Bits committed = document.bits();
    for (int step = 0; step < 300; ++step) {
        preview.begin();
        for (int i = random() % 4; i > 0; --i) paint();
        const unsigned kind = random() % 6; // 0 commits; 1: a command between; 2, 3: only one of the two replaced
        if (kind == 3) document.setBits(randomBits(200, 150, random()));
        if (kind == 0 || kind == 3) {
            preview.commit();
            committed = document.bits();
        } else if (kind < 3) {
            committed = randomBits(200, 150, random());
            filter.setBits(committed);
            if (kind == 1) document.setBits(committed);
        }
        preview.restore();
        ASSERT_TRUE(sameBits(committed, document.bits())) << step;
        ASSERT_TRUE(sameBits(committed, filter.bits())) << step;
    }
}

TEST_F(Preview, BothBlocksStayWhereTheyAre)
{
    preview.begin();
    const std::uint8_t *a = std::as_const(document).bits().data(), *b = std::as_const(filter).bits().data();
    EXPECT_NE(a, b);
    for (int stroke = 0; stroke < 5; ++stroke) {
        preview.begin();
        paint();
        preview.restore();
        EXPECT_FALSE(preview.takeRestored().isEmpty());
        paint();
        preview.commit();
        EXPECT_EQ(std::as_const(document).bits().data(), a);
        EXPECT_EQ(std::as_const(filter).bits().data(), b);
        EXPECT_TRUE(filter.bits() == document.bits());
    }
}

TEST_F(Preview, WhatIsToBeShownCoversEveryRestoreSinceTheLast)
{
    preview.begin();
    for (const int y : {20, 120}) {
        change(y, 50, 51);
        preview.restore();
    }
    const Rect shown = preview.takeRestored();
    EXPECT_TRUE(shown.contains(50, 20) && shown.contains(50, 120));
    EXPECT_TRUE(preview.takeRestored().isEmpty());
}

TEST_F(Preview, AnEngineWithAnotherDocumentsPictureIsGivenThisOne)
{
    const Bits before = document.bits();
    filter.setBits(randomBits(10, 10, 4));
    preview.restore();
    EXPECT_TRUE(sameBits(before, document.bits()));
    EXPECT_TRUE(sameBits(before, filter.bits()));
}

} // namespace
} // namespace velara
