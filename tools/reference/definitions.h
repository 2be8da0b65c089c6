// The published definition of every operation: each written literally, pixel by pixel with a point test, and meant to
// be read. The engine's fast one has to give the same bytes. One file a family, in the rows of definitions.cpp.
#pragma once
#include "engine/operations.h"
#include <map>

namespace velara {

/// The result for a picture, its region and the arguments. May throw RuntimeError like the operation.
using Definition = Bits (*)(const Bits& bits, const Region& region, const Arguments& arguments);
using Definitions = std::map<std::string_view, Definition>;

Definitions geometryDefinitions();
Definitions colourDefinitions();
Definitions distanceDefinitions();
Definitions neighbourDefinitions();
Definitions deformDefinitions();
Definitions styliseDefinitions();
Definitions generateDefinitions();
/// All of them.
const Definitions& definitions();

// Short forms for the arguments.
inline int wholeAt(const Arguments& a, std::size_t i) { return std::get<int>(a[i]); }
inline bool flagAt(const Arguments& a, std::size_t i) { return std::get<bool>(a[i]); }
inline double numberAt(const Arguments& a, std::size_t i) { return std::get<double>(a[i]); }

/// The common loop: every pixel of the region's box, moved inward by margin, that lies in the region and in the
/// picture. body(to, x, y) reads bits and writes the returned copy.
Bits eachPixel(const Bits& bits, const Region& region, int margin,
               const std::function<void(Pixel& to, int x, int y)>& body);

} // namespace velara
