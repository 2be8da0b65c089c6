// Sample files by format, read by the function that velara-decode runs. Skipped where the samples are not there.
#include "fileio/decode/decode.h"
#include <QFileInfo>
#include <gtest/gtest.h>

namespace velara::decode {

namespace {

struct Sample {
    const char* path;
    int width, height; // 0 by 0: refused
    bool cutOff = false;
};

// clang-format off
constexpr Sample kSamples[] = {
    {"bmp/hopper_v5.bmp", 128, 128}, {"bmp/pal8rle.bmp", 127, 64}, {"bmp/rgb24.bmp", 127, 64},
    {"cur/deerstalker.cur", 32, 32}, {"cur/hand.cur", 32, 32},
    {"cut/ramp.cut", 96, 64},
    {"dib/clipboard.dib", 296, 176}, {"dib/input.dib", 70, 46},
    {"emf/drawing.emf", 110, 110}, {"emf/test-009.emf", 55, 55}, {"emf/test-013.emf", 554, 664},
    {"gif/alpha_gif_a.gif", 256, 256}, {"gif/hopper.gif", 128, 128}, {"gif/interlaced.gif", 32, 32},
    {"ico/black_and_white.ico", 16, 16}, {"ico/multiple-sizes.ico", 16, 16}, {"ico/png-32bpp-alpha.ico", 32, 32},
    {"iff/gradient.iff", 320, 200}, {"iff/ham6.iff", 256, 256}, {"iff/small-24bit.iff", 10, 10},
    {"jng/input_idat.jng", 0, 0}, {"jng/input_rose.jng", 0, 0}, // .jng goes to the BMP reader
    {"jpg/hopper.jpg", 128, 128}, {"jpg/hopper_gray.jpg", 128, 128}, {"jpg/hopper_progressive.jpg", 128, 128},
    {"koa/blocks.koa", 320, 200},
    {"lbm/serenity.lbm", 640, 480},
    {"malformed/bomb.gif", 0, 0}, {"malformed/negative_size.ppm", 0, 0}, {"malformed/reallybig.bmp", 0, 0},
    {"malformed/jpg_exif.jpg", 320, 240, true}, // damaged metadata that must not crash, and truncated
    {"mng/input.mng", 48, 48},
    {"pbm/hopper_1bit.pbm", 128, 128}, {"pbm/hopper_1bit_plain.pbm", 128, 128},
    {"pcd/hopper.pcd", 768, 512},
    {"pcx/4plane1bpp.pcx", 10, 10}, {"pcx/input.pcx", 70, 46}, {"pcx/odd_stride.pcx", 371, 150},
    {"pgm/hopper_16bit.pgm", 128, 128}, {"pgm/hopper_8bit.pgm", 128, 128},
    {"png/basn6a16.png", 32, 32}, {"png/hopper.png", 128, 128}, {"png/tp1n3p08.png", 32, 32},
    {"ppm/hopper_8bit.ppm", 128, 128}, {"ppm/hopper_8bit_plain.ppm", 128, 128},
    {"psd/hopper.psd", 128, 128}, {"psd/input.psd", 70, 46}, {"psd/rgba.psd", 100, 100},
    {"ras/hopper.ras", 128, 128}, {"ras/hopper_pal8.ras", 128, 128}, {"ras/hopper_rle24.ras", 480, 128},
    {"tga/ccm8.tga", 128, 128}, {"tga/ctc24.tga", 128, 128}, {"tga/utc32.tga", 128, 128},
    {"tif/hopper_g4.tif", 128, 128}, {"tif/hopper_gray_4bpp.tif", 128, 128}, {"tif/hopper_lzw.tif", 128, 128},
    {"wbmp/input.wbmp", 70, 46},
    {"wmf/drawing.wmf", 109, 109}, {"wmf/formula1.wmf", 222, 41}, {"wmf/fulltest.wmf", 1056, 816},
};
// clang-format on

Decoded decodeSample(const QString& name)
{
    const QString path = QString(VELARA_CORPUS "/") + name;
    return decodePicture(FileBytes(path), QFileInfo(path).suffix().toLower());
}

std::vector<Pixel> pixelsOf(const Decoded& picture)
{
    std::vector<Pixel> pixels(static_cast<std::size_t>(picture.width * picture.height));
    for (int y = 0; y < picture.height; ++y) picture.row(y, pixels.data() + y * picture.width);
    return pixels;
}

bool haveSamples() { return QFileInfo::exists(VELARA_CORPUS "/README.md"); }

} // namespace

TEST(Corpus, EveryFileHasItsSizeOrAReason)
{
    if (!haveSamples()) GTEST_SKIP();
    for (const Sample& sample : kSamples) {
        const Decoded picture = decodeSample(sample.path);
        EXPECT_EQ(picture.width, sample.width) << sample.path << ": " << picture.reason.toStdString();
        EXPECT_EQ(picture.height, sample.height) << sample.path;
        EXPECT_EQ(picture.reason.isEmpty(), sample.width > 0 && !sample.cutOff)
            << sample.path << ": " << picture.reason.toStdString();
        if (picture.ok()) pixelsOf(picture);
    }
}

// The same portrait in lossless formats: errors of a reader or a mend show as differences.
TEST(Corpus, LosslessCopiesOfAPictureAreEqual)
{
    if (!haveSamples()) GTEST_SKIP();
    const std::vector<Pixel> wanted = pixelsOf(decodeSample("png/hopper.png"));
    for (const char* name : {"bmp/hopper_v5.bmp", "ppm/hopper_8bit.ppm", "ppm/hopper_8bit_plain.ppm", "ras/hopper.ras",
                             "tif/hopper_lzw.tif"})
        EXPECT_TRUE(pixelsOf(decodeSample(name)) == wanted) << name;
    const auto equal = [](const char* a, const char* b) {
        return pixelsOf(decodeSample(a)) == pixelsOf(decodeSample(b));
    };
    EXPECT_TRUE(equal("pbm/hopper_1bit_plain.pbm", "pbm/hopper_1bit.pbm"));
    EXPECT_TRUE(equal("pgm/hopper_16bit.pgm", "pgm/hopper_8bit.pgm"));
}

} // namespace velara::decode
