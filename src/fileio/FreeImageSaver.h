// FreeImage's writers over our own files, which see a disk that is full when the last bytes are flushed.
#pragma once
#include "fileio/OutputFile.h"
#include <optional>

struct FIBITMAP;

namespace velara {

/// format and flags are FreeImage's (FREE_IMAGE_FORMAT). False when it can't be written; FreeImage has to be open.
/// Nothing takes the file's name before file.commit().
bool saveDib(FIBITMAP* dib, int format, int flags, OutputFile& file);

/// How long the file would be; nothing when the picture can't be written so, or goOn says no.
std::optional<std::int64_t> savedBytes(FIBITMAP* dib, int format, int flags, const std::function<bool()>& goOn = {});

} // namespace velara
