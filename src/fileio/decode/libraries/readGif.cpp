// GIF by giflib. Of an animation one frame, drawn over those before it as a viewer shows them, transparent pixels on
// white.
#include "fileio/decode/libraries/Gif.h"
#include "fileio/decode/readers.h"
#include <algorithm>
#include <cstring>

namespace velara::decode {

namespace {

constexpr Pixel kWhite{{255, 255, 255, 0}}, kBlack{};

Pixel colourOf(const ColorMapObject* map, int index)
{
    if (!map || index >= map->ColorCount) return kWhite;
    const GifColorType& colour = map->Colors[index];
    return {{colour.Blue, colour.Green, colour.Red, 0}};
}

/// A frame on the canvas, with the colours of its indices.
struct Frame {
    Frame(const Gif& gif, int canvasWidth, int canvasHeight);

    GifImageDesc place;
    int right, bottom; // on the canvas, behind the last pixel
    int disposal;
    bool isTransparent;
    std::array<Pixel, 256> colours{};
    std::array<bool, 256> isShown{}; // false: transparent, or without a colour

    /// The rows, in the order of the file.
    std::vector<int> rows() const;
};

Frame::Frame(const Gif& gif, int canvasWidth, int canvasHeight)
    : place(gif.frame()), right(std::min(place.Left + place.Width, canvasWidth)),
      bottom(std::min(place.Top + place.Height, canvasHeight)), disposal(gif.control().DisposalMode),
      isTransparent(gif.control().TransparentColor != NO_TRANSPARENT_COLOR)
{
    const ColorMapObject* map = place.ColorMap ? place.ColorMap : gif.get().SColorMap;
    for (int i = 0; i < static_cast<int>(colours.size()); ++i) {
        const auto at = static_cast<std::size_t>(i);
        isShown[at] = i != gif.control().TransparentColor && map && i < map->ColorCount;
        colours[at] = isShown[at] ? colourOf(map, i) : kWhite;
    }
}

struct Pass {
    int first, step, height; // height: of what a row stands for until the later passes
};
constexpr Pass kPasses[] = {{0, 8, 8}, {4, 8, 4}, {2, 4, 2}, {1, 2, 1}};

std::vector<int> Frame::rows() const
{
    std::vector<int> order;
    order.reserve(static_cast<std::size_t>(place.Height));
    if (!place.Interlace)
        for (int y = 0; y < place.Height; ++y) order.push_back(y);
    else
        for (const Pass& pass : kPasses)
            for (int y = pass.first; y < place.Height; y += pass.step) order.push_back(y);
    return order;
}

/// The rows that a row of an interlaced frame stands for while those below it are missing.
int heightOf(int row)
{
    return std::ranges::find_if(kPasses, [&](const Pass& pass) { return row % pass.step == pass.first; })->height;
}

class Canvas {
  public:
    /// gif stands at its first frame.
    Canvas(const Gif& gif, int width, int height);
    /// Takes away what the frame before leaves, and draws the one at which gif stands. False where it is incomplete.
    bool draw(Gif& gif, const GifPlace& place);
    const Pixel* row(int y) const { return &pixels_[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_)]; }

  private:
    Pixel* row(int y) { return &pixels_[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_)]; }
    bool drawRows(Gif& gif, const Frame& frame);
    void drawPart(Gif& gif, const Frame& frame);
    void put(const Frame& frame, int y, std::span<const GifPixelType> indices);
    void repeat(const Frame& frame, int y);
    template <class Do> void eachRow(const Frame& frame, Do act);
    void dispose();

    int width_, height_;
    std::vector<Pixel> pixels_;
    std::optional<Frame> before_;
    std::vector<Pixel> saved_; // what that one covers, where it has to come back
    bool isFirst_ = true;      // its transparent pixels are white, those of others show what is below
};

/// What shows where the first frame has no pixels.
Pixel backdropOf(const Gif& gif, int width, int height)
{
    const GifImageDesc& first = gif.frame();
    const bool isWhole = first.Left == 0 && first.Top == 0 && first.Width >= width && first.Height >= height;
    if (gif.control().TransparentColor != NO_TRANSPARENT_COLOR) return kWhite;
    return isWhole || !gif.get().SColorMap ? kBlack : colourOf(gif.get().SColorMap, gif.get().SBackGroundColor);
}

Canvas::Canvas(const Gif& gif, int width, int height)
    : width_(width), height_(height),
      pixels_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), backdropOf(gif, width, height))
{
}

bool Canvas::draw(Gif& gif, const GifPlace& place)
{
    if (before_) dispose();
    const Frame frame(gif, width_, height_);
    saved_.clear();
    if (frame.disposal == DISPOSE_PREVIOUS)
        eachRow(frame, [&](Pixel* from, Pixel* to) { saved_.insert(saved_.end(), from, to); });
    const bool isWhole = drawRows(gif, frame);
    if (!isWhole) {
        gif.goTo(place.begin);
        if (gif.nextFrame()) drawPart(gif, frame);
    }
    gif.goTo(place.end);
    before_ = frame;
    if (isFirst_ && frame.disposal == DISPOSE_PREVIOUS) before_->disposal = DISPOSE_BACKGROUND; // there is nothing else
    isFirst_ = false;
    return isWhole;
}

bool Canvas::drawRows(Gif& gif, const Frame& frame)
{
    std::vector<GifPixelType> indices(static_cast<std::size_t>(frame.place.Width));
    return std::ranges::all_of(frame.rows(), [&](int y) {
        if (!gif.read(indices)) return false;
        put(frame, y, indices);
        return true;
    });
}

/// As far as there are pixels, which have to be asked for one by one.
void Canvas::drawPart(Gif& gif, const Frame& frame)
{
    std::vector<GifPixelType> indices(static_cast<std::size_t>(frame.place.Width));
    for (const int y : frame.rows()) {
        std::size_t x = 0;
        while (x < indices.size() && gif.read({&indices[x], 1})) ++x;
        put(frame, y, {indices.data(), x});
        if (x < indices.size()) return;
        if (frame.place.Interlace && !frame.isTransparent) repeat(frame, y);
    }
}

void Canvas::put(const Frame& frame, int y, std::span<const GifPixelType> indices)
{
    if (frame.place.Top + y >= frame.bottom) return;
    Pixel* to = row(frame.place.Top + y) + frame.place.Left;
    const auto count = static_cast<std::size_t>(std::max(0, frame.right - frame.place.Left));
    for (const GifPixelType index : indices.first(std::min(indices.size(), count))) {
        if (isFirst_ || frame.isShown[index]) *to = frame.colours[index];
        ++to;
    }
}

void Canvas::repeat(const Frame& frame, int y)
{
    const int top = frame.place.Top + y;
    for (int to = top + 1; to < std::min(top + heightOf(y), frame.bottom); ++to)
        std::copy(row(top) + frame.place.Left, row(top) + std::max(frame.right, frame.place.Left),
                  row(to) + frame.place.Left);
}

/// Calls act(begin, end) for each row of the frame on the canvas.
template <class Do> void Canvas::eachRow(const Frame& frame, Do act)
{
    for (int y = frame.place.Top; y < frame.bottom && frame.place.Left < frame.right; ++y)
        act(row(y) + frame.place.Left, row(y) + frame.right);
}

void Canvas::dispose()
{
    const Frame& frame = *before_;
    const Pixel* from = saved_.data();
    if (frame.disposal == DISPOSE_BACKGROUND)
        eachRow(frame, [&](Pixel* begin, Pixel* end) { std::fill(begin, end, kWhite); });
    if (frame.disposal == DISPOSE_PREVIOUS)
        eachRow(frame, [&](Pixel* begin, Pixel* end) {
            std::copy_n(from, end - begin, begin);
            from += end - begin;
        });
}

/// The side of the canvas. One out of all proportion to the first frame is not believed, which many writers need.
int sideOf(int screen, int frameAt, int frame)
{
    const bool isBelieved = screen > 0 && screen / 10 <= std::max(frame, 200);
    return isBelieved ? screen : frameAt + frame;
}

} // namespace

Decoded readGif(FileBytes& file)
try {
    const GifPlaces places(file);
    const int count = static_cast<int>(places.frames.size());
    if (wantedPage >= count) return count == 0 ? Decoded{} : noSuchPage(count);
    Gif gif(file);
    if (!gif.nextFrame()) return {};
    const int width = sideOf(gif.get().SWidth, gif.frame().Left, gif.frame().Width);
    const int height = sideOf(gif.get().SHeight, gif.frame().Top, gif.frame().Height);
    if (width < 1 || height < 1) return {};
    if (!Bits::sizeAllowed(width, height)) return refused(kTooBig);
    sizeFound(width, height, 8);

    const auto canvas = std::make_shared<Canvas>(gif, width, height);
    bool isWhole = canvas->draw(gif, places.frames[0]);
    for (int i = 1; i <= wantedPage; ++i) {
        if (!gif.nextFrame()) return {};
        isWhole = canvas->draw(gif, places.frames[static_cast<std::size_t>(i)]);
    }
    Decoded picture{width, height, {}, {}};
    picture.row = [canvas, width](int y, Pixel* to) { std::copy_n(std::as_const(*canvas).row(y), width, to); };
    if (wantedPage == count - 1 && places.isCutOff)
        picture.reason = kCutOff;
    else if (!isWhole)
        picture.reason = "it is damaged: some of its pixels are missing";
    picture.carried.comment = gif.comment();
    picture.carried.pages = count;
    return picture;
} catch (const Damage&) {
    return {};
}

} // namespace velara::decode
