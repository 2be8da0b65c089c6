// Layers: texts that lie over a picture until they are merged into it. Each is printed on a surface of its own, on the
// pixels that the picture has below it at that moment; where two overlap, the later one shows those and not the other.
#pragma once
#include "region/Region.h"
#include "text/mText.h"
#include <map>

namespace velara {

struct Layer {
    QString text; // lines are forced by "\r\n"
    TextStyle style;
    Colour colour = 0;
    Rect place; // picture pixels; may reach out of the picture
    bool shown = true;
};

class Layers {
  public:
    /// Indices begin at 2, and none is given twice; that of a template is 1.
    static constexpr int kFirst = 2;
    /// Pixels; those of a new layer.
    static constexpr int kWidth = 133, kHeight = 20, kLeastSide = 4;

    explicit Layers(Fonts& fonts) : fonts_(fonts) {}

    /// The picture below; all layers are printed anew on it.
    void setCanvas(const Bits& canvas);
    const Bits& canvas() const { return canvas_; }

    /// A layer without text at this place; its index.
    int add(int left, int top, const TextStyle& style, Colour colour);
    void remove(int index) { layers_.erase(index); }
    std::vector<int> indices() const;
    bool has(int index) const { return layers_.contains(index); }
    /// Whether any has text, shown or not.
    bool hasText() const;
    const Layer& layer(int index) const { return layers_.at(index).layer; }

    // Each prints the layer anew. Text and style make the place larger where they need it, as far as the picture
    // reaches; once its width has been set it stays, and text breaks at it.
    void setText(int index, const QString& text);
    void setStyle(int index, const TextStyle& style, Colour colour);
    void setShown(int index, bool shown);
    /// Sides below kLeastSide become that long.
    void setPlace(int index, const Rect& place);

    /// What the layer shows (fourth bytes 255), and where that part of its place lies in the picture; empty when it
    /// lies outside.
    const Bits& surface(int index) const { return layers_.at(index).surface; }
    Rect visible(int index) const;
    /// Of the caret before this character of the text: the place in the picture, and its height.
    Rect caret(int index, qsizetype character) const;

    /// The picture with all layers that are shown, the later ones over the earlier.
    Bits Blend() const;

  private:
    struct Entry {
        Layer layer;
        Bits surface;
        std::vector<TextLine> lines; // broken for the layer's width
        int lineHeight = 0;
        bool sized = false; // the width is a person's choice: text breaks at it
    };
    void breakText(Entry& entry);
    void grow(Entry& entry);
    void print(Entry& entry);
    MeasureRun measureIn(const TextStyle& style) const;

    Fonts& fonts_;
    Bits canvas_;
    std::map<int, Entry> layers_;
    int next_ = kFirst;
};

} // namespace velara
