// FreeImage's writers on our own files, which notice a full disk when the last bytes are flushed.
#pragma once
#include "fileio/disk/OutputFile.h"
#include <optional>

struct FIBITMAP;

namespace velara {

/// format and flags are FreeImage's (FREE_IMAGE_FORMAT). False when it can't be written; FreeImage must be open. The
/// file's name is not taken before file.commit().
bool saveDib(FIBITMAP* dib, int format, int flags, OutputFile& file);

/// The length that the file would have; nothing when the picture can't be written so, or goOn returns false.
std::optional<std::int64_t> savedBytes(FIBITMAP* dib, int format, int flags, const std::function<bool()>& goOn = {});

} // namespace velara
