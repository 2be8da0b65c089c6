#include "ui/widgets/marks/motion.h"

namespace velara {

static bool less_ = false;

bool lessMotion() { return less_; }
void setLessMotion(bool less) { less_ = less; }

} // namespace velara
