// cBitRegion: a document's selection. The limit (the whole picture), the selected region, its copy scaled by the zoom
// that the outline is drawn from, and the flat words of both. Holds no pixels.
#pragma once
#include "region/Region.h"
#include <QImage>
#include <QString>
#include <array>
#include <vector>

namespace velara {

class cBitRegion {
  public:
    /// Wipes the selection and sets the limit to the rectangle.
    void Init(int left, int top, int right, int bottom);
    /// Combines the shape into the selection; with clip the result is cut to the limit. A first shape becomes the
    /// selection whatever the mode, except that Diff creates nothing.
    void CreateRect(int left, int top, int right, int bottom, Combine mode, bool clip);
    void CreateEllipse(int left, int top, int right, int bottom, Combine mode, bool clip);
    /// points is x0, y0, x1, y1, ...; fewer than three numbers have no effect.
    void CreatePolygon(const std::vector<std::int32_t>& points, Combine mode, bool clip);
    /// The limit without the selection; with an empty selection, everything.
    void Invert();
    /// Cuts the selection to the limit.
    void Crop();
    void Offset(int dx, int dy);
    /// Deletes all regions and data; the brush index and the zoom factor remain.
    void Clear();

    /// The box of the selection; false and untouched outputs when it is empty.
    bool BoundRect(int& left, int& top, int& right, int& bottom) const;
    bool IsEmptyRegion() const { return region_.isEmpty(); }
    /// The words as they lie; see Region::words. False, with the selection as it was, when the file can't be read or
    /// makes no region; what it holds is not cut to the limit. Any content is safe.
    bool LoadFromFile(const QString& path);
    /// False when the file can't be written. While nothing was ever selected no file is made, and that is no failure.
    bool SaveToFile(const QString& path) const;
    /// The words of the selection, as loaded or as Region::words makes them.
    std::vector<std::int32_t> GetData() const;
    int GetDataCount() const;

    float ZoomFactor() const { return zoom_; }
    /// A negative factor becomes 0.01; 0 leaves the scaled copy at the picture's scale.
    void setZoomFactor(float factor);

    const velara::Region& Region() const { return region_; }
    void setRegion(const velara::Region& region); // a null region is ignored
    const velara::Region& RegionMain() const { return limit_; }
    const velara::Region& RegionScaled() const { return scaled_; }
    /// The region to work in: the limit when nothing is selected, else the selection.
    const velara::Region& working() const { return IsEmptyRegion() ? limit_ : region_; }

    /// The outline's pattern moves on by one pixel; 8 wraps to 0.
    void RotateBrush() { brush_ = (brush_ + 1) % 8; }
    int brushIndex() const { return brush_; }
    /// Draws the outline moved by x, y into the part of a 32-bit image; see outline.h. The pattern keeps its place on
    /// the device.
    void DrawToDC(QImage& device, int x, int y, const Rect& part) const;

  private:
    void create(const velara::Region& shape, Combine mode, bool clip);
    void refreshData();
    void refreshScaled();

    velara::Region limit_, region_, scaled_;
    float zoom_ = 1;
    int brush_ = 0;
    std::vector<std::int32_t> data_; // of a loaded file; otherwise made when asked for
};

} // namespace velara
