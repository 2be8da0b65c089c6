#include "text/Layers.h"
#include <algorithm>

namespace velara {

namespace {

constexpr int kOverhang = 2; // slanted letters extend beyond their advance

Rect pictureOf(const Bits& canvas) { return {0, 0, canvas.width(), canvas.height()}; }

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
    grow(entry);
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

/// Only as many lines as the place can show, including a partly visible one.
void Layers::breakText(Entry& entry)
{
    const Layer& layer = entry.layer;
    entry.lineHeight = std::max(1, fonts_.measure(QStringLiteral(" "), layer.style).height);
    const int rows = layer.place.height() / entry.lineHeight + 1;
    entry.lines = breakLines(layer.text, layer.place.width(), layer.style.size, measureIn(layer.style), rows);
}

void Layers::grow(Entry& entry)
{
    const Layer& layer = entry.layer;
    Rect& place = entry.layer.place;
    const int lineHeight = std::max(1, fonts_.measure(QStringLiteral(" "), layer.style).height);
    const int across = entry.sized ? place.width() : std::max(place.width(), canvas_.width() - place.left);
    const int down = std::max(place.height(), canvas_.height() - place.top);
    const auto lines = breakLines(layer.text, across, layer.style.size, measureIn(layer.style), down / lineHeight + 1);
    int width = 0;
    for (const TextLine& line : lines) width = std::max(width, line.width + kOverhang);
    const int height = static_cast<int>(lines.size()) * lineHeight;
    place.right = place.left + std::max(place.width(), std::min(width, across));
    place.bottom = place.top + std::max(place.height(), std::min(height, down));
    entry.lines = lines;
    entry.lineHeight = lineHeight;
    print(entry);
}

Rect Layers::visible(int index) const { return layer(index).place.intersected(pictureOf(canvas_)); }

void Layers::print(Entry& entry)
{
    const Layer& layer = entry.layer;
    const Rect part = layer.place.intersected(pictureOf(canvas_));
    if (part.isEmpty()) {
        entry.surface = {};
        return;
    }
    if (entry.surface.width() != part.width() || entry.surface.height() != part.height())
        entry.surface = Bits(part.width(), part.height());
    for (int y = 0; y < part.height(); ++y)
        std::transform(canvas_.row(part.top + y) + part.left, canvas_.row(part.top + y) + part.right,
                       entry.surface.row(y), [](Pixel p) {
                           return Pixel{{p.c[0], p.c[1], p.c[2], 255}};
                       });
    for (std::size_t i = 0; i < entry.lines.size(); ++i) {
        const int top = layer.place.top - part.top + static_cast<int>(i) * entry.lineHeight;
        if (top + entry.lineHeight <= 0 || top >= part.height()) continue;
        const TextRun& run = entry.lines[i].run;
        const int rest = layer.place.width() - entry.lines[i].width;
        const int left = run.rightToLeft ? rest : 0; // each paragraph is aligned to its own side
        fonts_.draw(entry.surface, layer.place.left - part.left + left, top, run, layer.style, layer.colour);
    }
}

Rect Layers::caret(int index, qsizetype character) const
{
    const Entry& entry = layers_.at(index);
    const Layer& layer = entry.layer;
    const int right = layer.text.isRightToLeft() ? layer.place.width() - 1 : 0;
    Rect at{layer.place.left + right, layer.place.top, layer.place.left + right + 1,
            layer.place.top + entry.lineHeight};
    for (std::size_t i = 0; i < entry.lines.size(); ++i) {
        const TextLine& line = entry.lines[i];
        if (line.start > character) break;
        const qsizetype end = i + 1 < entry.lines.size() ? entry.lines[i + 1].start : layer.text.size();
        TextRun run = line.run;
        run.text = layer.text.mid(line.start, end - line.start); // with trailing blanks
        while (run.text.endsWith(u'\n') || run.text.endsWith(u'\r')) run.text.chop(1);
        const int width = fonts_.measure(run.text, layer.style).width;
        const int left = run.rightToLeft ? layer.place.width() - width : 0;
        const auto inRun = static_cast<int>(std::min(character - line.start, run.text.size()));
        at.left = layer.place.left + left + fonts_.caret(run, layer.style, inRun);
        at.top = layer.place.top + static_cast<int>(i) * entry.lineHeight;
    }
    return {at.left, at.top, at.left + 1, at.top + entry.lineHeight};
}

Bits Layers::Blend() const
{
    Bits out = canvas_;
    for (const auto& [index, entry] : layers_) {
        if (!entry.layer.shown || entry.surface.isNull()) continue;
        const Rect part = visible(index);
        for (int y = 0; y < part.height(); ++y) {
            const Pixel* from = entry.surface.row(y);
            Pixel* to = out.row(part.top + y) + part.left;
            for (int x = 0; x < part.width(); ++x) std::copy_n(from[x].c, 3, to[x].c); // fourth bytes are kept
        }
    }
    return out;
}

} // namespace velara
