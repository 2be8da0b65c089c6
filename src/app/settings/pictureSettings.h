// What is remembered of how pictures are read, shown and saved, in the user's settings: the configuration file has no
// room.
#pragma once

namespace velara {

class Platform;

enum class PictureSetting {
    ConvertToSrgb,  // pictures that are read
    KeepCameraData, // in files that "Save as" writes
    LeaveOutPlace,  // of it
    ScreenProfile,  // pictures are shown by
};

bool pictureSetting(Platform& platform, PictureSetting which);
void setPictureSetting(Platform& platform, PictureSetting which, bool on);

} // namespace velara
