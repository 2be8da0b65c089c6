// The values of those fields of Setup that are enumerations; each enum has its field's name. TextMode is a TextAlign of
// text/mText.h. The numbers are those of the configuration file, and a field may hold any other one from a foreign
// file.
#pragma once
#include <cstdint>

namespace velara {

namespace SelectionMode {
enum Value : std::int16_t { Add, Subtract, New };
}
namespace SelectionShape {
enum Value : std::int16_t { Rectangle, Ellipse, Polygon, Pixel };
}
namespace BrushMode {
enum Value : std::int16_t { Paint, Soften, SoftenOver, Sharpen, Lighten, Darken, Stamp };
}
namespace FillMode {
enum Value : std::int16_t { Paint, Stamp };
}
namespace ShapeKind {
enum Value : std::int16_t { Line, FreeHand, Square, Rectangle, Circle, Ellipse, Polygon };
}
namespace GradientMode {
enum Value : std::int32_t { Linear, Circular };
}
namespace PasteMode { // whether what was cut or copied was not laid down yet
enum Value : std::int16_t { Waiting = -1, None = 0 };
}

} // namespace velara
