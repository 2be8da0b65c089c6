// The entry procedure: everything between the start of the program and its message loop.
#pragma once
#include "app/frame/fMain.h"
#include "seams/Platform.h"
#include "seams/Setup.h"
#include <memory>

namespace velara {

/// Makes the folders under the program folder that are missing, with their first contents: "Stamps", "Temp", "Images".
/// False when one of them can't be made or filled.
bool makeFolders(Platform& platform);

/// Sizes the frame from the configuration and puts it where it was at the end of the last run, or, the first time, in
/// the centre of the screen. Whatever those say, the frame is visible on a screen.
void placeFrame(QWidget& frame, const Setup& setup, const QByteArray& place = {});

/// Splash, configuration, frame, folders, bars, in that order; the frame stands shown at the end. setup must outlive
/// it.
std::unique_ptr<fMain> startEditor(Platform& platform, Setup& setup);

} // namespace velara
