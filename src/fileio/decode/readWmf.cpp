#include "fileio/decode/readers.h"
#include "fileio/load/DecodeProtocol.h"
#include <cmath>
#include <libwmf/api.h>
#include <libwmf/gd.h>
#include <memory>
#include <utility>

namespace velara::decode {

namespace {

constexpr double kDotsAnInch = 96;
constexpr double kTwipsAnInch = 1440;

/// The window set by the records before the first drawing, in the file's own units; 0 by 0 when there is none.
struct Window {
    double width = 0, height = 0;
    bool isPlaceable = false; // the header gives a size in inches
};

Window windowOf(const FileBytes& file)
{
    constexpr std::size_t kPlaceableHeader = 22, kHeader = 18;
    constexpr std::uint32_t kWindowExtent = 0x20c;
    const auto number = [&](std::size_t at) { return std::abs(int{static_cast<std::int16_t>(file.little16(at))}); };
    Window window;
    window.isPlaceable = file.little32(0) == 0x9ac6cdd7;
    for (std::size_t at = kHeader + (window.isPlaceable ? kPlaceableHeader : 0); at + 10 <= file.size();) {
        const std::size_t words = file.little32(at);
        if (file.little16(at + 4) == kWindowExtent) { // height first
            window.height = number(at + 6);
            window.width = number(at + 8);
            break;
        }
        if (words < 3) break;
        at += 2 * words;
    }
    return window;
}

/// libwmf maps the window to 1024 by 1024, and its scan finds the drawing's extent. A drawing inside its window keeps
/// its position there; one that exceeds it is shown whole.
bool isInsideWindow(const wmfD_Rect& drawn)
{
    constexpr float kSide = 1024, kPen = 1;
    return drawn.TL.x >= -kPen && drawn.TL.y >= -kPen && drawn.BR.x <= kSide + kPen && drawn.BR.y <= kSide + kPen;
}

/// Pixels of a window without a size in inches: one per unit, or as twips if that is more than a screen.
double pixelsOf(double units) { return units <= 2048 ? units : units * kDotsAnInch / kTwipsAnInch; }

struct Player {
    Player()
    {
        wmfAPI_Options options{};
        options.function = wmf_gd_function;
        if (wmf_api_create(&api, WMF_OPT_FUNCTION | WMF_OPT_IGNORE_NONFATAL | WMF_OPT_NO_DEBUG | WMF_OPT_NO_ERROR,
                           &options) != wmf_E_None)
            api = nullptr;
    }
    ~Player()
    {
        if (api) wmf_api_destroy(api);
    }
    Player(const Player&) = delete;
    Player& operator=(const Player&) = delete;

    wmfAPI* api = nullptr;
};

std::shared_ptr<Player> prepared; // with its font lists, which are inaccessible inside the cage

} // namespace

Needs prepareWmf()
{
    prepared = std::make_shared<Player>();
    return Needs::Fonts;
}

Decoded readWmf(FileBytes& file)
{
    const auto player = prepared ? std::exchange(prepared, nullptr) : std::make_shared<Player>();
    wmfAPI* const api = player->api;
    if (!api) return refused("the fonts that metafiles are drawn with are missing");
    wmfD_Rect box{};
    if (wmf_mem_open(api, file.bytes().data(), static_cast<long>(file.size())) != wmf_E_None ||
        wmf_scan(api, 0, &box) != wmf_E_None)
        return {};

    unsigned width = 0, height = 0;
    wmf_display_size(api, &width, &height, kDotsAnInch, kDotsAnInch);
    const Window window = windowOf(file);
    if (window.width > 0 && window.height > 0 && isInsideWindow(box)) {
        box = {{0, 0}, {1024, 1024}};
        if (!window.isPlaceable) {
            width = static_cast<unsigned>(std::lround(pixelsOf(window.width)));
            height = static_cast<unsigned>(std::lround(pixelsOf(window.height)));
        }
    }
    if (width == 0 || height == 0) return {};
    if (!Bits::sizeAllowed(width, height)) return refused(kTooBig);
    sizeFound(width, height, 0);

    wmf_gd_t* const canvas = WMF_GD_GetData(api);
    canvas->type = wmf_gd_image;
    canvas->flags |= WMF_GD_OUTPUT_MEMORY | WMF_GD_OWN_BUFFER;
    canvas->bbox = box;
    canvas->width = width;
    canvas->height = height;
    if (wmf_play(api, 0, &box) != wmf_E_None || !canvas->gd_image) return {};
    const int* const pixels = wmf_gd_image_pixels(canvas->gd_image);
    if (!pixels) return {};
    const int columns = static_cast<int>(width);
    return {columns,
            static_cast<int>(height),
            [player, pixels, columns](int y, Pixel* row) { // 0x00RRGGBB
                for (int x = 0; x < columns; ++x) {
                    const int colour = pixels[static_cast<std::ptrdiff_t>(y) * columns + x];
                    row[x] = {{static_cast<std::uint8_t>(colour), static_cast<std::uint8_t>(colour >> 8),
                               static_cast<std::uint8_t>(colour >> 16), 0}};
                }
            },
            {}};
}

} // namespace velara::decode
