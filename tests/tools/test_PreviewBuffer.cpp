#include "engine/cBitFilter.h"
#include "support/pictures.h"
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
    std::mt19937 random{9};

    void open(int width, int height, std::uint32_t seed)
    {
        document.takePicture(randomBits(width, height, seed));
        document.handTo(filter);
    }
    void paint()
    {
        const int x = static_cast<int>(random() % 200), y = static_cast<int>(random() % 150);
        const int end = std::min(200, x + 1 + static_cast<int>(random() % 90));
        for (int i = x; i < end; ++i) document.edit().at(i, y).c[1] ^= 0x55;
        document.touched.fit(200, 150);
        document.touched.mark(y, x, end);
    }
    const std::uint8_t* shown() { return document.bits().data(); }
};

TEST_F(Preview, RestoresAndCommitsAsAWholeCopyWould)
{
    open(200, 150, 1);
    Bits committed = document.bits();
    for (int step = 0; step < 300; ++step) {
        preview.begin();
        for (int i = random() % 4; i > 0; --i) paint();
        switch (random() % 6) {
        case 0:
            preview.commit();
            committed = document.bits();
            break;
        case 1: // a command between
            committed = randomBits(200, 150, random());
            filter.setBits(committed);
            document.setBits(committed);
            break;
        case 2: // only one of the two was replaced
            committed = randomBits(200, 150, random());
            filter.setBits(committed);
            preview.restore();
            break;
        case 3:
            document.setBits(randomBits(200, 150, random()));
            preview.commit();
            committed = document.bits();
            break;
        default:
            preview.restore();
        }
        preview.restore();
        ASSERT_TRUE(sameBits(committed, document.bits())) << step;
        ASSERT_TRUE(sameBits(committed, filter.bits())) << step;
    }
}

TEST_F(Preview, BothBlocksStayWhereTheyAre)
{
    open(200, 150, 2);
    preview.begin();
    const std::uint8_t *a = shown(), *b = std::as_const(filter).bits().data();
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
    open(200, 150, 5);
    preview.begin();
    for (const int y : {20, 120}) {
        document.touched.fit(200, 150);
        document.edit().at(50, y).c[0] ^= 1;
        document.touched.mark(y, 50, 51);
        preview.restore();
    }
    const Rect shown = preview.takeRestored();
    EXPECT_TRUE(shown.contains(50, 20) && shown.contains(50, 120));
    EXPECT_TRUE(preview.takeRestored().isEmpty());
}

TEST_F(Preview, AnEngineWithAnotherDocumentsPictureIsGivenThisOne)
{
    open(200, 150, 3);
    const Bits before = document.bits();
    filter.setBits(randomBits(10, 10, 4));
    preview.restore();
    EXPECT_TRUE(sameBits(before, document.bits()));
    EXPECT_TRUE(sameBits(before, filter.bits()));
}

} // namespace
} // namespace velara
