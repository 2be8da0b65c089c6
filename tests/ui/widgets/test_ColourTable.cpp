// Pictures in a screen's colours: the table that velara-decode makes of a profile, and what it makes of pixels.
#include "fileio/load/Descriptor.h"
#include "fileio/load/PictureLoader.h"
#include "support/pictures.h"
#include "support/places.h"
#include "ui/widgets/ColourTable.h"
#include "ui/widgets/viewRender.h"
#include <QColorSpace>
#include <QColorTransform>
#include <sys/mman.h>

namespace velara {
namespace {

LoadedPicture tableOf(const QByteArray& profile)
{
    const Descriptor file(memfd_create("profile", MFD_CLOEXEC));
    EXPECT_EQ(write(file.get(), profile.constData(), std::size_t(profile.size())), profile.size());
    return loadColourTable(file, builtPath("velara-decode"));
}

} // namespace

// By Qt's own conversion: a screen of wide colours, one whose gamma is 1.8, and one that shows red as blue.
TEST(ColourTable, ShowsWhatTheScreensProfileAsksFor)
{
    const QPointF red(0.64, 0.33), green(0.30, 0.60), blue(0.15, 0.06), white(0.3127, 0.3290);
    const QColorSpace spaces[] = {QColorSpace(QColorSpace::DisplayP3),
                                  QColorSpace(white, red, green, blue, QColorSpace::TransferFunction::Gamma, 1.8F),
                                  QColorSpace(white, blue, green, red, QColorSpace::TransferFunction::SRgb)};
    const Bits bits = randomBits(120, 90, 7);
    for (const QColorSpace& space : spaces) {
        const LoadedPicture made = tableOf(space.iccProfile());
        const auto table = ColourTable::of(made.bits);
        ASSERT_TRUE(table) << made.reason.toStdString();
        QImage shown(120, 90, QImage::Format_RGB32);
        ViewRenderer().render(bits, {}, 0, 0, shown);
        const QImage before = shown.copy();
        table->convert(shown);
        const QColorTransform wanted = QColorSpace(QColorSpace::SRgb).transformationToColorSpace(space);
        for (int y = 0; y < 90; ++y)
            for (int x = 0; x < 120; ++x) {
                const QRgb is = shown.pixel(x, y), should = wanted.map(before.pixel(x, y));
                // Lines instead of curves: darker colours have the larger errors.
                ASSERT_NEAR(qRed(is), qRed(should), 6) << x << ' ' << y;
                ASSERT_NEAR(qGreen(is), qGreen(should), 6) << x << ' ' << y;
                ASSERT_NEAR(qBlue(is), qBlue(should), 6) << x << ' ' << y;
                ASSERT_EQ(qAlpha(is), 255);
            }
    }
}

TEST(ColourTable, IsExactWhereItHasNothingToDo)
{
    const auto even = [](int i) { return i * 65535 / 32; };
    const Bits itself = drawnBits(33 * 33, 66, [&](int x, int y) {
        const int shift = y < 33 ? 8 : 0;
        const auto part = [&](int i) { return std::uint8_t(even(i) >> shift); };
        return Pixel{{part(x % 33), part(x / 33), part(y % 33), 0}};
    });
    const auto table = ColourTable::of(itself);
    ASSERT_TRUE(table);
    QImage all(4096, 64, QImage::Format_RGB32);
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 4096; ++x)
            all.setPixel(x, y, 0xff000000U | std::uint32_t((y * 4096 + x) * 0x9e3779b1U) >> 8);
    const QImage before = all.copy();
    table->convert(all);
    EXPECT_EQ(all, before);
    EXPECT_FALSE(ColourTable::of(flatBits(33, 33, 0, 0, 0)));
}

TEST(ColourTable, IsOnlyMadeOfAScreensProfile)
{
    const QByteArray profile = QColorSpace(QColorSpace::DisplayP3).iccProfile();
    QByteArray ofPrinter = profile;
    ofPrinter.replace(12, 4, "prtr");
    const std::pair<QByteArray, const char*> cases[] = {
        {QColorSpace(QColorSpace::SRgb).iccProfile(), "it is sRGB"},
        {ofPrinter, "it is no profile of a screen"},
        {profile.left(100), "it is no profile of a screen"},
        {"nothing", "it is no profile of a screen"},
    };
    for (const auto& [bytes, reason] : cases) {
        const LoadedPicture made = tableOf(bytes);
        EXPECT_FALSE(made.ok());
        EXPECT_TRUE(made.reason.endsWith(reason)) << made.reason.toStdString();
    }
}

} // namespace velara
