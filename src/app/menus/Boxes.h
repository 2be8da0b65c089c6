// Boxes: the floating boxes of the frame: shown, hidden and remembered in Setup.
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

    /// A box stands at the frame's right at first, and clear of the side pane's width; where that is over the side
    /// pane, beside the frame, as far as the screen has room.
    Boxes(QWidget& frame, const QWidget& sidePane, Setup& setup, Bars& bars);

    void set(Box which, QWidget* box) { boxes_[which] = box; }
    QWidget* box(Box which) const { return boxes_[which]; }
    /// Shows a box; it keeps the place that the user gave it.
    void show(Box which);
    void toggle(Box which);
    /// What is to be seen when the frame comes up.
    void showAll();
    /// Shows it, or brings it to the front.
    void bring(Box which);
    /// Where they are on the screen, those that are shown.
    std::vector<QRect> places() const;
    bool has(const QObject* box) const
    {
        return std::ranges::any_of(boxes_, [box](const auto& own) { return own == box; });
    }
    /// The user has closed a box by its own cross, if it is one: the menu's mark goes too.
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
