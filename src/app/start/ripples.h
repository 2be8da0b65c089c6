// The ripples of the splash picture: rings of shifted squares that grow and fade. No window, no clock.
#pragma once
#include <QImage>
#include <cstdint>
#include <functional>
#include <vector>

namespace velara {

class Ripples {
  public:
    explicit Ripples(const QImage& picture);

    void add(int x, int y) { list_.push_back({x, y}); }
    /// Draws one live ripple more of a step, by size from 0 to 2 larger than it is (random gives [0, 1)), and lets it
    /// grow. Ripples that are added meanwhile belong to the step. True: that was the last, and picture() has them all.
    bool drawNext(const std::function<double()>& random);

    const QImage& picture() const { return shown_; }
    /// Index of the first ripple that is still growing.
    std::size_t firstLive() const { return first_; }
    std::size_t count() const { return list_.size(); }

  private:
    struct Ripple {
        std::int32_t x, y;
        std::int16_t radius = 0, size = 8;
    };

    void draw(const Ripple& ripple, int size);

    QImage source_, drawn_, shown_; // drawn_: the step under way
    std::vector<Ripple> list_;
    std::size_t first_ = 0, next_ = 0;
    int limit_;
};

} // namespace velara
