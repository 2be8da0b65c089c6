#include "region/cBitRegion.h"
#include "region/outline.h"
#include <QFile>
#include <QSaveFile>
#include <bit>

namespace velara {

static_assert(std::endian::native == std::endian::little, "the words of a file are little-endian");

void cBitRegion::Init(int left, int top, int right, int bottom)
{
    Clear();
    limit_ = Region::rectangle(left, top, right, bottom);
}

void cBitRegion::create(const velara::Region& shape, Combine mode, bool clip)
{
    if (shape.isNull()) return; // too large to be made
    if (!region_.isNull())
        region_ = region_.combined(shape, mode);
    else if (mode != Combine::Diff)
        region_ = shape;
    if (clip && !region_.isNull()) region_ = region_.combined(limit_, Combine::And);
    refreshData();
}

void cBitRegion::CreateRect(int left, int top, int right, int bottom, Combine mode, bool clip)
{
    create(Region::rectangle(left, top, right, bottom), mode, clip);
}

void cBitRegion::CreateEllipse(int left, int top, int right, int bottom, Combine mode, bool clip)
{
    create(Region::ellipse(left, top, right, bottom), mode, clip);
}

void cBitRegion::CreatePolygon(const std::vector<std::int32_t>& points, Combine mode, bool clip)
{
    if (points.size() >= 3) create(Region::polygon(points), mode, clip);
}

void cBitRegion::Invert()
{
    const Rect limit = limit_.bounds();
    region_ = region_.isEmpty() ? Region::rectangle(limit.left, limit.top, limit.right, limit.bottom)
                                : limit_.combined(region_, Combine::Xor);
    refreshData();
}

void cBitRegion::Crop()
{
    if (!region_.isNull()) region_ = limit_.combined(region_, Combine::And);
    refreshData();
}

void cBitRegion::Offset(int dx, int dy)
{
    region_ = region_.translated(dx, dy);
    refreshData();
}

void cBitRegion::Clear()
{
    limit_ = region_ = scaled_ = {};
    data_.clear();
}

bool cBitRegion::BoundRect(int& left, int& top, int& right, int& bottom) const
{
    const Rect box = region_.bounds();
    if (box.isEmpty()) return false;
    left = box.left;
    top = box.top;
    right = box.right;
    bottom = box.bottom;
    return true;
}

bool cBitRegion::LoadFromFile(const QString& path)
{
    QFile file(path);
    constexpr qint64 kLargest = 4 * (8 + (qint64(4) << 24)); // what the largest region takes
    if (!file.open(QIODevice::ReadOnly) || file.size() > kLargest) return false;
    std::vector<std::int32_t> words(static_cast<std::size_t>(file.size() / 4));
    const qint64 size = static_cast<qint64>(4 * words.size());
    if (file.read(reinterpret_cast<char*>(words.data()), size) != size) return false;
    const velara::Region region = Region::fromWords(words);
    if (region.isNull()) return false;
    region_ = region;
    data_ = std::move(words);
    refreshScaled();
    return true;
}

bool cBitRegion::SaveToFile(const QString& path) const
{
    const std::vector<std::int32_t> words = GetData();
    if (words.empty()) return true;
    QSaveFile file(path);
    const qint64 size = static_cast<qint64>(4 * words.size());
    return file.open(QIODevice::WriteOnly) && file.write(reinterpret_cast<const char*>(words.data()), size) == size &&
           file.commit();
}

std::vector<std::int32_t> cBitRegion::GetData() const { return data_.empty() ? region_.words() : data_; }

int cBitRegion::GetDataCount() const
{
    if (!data_.empty() || region_.isNull()) return static_cast<int>(data_.size());
    return static_cast<int>(8 + 4 * region_.rectangleCount());
}

void cBitRegion::setZoomFactor(float factor)
{
    zoom_ = factor < 0 ? 0.01f : factor;
    refreshScaled();
}

void cBitRegion::setRegion(const velara::Region& region)
{
    if (region.isNull()) return;
    region_ = region;
    refreshData();
}

void cBitRegion::refreshData()
{
    data_.clear();
    refreshScaled();
}

void cBitRegion::refreshScaled() { scaled_ = zoom_ > 0 && zoom_ != 1 ? region_.scaled(zoom_) : region_; }

} // namespace velara
