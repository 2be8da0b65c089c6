// Scalar twins: each operation once more, written literally, pixel by pixel with a point test, as what the fast one is
// held against. A twin file registers its functions; the tests walk the operation table and fail for a row without a
// twin.
#pragma once
#include "engine/operations.h"
#include "pixels/Bits.h"
#include "region/Region.h"
#include <functional>
#include <map>
#include <string>

namespace velara {

/// The picture and region of an object, and its result. May throw RuntimeError like the operation.
using Twin = std::function<Bits(const Bits& bits, const Region& region, const Arguments& arguments)>;

std::map<std::string, Twin, std::less<>>& twins();

/// At file scope: static const TwinRows rows{{"Invert", invert}, ...};
struct TwinRows {
    TwinRows(std::initializer_list<std::pair<const std::string, Twin>> rows) { twins().insert(rows); }
};

// Short forms for the twins' arguments.
inline int wholeAt(const Arguments& a, std::size_t i) { return std::get<int>(a[i]); }
inline bool flagAt(const Arguments& a, std::size_t i) { return std::get<bool>(a[i]); }
inline double numberAt(const Arguments& a, std::size_t i) { return std::get<double>(a[i]); }

/// The literal common loop: every pixel of the box (moved inward by margin) that lies in the region and in the picture.
/// body(x, y) reads bits and writes the returned copy.
Bits eachPixel(const Bits& bits, const Region& region, int margin,
               const std::function<void(Pixel& to, int x, int y)>& body);

} // namespace velara
