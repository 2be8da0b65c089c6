// cBitRegion: a document's selection: the limit (the whole picture), the selected region, its copy scaled to the zoom
// for drawing the outline, and its flat words. Holds no pixels.
#pragma once
#include "region/Region.h"
#include <QString>
#include <array>
#include <vector>

class QImage;

namespace velara {

class cBitRegion {
  public:
    /// Clears the selection and sets the limit to the rectangle.
    void Init(int left, int top, int right, int bottom);
    /// Combines the shape with the selection; with clip the result is cut to the limit. Without a selection the shape
    /// becomes it whatever the mode, except that Diff selects nothing.
    void CreateRect(int left, int top, int right, int bottom, Combine mode, bool clip);
    void CreateEllipse(int left, int top, int right, int bottom, Combine mode, bool clip);
    /// points is x0, y0, x1, y1, ...; fewer than three numbers have no effect.
    void CreatePolygon(const std::vector<std::int32_t>& points, Combine mode, bool clip);
    /// The limit minus the selection; everything when nothing is selected.
    void Invert();
    /// Cuts the selection to the limit.
    void Crop();
    void Offset(int dx, int dy);
    /// Deletes all regions and data; the brush index and the zoom factor remain.
    void Clear();

    /// Bounding box of the selection; false, with the outputs untouched, when it is empty.
    bool BoundRect(int& left, int& top, int& right, int& bottom) const;
    bool IsEmptyRegion() const { return region_.isEmpty(); }
    /// Reads the words of Region::words. False, with the selection unchanged, when the file can't be read or holds no
    /// valid region. The result is not cut to the limit. Safe for any content.
    bool LoadFromFile(const QString& path);
    /// False when the file can't be written. Without a selection so far no file is made, which counts as success.
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
    /// The working region: the selection, or the limit when nothing is selected.
    const velara::Region& working() const { return IsEmptyRegion() ? limit_ : region_; }

    /// Advances the outline's pattern by one pixel; 8 wraps to 0.
    void RotateBrush() { brush_ = (brush_ + 1) % 8; }
    int brushIndex() const { return brush_; }
    /// Draws the outline, moved by x, y, into part of a 32-bit image; see outline.h. The pattern is fixed to the
    /// device.
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
