// Boxes: the floating boxes of the frame: shows and hides them and keeps that in Setup.
#pragma once
#include <QPointer>
#include <QWidget>
#include <algorithm>
#include <array>
#include <vector>

namespace velara {

class Bars;
struct Setup;

class Boxes final {
  public:
    enum Box { Colours, Textures, Clips, kCount };

    /// Initially a box is at the frame's right, clear of the side pane's width; if that would be over the side pane,
    /// beside the frame, as far as the screen has room.
    Boxes(QWidget& frame, const QWidget& sidePane, Setup& setup, Bars& bars);

    void set(Box which, QWidget* box) { boxes_[which] = box; }
    QWidget* box(Box which) const { return boxes_[which]; }
    /// Shows a box, where the user last put it.
    void show(Box which);
    void toggle(Box which);
    /// Shows the boxes that Setup says, when the frame appears.
    void showAll();
    /// Shows it, or brings it to the front.
    void bring(Box which);
    /// The screen rectangles of the visible ones.
    std::vector<QRect> places() const;
    bool has(const QObject* box) const
    {
        return std::ranges::any_of(boxes_, [box](const auto& own) { return own == box; });
    }
    /// The user has closed this window by its own close button: if it is a box, its menu item is unchecked.
    void crossed(const QObject* box);

  private:
    QPoint beside(const QWidget& box) const;

    QWidget& frame_;
    const QWidget& sidePane_;
    Setup& setup_;
    Bars& bars_;
    std::array<QPointer<QWidget>, kCount> boxes_;
    std::array<bool, kCount> placed_{};
};

} // namespace velara
