#include "fileio/load/Shrinker.h"
#include "pixels/fitSize.h"
#include <algorithm>

namespace velara {

namespace {

/// The largest block that still leaves the picture at least as large as the target.
int blockFor(QSize picture, QSize target)
{
    return std::max(1, std::min(picture.width() / target.width(), picture.height() / target.height()));
}

int blocks(int length, int block) { return (length + block - 1) / block; }

} // namespace

Shrinker::Shrinker(QSize picture, QSize box)
    : picture_(picture), target_(fitSize(picture, box.expandedTo({1, 1})).expandedTo({1, 1})),
      block_(blockFor(picture, target_)), sums_(std::size_t(3) * blocks(picture.width(), block_)),
      image_(blocks(picture.width(), block_), blocks(picture.height(), block_), QImage::Format_RGB32)
{
    if (image_.isNull()) throw std::bad_alloc();
}

void Shrinker::take(const Pixel* row)
{
    std::uint64_t* sum = sums_.data();
    for (int x = 0; x < picture_.width(); sum += 3)
        for (const int end = std::min(x + block_, picture_.width()); x < end; ++x)
            for (int c = 0; c < 3; ++c) sum[c] += row[x].c[c];
    if (++rows_ == block_ || done_ * block_ + rows_ == picture_.height()) putOut();
}

void Shrinker::putOut()
{
    auto* to = reinterpret_cast<QRgb*>(image_.scanLine(done_++));
    const std::uint64_t* sum = sums_.data();
    for (int i = 0; i < image_.width(); ++i, sum += 3) {
        const auto count = std::uint64_t(std::min(block_, picture_.width() - i * block_)) * std::uint64_t(rows_);
        const auto mean = [&](int c) { return int((sum[c] + count / 2) / count); };
        to[i] = qRgb(mean(2), mean(1), mean(0));
    }
    std::ranges::fill(sums_, 0);
    rows_ = 0;
}

QImage Shrinker::image() const
{
    if (image_.size() == target_) return image_;
    return image_.scaled(target_, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).convertToFormat(image_.format());
}

} // namespace velara
