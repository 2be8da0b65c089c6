#include "app/settings/pictureSettings.h"
#include "seams/Platform.h"

namespace velara {

namespace {

const QString kSection = QStringLiteral("Pictures"), kOn = QStringLiteral("on"), kOff = QStringLiteral("off");

struct Row {
    const char* key;
    bool usual;
};
constexpr Row kRows[] = {
    {"ConvertToSrgb", true}, {"KeepCameraData", true}, {"LeaveOutPlace", false}, {"ScreenProfile", false}};

const Row& rowOf(PictureSetting which) { return kRows[static_cast<int>(which)]; }

} // namespace

bool pictureSetting(Platform& platform, PictureSetting which)
{
    const Row& row = rowOf(which);
    return platform.setting(kSection, row.key, row.usual ? kOn : kOff) == kOn;
}

void setPictureSetting(Platform& platform, PictureSetting which, bool on)
{
    platform.setSetting(kSection, rowOf(which).key, on ? kOn : kOff);
}

} // namespace velara
