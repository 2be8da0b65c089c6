// The size that a picture takes in a box.
#pragma once
#include <QSize>

namespace velara {

/// size where it fits the box in both directions, else the largest of about the same shape that does: pictures are
/// never enlarged. DivisionByZero for an empty size that is too long the other way.
QSize fitSize(QSize size, QSize box);

} // namespace velara
