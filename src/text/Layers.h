// Layers: texts that lie over a picture until they are merged into it. Each is drawn on a surface of its own, over the
// picture's present pixels; where two overlap, the later one shows the picture below and not the other layer.
#pragma once
#include "region/Region.h"
#include "text/mText.h"
#include <map>

namespace velara {

struct Layer {
    QString text; // "\r\n" forces a line break
    TextStyle style;
    Colour colour = 0;
    Rect place; // picture pixels; may extend beyond the picture
    bool shown = true;
    friend bool operator==(const Layer&, const Layer&) = default;
};

class Layers {
  public:
    /// Indices begin at 2 and are never reused; that of a template is 1.
    static constexpr int kFirst = 2;
    /// Pixels; the size of a new layer, and its minimum.
    static constexpr int kWidth = 133, kHeight = 20, kLeastSide = 4;

    explicit Layers(Fonts& fonts) : fonts_(fonts) {}

    /// Sets the picture below; redraws all layers.
    void setCanvas(const Bits& canvas);
    const Bits& canvas() const { return canvas_; }

    /// Adds a layer without text at this place; returns its index.
    int add(int left, int top, const TextStyle& style, Colour colour);
    void remove(int index) { layers_.erase(index); }
    std::vector<int> indices() const;
    bool has(int index) const { return layers_.contains(index); }
    /// Whether any has text, shown or hidden.
    bool hasText() const;
    const Layer& layer(int index) const { return layers_.at(index).layer; }

    // Each redraws the layer. Text and style enlarge the place if necessary, up to the picture's edge; once its width
    // has been set it is fixed, and text wraps at it.
    void setText(int index, const QString& text);
    void setStyle(int index, const TextStyle& style, Colour colour);
    void setShown(int index, bool shown);
    /// Sides below kLeastSide are enlarged to it.
    void setPlace(int index, const Rect& place);

    /// The place that a text needs, wrapped at this width, and no more lines of it than the canvas is high; 0, 0
    /// without text.
    RunSize extentOf(const QString& text, const TextStyle& style, int width) const;

    /// What the layer shows, and that part's rectangle in the picture; empty when its place lies outside. Fourth bytes
    /// are 255 within its place and where ink extends beyond it, otherwise all four are 0.
    const Bits& surface(int index) const { return layers_.at(index).surface; }
    Rect visible(int index) const { return layers_.at(index).visible; }

    // Places in the text, as its lines show them. Characters count from 0 to the text's length.
    /// The caret before this character: its rectangle in the picture.
    Rect caret(int index, qsizetype character) const;
    /// The character before which a click on this pixel of the picture puts the caret.
    qsizetype characterAt(int index, int x, int y) const;
    /// The caret's next place to the right or left as a reader sees it; over the ends of lines, in reading order.
    qsizetype beside(int index, qsizetype character, bool right) const;
    /// First and last place of the caret on its line.
    std::pair<qsizetype, qsizetype> lineOf(int index, qsizetype character) const;
    /// The rectangles in the picture that mark the characters from..to-1.
    std::vector<Rect> spans(int index, qsizetype from, qsizetype to) const;

    /// All layers without their drawings, to come back to; indices stay.
    struct Kept {
        Layer layer;
        bool sized = false;
        friend bool operator==(const Kept&, const Kept&) = default;
    };
    using State = std::map<int, Kept>;
    State state() const;
    void restore(const State& state);

    /// The picture with all shown layers, later ones on top.
    Bits Blend() const;

  private:
    struct Entry {
        Layer layer;
        Bits surface;
        Rect visible;                // the surface's
        std::vector<TextLine> lines; // wrapped to the layer's width
        int lineHeight = 0;
        bool sized = false; // the user has set the width: text wraps at it
    };
    int lineHeightOf(const TextStyle& style) const;
    void breakText(Entry& entry);
    void grow(Entry& entry);
    void print(Entry& entry);
    MeasureRun measureIn(const TextStyle& style) const;
    std::size_t lineAt(const Entry& entry, qsizetype character) const;
    TextRun wholeRun(const Entry& entry, std::size_t line) const;
    int leftOf(const Entry& entry, const TextRun& run) const;

    Fonts& fonts_;
    Bits canvas_;
    std::map<int, Entry> layers_;
    int next_ = kFirst;
};

} // namespace velara
