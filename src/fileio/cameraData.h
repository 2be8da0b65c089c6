// What becomes of the camera's data when a picture is read and when it is saved. Pure functions over bytes that may be
// hostile: bounded, and they never throw but for memory.
#pragma once
#include "seams/CameraData.h"

namespace velara {

/// Nothing for a writer to write.
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

/// As much of it as was chosen, for a picture of that size.
CameraData keptFor(const CameraData& camera, CameraKept kept, int width, int height);

} // namespace velara
