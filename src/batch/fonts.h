// The fonts of steps that draw texts. They need an application object with a platform, though no window or display.
#pragma once
#include "batch/CommandLine.h"

namespace velara {

/// Whether a step draws with fonts.
bool drawsText(const CommandLine& line);

/// Lets the steps draw by the platform's fonts. Throws a Failure that names a font that isn't installed.
void takeFonts(const CommandLine& line, Platform& platform);
/// The same for a process without an application object, whose forks will draw: another fork looks for the fonts.
void takeFontsOfForks(const CommandLine& line, Platform& platform);

} // namespace velara
