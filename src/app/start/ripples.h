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
    /// One step of all live ripples, into picture(). random gives [0, 1); yield runs once a ripple and may add ripples.
    void tick(const std::function<double()>& random, const std::function<void()>& yield);

    const QImage& picture() const { return shown_; }
    /// Index of the first ripple that still grows.
    int firstLive() const { return first_; }
    int count() const { return static_cast<int>(list_.size()); }

  private:
    struct Ripple {
        std::int32_t x, y;
        std::int16_t radius = 0, size = 8;
    };

    void draw(const Ripple& ripple, int size);

    QImage source_, shown_;
    std::vector<Ripple> list_;
    int first_ = 0, limit_;
};

} // namespace velara
