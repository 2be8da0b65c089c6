// The dialogs that ask for a file or a folder. They reopen with their last size and columns; the selected picture is
// shown beside the list.
#pragma once
#include "seams/Platform.h"

namespace velara {

/// Each returns the choice, or no value when it was cancelled or its parent was deleted meanwhile.
std::optional<QString> askOpenName(Platform& platform, const FileDialog& request);
std::optional<QString> askSaveName(Platform& platform, const FileDialog& request);
std::optional<QString> askFolder(Platform& platform, const QString& title, const QString& start);

} // namespace velara
