// The pictures that come with the program: splash, stamps and the first image. Drawn from the program's resources.
#pragma once
#include <QImage>
#include <QList>

namespace velara {

QImage splashPicture();
/// Black shapes on white.
QList<QImage> defaultStamps();
QImage defaultImage();

} // namespace velara
