// What a save does to the camera's data before a writer gets it. Pure functions over bytes that may be hostile:
// bounded, and they never throw but for memory.
#pragma once
#include "seams/CameraData.h"

namespace velara {

/// Nothing for a writer to write.
inline bool isEmpty(const CameraData& camera)
{
    return camera.exif.isEmpty() && camera.xmp.isEmpty() && camera.iptc.isEmpty() && camera.comment.isEmpty() &&
           camera.dotsAcross <= 0;
}

} // namespace velara
