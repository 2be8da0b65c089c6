// The colour filters.
#include "bench.h"

namespace velara::bench {
namespace {

// clang-format off
const Rows rows{
    operation("channel arithmetic", 2.0, 1.25, "Invert", {}),
    inEllipse("selection shape",    1.5, 1.1,  "Invert", {}),
};
// clang-format on

} // namespace
} // namespace velara::bench
