// The dialogs that ask for a file or a folder. They come back in the size and with the columns that they were left
// with; the picture that is selected in them is shown beside the list.
#pragma once
#include "seams/Platform.h"

namespace velara {

/// Each gives what was chosen, or no value when it was cancelled, or its parent has gone meanwhile.
std::optional<QString> askOpenName(Platform& platform, const FileDialog& request);
std::optional<QString> askSaveName(Platform& platform, const FileDialog& request);
std::optional<QString> askFolder(Platform& platform, const QString& title, const QString& start);

} // namespace velara
