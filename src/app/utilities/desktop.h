// The words that speak with the desktop, the printer and the scanner.
#pragma once
#include "seams/Wallpaper.h"

namespace velara {

class fMain;

/// Makes the active picture the wallpaper.
void setAsWallpaper(fMain& frame, WallpaperMode mode);
/// Chooses the scanner for later scans.
void selectSource(fMain& frame);
/// The dialog that prints the active picture.
void print(fMain& frame);
/// What is known of the active picture and its file.
void showProperties(fMain& frame);
/// Chooses printer and paper for later pages.
void setUpPrinter(fMain& frame);
/// Scans a picture, or all pages in a feeder, as new documents.
void acquire(fMain& frame);

} // namespace velara
