// JPEGs that several threads decode in parts, against what one decoder makes of them.
#include "fileio/decode/libraries/jpeg/JpegTogether.h"
#include "withHelpers.h"
#include <QString>
#include <array>
#include <cstdlib>
#include <optional>
#include <random>
#include <string>

namespace velara::decode {

namespace {

struct Kind {
    const char* name;
    J_COLOR_SPACE pixels, stored;
    int across, down; // of the first and fourth colour
    unsigned width, height, interval;
    bool isTogether;
    void (*change)(jpeg_compress_struct& info) = [](jpeg_compress_struct&) {};
};

constexpr std::array<jpeg_scan_info, 3> kScans{
    {{1, {0, 0, 0, 0}, 0, 63, 0, 0}, {1, {1, 0, 0, 0}, 0, 63, 0, 0}, {1, {2, 0, 0, 0}, 0, 63, 0, 0}}};
void inThreeScans(jpeg_compress_struct& info)
{
    info.scan_info = kScans.data();
    info.num_scans = 3;
}
void progressive(jpeg_compress_struct& info) { jpeg_simple_progression(&info); }

// clang-format off
constexpr Kind kKinds[] = {
    {"4:4:4",                JCS_RGB,       JCS_YCbCr,     1, 1, 301, 2000, 38,  true},
    {"4:4:4 of two rows",    JCS_RGB,       JCS_YCbCr,     1, 1, 301, 1997, 76,  true},
    {"4:2:2",                JCS_RGB,       JCS_YCbCr,     2, 1, 320, 2003, 5,   true},
    {"4:2:0",                JCS_RGB,       JCS_YCbCr,     2, 2, 333, 2001, 21,  true},
    {"4:2:0 of three rows",  JCS_RGB,       JCS_YCbCr,     2, 2, 320, 2990, 60,  true},
    {"4:4:0",                JCS_RGB,       JCS_YCbCr,     1, 2, 299, 2000, 19,  true},
    {"4:1:1",                JCS_RGB,       JCS_YCbCr,     4, 1, 299, 2000, 10,  true},
    {"grey",                 JCS_GRAYSCALE, JCS_GRAYSCALE, 1, 1, 299, 2000, 38,  true},
    {"inks",                 JCS_CMYK,      JCS_CMYK,      1, 1, 299, 1500, 19,  true},
    {"YCCK 4:2:0",           JCS_CMYK,      JCS_YCCK,      2, 2, 299, 1500, 19,  true},
    {"across the rows",      JCS_RGB,       JCS_YCbCr,     2, 2, 320, 2000, 30,  false},
    {"low",                  JCS_RGB,       JCS_YCbCr,     2, 2, 320, 200,  20,  false},
    {"three scans",          JCS_RGB,       JCS_YCbCr,     2, 2, 320, 2000, 20,  false, inThreeScans},
    {"progressive",          JCS_RGB,       JCS_YCbCr,     2, 2, 320, 2000, 20,  false, progressive},
};
// clang-format on

std::string written(const Kind& kind)
{
    jpeg_compress_struct info{};
    jpeg_error_mgr errors{};
    info.err = jpeg_std_error(&errors);
    jpeg_create_compress(&info);
    unsigned char* bytes = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&info, &bytes, &size);
    info.image_width = kind.width;
    info.image_height = kind.height;
    info.in_color_space = kind.pixels;
    info.input_components = kind.pixels == JCS_GRAYSCALE ? 1 : kind.pixels == JCS_CMYK ? 4 : 3;
    jpeg_set_defaults(&info);
    jpeg_set_colorspace(&info, kind.stored);
    for (int i = 0; i < info.num_components; i += 3) {
        info.comp_info[i].h_samp_factor = kind.across;
        info.comp_info[i].v_samp_factor = kind.down;
    }
    info.restart_interval = kind.interval;
    kind.change(info);
    jpeg_start_compress(&info, TRUE);
    jpeg_write_marker(&info, JPEG_APP0 + 1, std::array<JOCTET, 40>{}.data(), 40);
    std::mt19937 random(kind.width);
    std::vector<JSAMPLE> line(std::size_t{kind.width} * static_cast<unsigned>(info.input_components));
    for (unsigned y = 0; y < kind.height; ++y) {
        for (JSAMPLE& sample : line) sample = static_cast<JSAMPLE>(y / 3 + random() % 60);
        JSAMPROW row = line.data();
        jpeg_write_scanlines(&info, &row, 1);
    }
    jpeg_finish_compress(&info);
    jpeg_destroy_compress(&info);
    std::string file(reinterpret_cast<char*>(bytes), size);
    std::free(bytes);
    return file;
}

/// What becomes of a file: its rows up to a fault, and what is said of it.
struct Outcome {
    std::vector<std::uint8_t> rows{};
    std::string words{};
    bool isCutOff = false, isCut = false;
};

/// Some are passed over.
template <class Rows> void readAll(Rows& rows, unsigned width, unsigned height, Outcome& to)
{
    std::vector<Pixel> row(width);
    for (unsigned y = 0; y < height; ++y) {
        if (y % 17 == 3) {
            rows.skip();
            continue;
        }
        rows.read(row.data());
        const auto* bytes = reinterpret_cast<const std::uint8_t*>(row.data());
        to.rows.insert(to.rows.end(), bytes, bytes + row.size() * sizeof row[0]);
    }
}

Outcome outcomeOf(const std::string& file, bool isTogether)
{
    Outcome all;
    const Span bytes(reinterpret_cast<const std::uint8_t*>(file.data()), file.size());
    const auto isCutOff = std::make_shared<bool>(false);
    try {
        auto rows = std::make_unique<JpegRows>(JpegBytes{bytes}, isCutOff);
        const auto parts = std::make_shared<const JpegParts>(bytes, *rows, 0);
        const unsigned width = rows->info().image_width, height = rows->info().image_height;
        all.isCut = parts->count() > 0;
        rows->start();
        if (!isTogether || !all.isCut) {
            readAll(*rows, width, height, all);
        } else {
            JpegTogether together(parts, std::move(rows));
            readAll(together, width, height, all);
        }
    } catch (const Damage& damage) {
        all.words = damage.what();
    }
    all.isCutOff = *isCutOff;
    return all;
}

struct Trial {
    std::string name, file;
    std::optional<bool> isCut;
};

/// As it is, with a part in the middle left out or overwritten, with marks that are missing or follow in another order,
/// and with some bits changed.
void addTrials(std::vector<Trial>& trials, const Kind& kind)
{
    const std::string file = written(kind);
    const auto add = [&](const std::string& what, std::optional<bool> isCut = {}) -> std::string& {
        if (isCut) isCut = *isCut && kind.isTogether;
        return trials.emplace_back(kind.name + what, file, isCut).file;
    };
    const std::size_t middle = file.size() / 2, mark = file.find("\xff\xd3", middle), scan = file.find("\xff\xda");
    add("", true);
    add(", overwritten").replace(middle, 40, 40, '\x11');
    add(", with more", true).insert(mark, "\x22\x33\x44");
    add(", without a mark", false).replace(mark, 2, "ab");
    add(", with a wrong mark", false)[mark + 1] = '\xd4';
    add(", without its end", false).resize(file.size() * 2 / 3);
    for (std::uint32_t seed = 0; seed < 5; ++seed) {
        std::mt19937 random(seed);
        std::string& damaged = add(", damaged by seed " + std::to_string(seed));
        damaged[scan + 20 + random() % (file.size() - scan - 22)] ^= '\x0c';
    }
}

} // namespace

// A picture that is large enough.
TEST(JpegTogether, TheReaderCutsIt)
{
    const std::string file =
        written({"large", JCS_RGB, JCS_YCbCr, 2, 2, 2999, JpegParts::kLeastPixels / 2990, 188, true});
    const Outcome alone = outcomeOf(file, false);
    const FileBytes bytes(std::vector<std::uint8_t>(file.begin(), file.end()));
    withHelpers([&] {
        EXPECT_TRUE(jpegPartsOf(bytes.bytes(), JpegRows({bytes.bytes()}, std::make_shared<bool>())));
        const Decoded picture = decodePicture(FileBytes(bytes), "jpg");
        struct {
            const Decoded& picture;
            int y = 0;
            void skip() { ++y; }
            void read(Pixel* row) { picture.row(y++, row); }
        } rows{picture};
        Outcome read;
        readAll(rows, 2999, static_cast<unsigned>(picture.height), read);
        EXPECT_TRUE(read.rows == alone.rows);
    });
}

TEST(JpegTogether, PartsMakeWhatTheWholeMakes)
{
    std::vector<Trial> trials;
    for (const Kind& kind : kKinds) addTrials(trials, kind);
    withHelpers([&] {
        for (const Trial& trial : trials) {
            const Outcome alone = outcomeOf(trial.file, false), together = outcomeOf(trial.file, true);
            EXPECT_EQ(together.isCut, trial.isCut.value_or(together.isCut)) << trial.name;
            EXPECT_EQ(together.words, alone.words) << trial.name;
            EXPECT_EQ(together.isCutOff, alone.isCutOff) << trial.name;
            EXPECT_TRUE(together.rows == alone.rows) << trial.name;
        }
    });
}

} // namespace velara::decode
