// Boxes: the boxes of the frame, docked at its side or floating over it: shows and hides them, and keeps that in Setup.
#pragma once
#include <QDockWidget>
#include <QPointer>
#include <algorithm>
#include <array>
#include <vector>

class QMainWindow;

namespace velara {

class Bars;
struct Setup;

class Boxes final {
  public:
    enum Box { Colours, Textures, Clips, History, kCount };

    Boxes(QMainWindow& frame, Setup& setup, Bars& bars) : frame_(frame), setup_(setup), bars_(bars) {}

    /// Gives the box a place, hidden at first. It scrolls where the place is smaller than the box.
    void set(Box which, QWidget* box);
    QWidget* box(Box which) const { return boxes_[which]; }
    QDockWidget* dock(Box which) const { return docks_[which]; }
    /// Puts all of them at the frame's right, in one place with tabs: how they stand when no layout is kept.
    void dockAll();
    /// Moves those that float off the places where another instance's boxes are likely to stand, within their screen.
    void moveAside();
    /// Shows a box, where the user last put it.
    void show(Box which);
    void toggle(Box which);
    /// Shows the boxes that Setup says, and hides the others; the colours in front. Where the desktop lets no program
    /// place its windows, those that floated are docked.
    void showAll();
    /// Shows it, or brings it to the front.
    void bring(Box which);
    /// Whether the user wants to see it; for a box that has no field in Setup the frame sets and keeps it.
    bool& wanted(Box which);
    /// The screen rectangles of those that float.
    std::vector<QRect> places() const;
    bool has(const QObject* dock) const
    {
        return std::ranges::any_of(docks_, [dock](const auto& own) { return own == dock; });
    }

  private:
    /// The user has closed it by its own button: its menu item is unchecked.
    void crossed(Box which);

    QMainWindow& frame_;
    Setup& setup_;
    Bars& bars_;
    std::array<bool, kCount> others_{}; // of the boxes that have no field in Setup
    std::array<QPointer<QWidget>, kCount> boxes_;
    std::array<QPointer<QDockWidget>, kCount> docks_;
};

} // namespace velara
