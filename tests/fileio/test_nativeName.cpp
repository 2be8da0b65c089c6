// Names that are not UTF-8: kept through a QString, written, read, and shown by their codes.
#include "fileio/disk/nativeName.h"
#include "fileio/load/PictureLoader.h"
#include "fileio/savePicture.h"
#include "seams/printable.h"
#include "support/RecordingPlatform.h"
#include "support/files.h"
#include "support/pictures.h"
#include "support/places.h"
#include <QFile>
#include <unistd.h>

namespace velara {

struct NativeName : FolderTest {};

TEST_F(NativeName, BytesThatAreNoCharactersAreKept)
{
    for (const QByteArray bytes : {"plain.png", "\xc3\xa9.png", "\xf0\x9f\x98\x80", "b\xe9.png", "\xff\xfe\x80",
                                   "\xed\xa0\x80x", "\xe2\x82", "\xc3\xa9\xe9\xc3\xa9"})
        EXPECT_EQ(nativeName(nameFrom(bytes)), bytes) << bytes.toPercentEncoding().constData();
    EXPECT_EQ(printable(nameFrom("b\xe9.png")), "b\\xe9.png");
    EXPECT_EQ(printable(nameFrom("\xf0\x90\x82\x80")), QString::fromUtf8("\xf0\x90\x82\x80")); // a pair
}

TEST_F(NativeName, PicturesAreWrittenAndReadUnderThem)
{
    RecordingPlatform platform;
    const Bits picture = plain(randomBits(5, 4, 3));
    const QByteArray bytes = QFile::encodeName(folder.path()) + "/b\xe9.bmp";
    const QString name = nameFrom(bytes);
    ASSERT_EQ(savePicture(platform, picture, name, "bmp"), SaveResult::Written);
    EXPECT_EQ(access(bytes.constData(), F_OK), 0);
    EXPECT_EQ(sizeOfFile(name), 54 + 4 * 16);
    EXPECT_TRUE(sameBits(loadThroughDecoder(name, "bmp", builtPath("velara-decode")).bits, picture));
}

} // namespace velara
