#include "support/RecordingPlatform.h"
#include "tools/stamps.h"
#include <QDir>
#include <QImage>
#include <gtest/gtest.h>

namespace velara {
namespace {

TEST(Stamps, AreTheBitmapsOfTheirFolder)
{
    RecordingPlatform platform;
    EXPECT_EQ(stampFiles(platform), std::nullopt);
    QDir folder(platform.programFolder());
    folder.mkdir("Stamps");
    QImage image(5, 4, QImage::Format_RGB32);
    image.fill(QColor(10, 20, 30));
    for (const char* name : {"b.bmp", "A.BMP", "c.png"}) image.save(folder.filePath(QString("Stamps/") + name));
    const QStringList files = stampFiles(platform).value();
    EXPECT_EQ(files, (QStringList{"A.BMP", "b.bmp"}));
    const Bits stamp = loadStamp(platform, files[1]);
    ASSERT_EQ(stamp.width(), 5);
    EXPECT_EQ(stamp.at(4, 3).c[0], 30);
    EXPECT_TRUE(loadStamp(platform, "none.bmp").isNull());
    EXPECT_TRUE(loadStamp(platform, "").isNull());
}

} // namespace
} // namespace velara
