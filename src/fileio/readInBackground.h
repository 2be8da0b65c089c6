// Slow work beside the window's thread, such as reading a picture file, on behalf of an object of the window.
#pragma once
#include "seams/Platform.h"

class QObject;

namespace velara {

/// Machine::inBackground, whose request lives as long as the owner: once that is gone no answer comes.
void inBackground(Platform& platform, QObject* owner, std::function<void(const GoOn&)> work,
                  std::function<void()> done);

/// Reads a picture by the extension of its path; then comes from the event loop, unless the owner is gone.
void readInBackground(Platform& platform, QObject* owner, const QString& path,
                      std::function<void(const LoadedPicture&)> then);

} // namespace velara
