// Wallpaper: the picture behind all windows of the desktop.
#pragma once
#include <QString>
#include <functional>

namespace velara {

enum class WallpaperMode { Centre = 0, Tile = 1, Stretch = 2 };

enum class WallpaperResult { Done, CantRead, CantWrite }; // the desktop's present settings, the new ones

class Wallpaper {
  public:
    using Done = std::function<void(WallpaperResult)>;

    virtual ~Wallpaper() = default;
    /// The folder of this user in which the file must stay: the desktop reads it again at each login.
    virtual QString folder() = 0;
    /// Shows the file, a bmp. done is called once, immediately or later. A new call replaces one under way.
    virtual void set(const QString& path, WallpaperMode mode, Done done) = 0;
};

} // namespace velara
