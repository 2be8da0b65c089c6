// The configuration file "Vlaera.dat" in the program folder: one Setup as 3081 bytes, read at the start and written
// when the frame closes.
#pragma once
#include "seams/Setup.h"
#include <cstdint>
#include <span>
#include <vector>

namespace velara {

class Platform;

extern const int kSetupBytes; // 3081: the total of the rows of SetupStore.cpp
using SetupRecord = std::vector<std::uint8_t>;

/// The record of the file; fields missing from a short or absent file get their defaults, and then the whole record is
/// written at once. Any content is safe.
Setup LoadSetup(Platform& platform);
/// Overwrites the start of the file, readable by the user only; the tail of a longer file is kept, and so are the bytes
/// of a text that isn't UTF-8 and wasn't edited. On failure false, and the old file is intact.
bool SaveSetup(Platform& platform, const Setup& setup);

/// Converts the record to the bytes of the file, over those already there, and back; a field with missing bytes gets
/// its default, excess bytes are ignored.
SetupRecord setupBytes(const Setup& setup, SetupRecord before = {});
Setup setupFromBytes(std::span<const std::uint8_t> bytes);

/// Puts path into the first empty entry of the recent list. A path already there keeps its place; in a full list all
/// entries move down by one and the last is dropped.
void AddRecent(Setup& setup, const QString& path);

} // namespace velara
