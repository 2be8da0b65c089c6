// The pictures that the program brings along: splash, stamps and the first image. Drawn from the program's resources.
#pragma once
#include <QImage>
#include <QList>

namespace velara {

QImage splashPicture();
/// Black shapes on white.
QList<QImage> defaultStamps();
QImage defaultImage();

} // namespace velara
