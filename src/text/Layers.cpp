#include "text/Layers.h"
#include <algorithm>

namespace velara {

namespace {

constexpr int kOverhang = 2; // slanted letters extend beyond their advance

RunSize extentOfLines(const std::vector<TextLine>& lines, int lineHeight)
{
    int width = 0;
    for (const TextLine& line : lines) width = std::max(width, line.width + kOverhang);
    return {width, static_cast<int>(lines.size()) * lineHeight};
}

Rect pictureOf(const Bits& canvas) { return {0, 0, canvas.width(), canvas.height()}; }

/// The bounds of the pixels that belong to the layer, where part is what was drawn of the picture.
Rect covered(const Bits& drawn, const Rect& part)
{
    Rect all;
    for (int y = 0; y < drawn.height(); ++y) {
        const Pixel* row = drawn.row(y);
        int left = 0, right = drawn.width();
        while (left < right && row[left].c[3] == 0) ++left;
        while (left < right && row[right - 1].c[3] == 0) --right;
        if (left < right) all = all.united({part.left + left, part.top + y, part.left + right, part.top + y + 1});
    }
    return all;
}

} // namespace

void Layers::setCanvas(const Bits& canvas)
{
    canvas_ = canvas;
    for (auto& [index, entry] : layers_) print(entry);
}

int Layers::add(int left, int top, const TextStyle& style, Colour colour)
{
    const int index = next_++;
    Entry& entry = layers_[index];
    entry.layer = {{}, style, colour, {left, top, left + kWidth, top + kHeight}, true};
    breakText(entry);
    print(entry);
    return index;
}

std::vector<int> Layers::indices() const
{
    std::vector<int> all;
    for (const auto& [index, entry] : layers_) all.push_back(index);
    return all;
}

bool Layers::hasText() const
{
    return std::ranges::any_of(layers_, [](const auto& each) { return !each.second.layer.text.isEmpty(); });
}

void Layers::setText(int index, const QString& text)
{
    Entry& entry = layers_.at(index);
    entry.layer.text = text;
    grow(entry);
}

void Layers::setStyle(int index, const TextStyle& style, Colour colour)
{
    Entry& entry = layers_.at(index);
    entry.layer.style = style;
    entry.layer.colour = colour;
    grow(entry);
}

void Layers::setShown(int index, bool shown)
{
    Entry& entry = layers_.at(index);
    entry.layer.shown = shown;
    print(entry);
}

void Layers::setPlace(int index, const Rect& place)
{
    Entry& entry = layers_.at(index);
    Rect& held = entry.layer.place;
    const int width = std::max(place.width(), kLeastSide), height = std::max(place.height(), kLeastSide);
    const bool resized = width != held.width() || height != held.height();
    entry.sized |= width != held.width();
    held = {place.left, place.top, place.left + width, place.top + height};
    if (resized) breakText(entry);
    print(entry);
}

MeasureRun Layers::measureIn(const TextStyle& style) const
{
    return [this, style](const QString& run, int) { return fonts_.measure(run, style); };
}

int Layers::lineHeightOf(const TextStyle& style) const
{
    return std::max(1, fonts_.measure(QStringLiteral(" "), style).height);
}

RunSize Layers::extentOf(const QString& text, const TextStyle& style, int width) const
{
    if (text.isEmpty()) return {};
    const int lineHeight = lineHeightOf(style);
    const auto lines = breakLines(text, width, style.size, measureIn(style), canvas_.height() / lineHeight + 1);
    return extentOfLines(lines, lineHeight);
}

/// Only as many lines as the place can show, including a partly visible one.
void Layers::breakText(Entry& entry)
{
    const Layer& layer = entry.layer;
    entry.lineHeight = lineHeightOf(layer.style);
    const int rows = layer.place.height() / entry.lineHeight + 1;
    entry.lines = breakLines(layer.text, layer.place.width(), layer.style.size, measureIn(layer.style), rows);
}

void Layers::grow(Entry& entry)
{
    const Layer& layer = entry.layer;
    Rect& place = entry.layer.place;
    const int lineHeight = lineHeightOf(layer.style);
    const int across = entry.sized ? place.width() : std::max(place.width(), canvas_.width() - place.left);
    const int down = std::max(place.height(), canvas_.height() - place.top);
    const auto lines = breakLines(layer.text, across, layer.style.size, measureIn(layer.style), down / lineHeight + 1);
    const RunSize needed = layer.text.isEmpty() ? RunSize() : extentOfLines(lines, lineHeight);
    place.right = place.left + std::max(place.width(), std::min(needed.width, across));
    place.bottom = place.top + std::max(place.height(), std::min(needed.height, down));
    entry.lines = lines;
    entry.lineHeight = lineHeight;
    print(entry);
}

void Layers::print(Entry& entry)
{
    const Rect &place = entry.layer.place, outline = place.intersected(pictureOf(canvas_));
    entry.visible = {};
    entry.surface = {};
    if (outline.isEmpty()) return;
    // Accents and slanted letters extend beyond their line, by less than its height.
    const int room = entry.lineHeight;
    const Rect part = Rect{place.left - room, place.top - room, place.right + room, place.bottom + room}.intersected(
        pictureOf(canvas_));
    Bits drawn(part.width(), part.height());
    for (int y = 0; y < part.height(); ++y) {
        const Pixel* from = canvas_.row(part.top + y) + part.left;
        const bool within = y >= outline.top - part.top && y < outline.bottom - part.top;
        const int x0 = within ? outline.left - part.left : part.width(), x1 = within ? outline.right - part.left : x0;
        const auto take = [&](int begin, int end, std::uint8_t fourth) {
            std::transform(from + begin, from + end, drawn.row(y) + begin, [=](Pixel p) {
                return Pixel{{p.c[0], p.c[1], p.c[2], fourth}};
            });
        };
        take(0, x0, 0);
        take(x0, x1, 255);
        take(x1, part.width(), 0);
    }
    for (std::size_t i = 0; i < entry.lines.size(); ++i) {
        const int top = place.top + static_cast<int>(i) * entry.lineHeight;
        if (top >= place.bottom) break;
        fonts_.draw(drawn, place.left - part.left + leftOf(entry, entry.lines[i].run), top - part.top,
                    entry.lines[i].run, entry.layer.style, entry.layer.colour);
    }
    entry.visible = covered(drawn, part).united(outline);
    entry.surface = Bits(entry.visible.width(), entry.visible.height());
    for (int y = 0; y < entry.surface.height(); ++y) {
        const Pixel* from = drawn.row(entry.visible.top - part.top + y) + entry.visible.left - part.left;
        std::transform(from, from + entry.surface.width(), entry.surface.row(y), [](Pixel p) {
            return p.c[3] ? Pixel{{p.c[0], p.c[1], p.c[2], 255}} : Pixel{};
        });
    }
}

Layers::State Layers::state() const
{
    State state;
    for (const auto& [index, entry] : layers_) state[index] = {entry.layer, entry.sized};
    return state;
}

void Layers::restore(const State& state)
{
    std::erase_if(layers_, [&](const auto& each) { return !state.contains(each.first); });
    for (const auto& [index, kept] : state) {
        next_ = std::max(next_, index + 1);
        Entry& entry = layers_[index];
        if (!entry.lines.empty() && kept == Kept{entry.layer, entry.sized}) continue;
        entry.layer = kept.layer;
        entry.sized = kept.sized;
        breakText(entry);
        print(entry);
    }
}

/// Each paragraph is aligned to its own side.
int Layers::leftOf(const Entry& entry, const TextRun& run) const
{
    if (!run.rightToLeft) return 0;
    return entry.layer.place.width() - (run.text.isEmpty() ? 1 : fonts_.measure(run.text, entry.layer.style).width);
}

Bits Layers::Blend() const
{
    Bits out = canvas_;
    for (const auto& [index, entry] : layers_) {
        if (!entry.layer.shown || entry.surface.isNull()) continue;
        for (int y = 0; y < entry.surface.height(); ++y) {
            const Pixel* from = entry.surface.row(y);
            Pixel* to = out.row(entry.visible.top + y) + entry.visible.left;
            for (int x = 0; x < entry.surface.width(); ++x)
                if (from[x].c[3]) std::copy_n(from[x].c, 3, to[x].c); // the picture's fourth bytes are kept
        }
    }
    return out;
}

} // namespace velara
