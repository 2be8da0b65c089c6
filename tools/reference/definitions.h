// The published definition of every operation: each written literally, pixel by pixel with a point test, to be
// readable. The engine's fast version must give the same bytes. One file per family, collected in definitions.cpp.
#pragma once
#include "engine/operations.h"
#include <map>

namespace velara {

/// The arguments of a call by the names in the operation's row. An unknown name or a wrong type throws
/// std::invalid_argument or std::bad_variant_access.
class Given {
  public:
    /// Both must outlive this object.
    Given(const Operation& operation, const Arguments& arguments) : operation_(operation), arguments_(arguments) {}

    int whole(std::string_view name) const { return std::get<int>(named(name)); }
    bool flag(std::string_view name) const { return std::get<bool>(named(name)); }
    double number(std::string_view name) const { return std::get<double>(named(name)); }
    const std::string& text(std::string_view name) const { return std::get<std::string>(named(name)); }
    const Bits& picture(std::string_view name) const { return std::get<Bits>(named(name)); }

  private:
    const Argument& named(std::string_view name) const;

    const Operation& operation_;
    const Arguments& arguments_;
};

/// The result for a picture, its region and the arguments. May throw RuntimeError like the operation.
using Definition = Bits (*)(const Bits& bits, const Region& region, const Given& arguments);
using Definitions = std::map<std::string_view, Definition>;

Definitions geometryDefinitions();
Definitions colourDefinitions();
Definitions distanceDefinitions();
Definitions neighbourDefinitions();
Definitions deformDefinitions();
Definitions styliseDefinitions();
Definitions generateDefinitions();
/// The result of an operation by its definition. std::invalid_argument for one without a definition.
Bits definedResult(std::string_view operation, const Bits& bits, const Region& region, const Arguments& arguments);

/// The common loop: every pixel of the region's box, moved inward by margin, that lies in the region and in the
/// picture. body(to, x, y) reads bits and writes the returned copy.
Bits eachPixel(const Bits& bits, const Region& region, int margin,
               const std::function<void(Pixel& to, int x, int y)>& body);

} // namespace velara
