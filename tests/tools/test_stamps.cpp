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
    EXPECT_EQ(stampPath(platform, files[1]), folder.filePath("Stamps/b.bmp"));
}

} // namespace
} // namespace velara
