// What becomes of the camera's data when a picture is read and when it is saved. Pure functions over bytes that may be
// hostile: bounded, and they never throw but for memory.
#pragma once
#include "seams/CameraData.h"

namespace velara {

constexpr qsizetype kMostExif = 1 << 20; // bytes that a reader takes

/// Nothing of a camera's that could be kept or left out.
inline bool isEmpty(const CameraData& camera)
{
    return camera.exif.isEmpty() && camera.xmp.isEmpty() && camera.iptc.isEmpty() && camera.comment.isEmpty() &&
           camera.dotsAcross <= 0;
}

/// "300 x 300 dots per inch"; empty where it is unknown.
QString resolutionText(double across, double down);

/// Made to fit an upright picture of that size: orientation 1, the sizes told are its own, and the embedded small
/// picture is gone. EXIF that has no directory is dropped.
CameraData fitted(CameraData camera, int width, int height);

/// Without latitude, longitude, and the names of places. What can't be taken apart is dropped whole.
CameraData withoutPlace(CameraData camera);

/// Resolution, comment and IPTC put into the EXIF, for files that have no other place for them; where there is none,
/// one is made. A comment that the camera itself has put there stays, and what would make the EXIF too long is left
/// out.
CameraData inExif(CameraData camera);
/// The reverse, for readers: IPTC is taken out of the EXIF, and the comment that stands there is the picture's where
/// the container has none.
CameraData outOfExif(CameraData camera);

/// As much of it as was chosen, for a picture of that size. Resolution and profile are the picture's, and stay.
CameraData keptFor(const CameraData& camera, CameraKept kept, int width, int height);
/// The same for a file that is to be small: without anything of the camera's it has no resolution either.
CameraData keptForWeb(const CameraData& camera, CameraKept kept, int width, int height);

} // namespace velara
