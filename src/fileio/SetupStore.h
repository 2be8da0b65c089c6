// The configuration file "Vlaera.dat" in the program folder: one Setup as 3081 bytes, read at the start and written as
// the frame closes.
#pragma once
#include "seams/Setup.h"
#include <array>
#include <cstdint>
#include <span>

namespace velara {

class Platform;

constexpr int kSetupBytes = 3081;

/// The record of the file. Without a file the defaults, and an empty file is left behind; what a short file lacks is
/// zero, so an empty one that an earlier run left gives zeros throughout. Any content is safe.
Setup LoadSetup(Platform& platform);
/// Over the first bytes of the file; what a longer file holds behind them stays. On failure false, and the old file is
/// whole.
bool SaveSetup(Platform& platform, const Setup& setup);

/// The record as it lies in the file, and back; bytes that are missing count as zero, further ones are not looked at.
std::array<std::uint8_t, kSetupBytes> setupBytes(const Setup& setup);
Setup setupFromBytes(std::span<const std::uint8_t> bytes);

/// Puts path into the first empty entry of the recent list. One that is there keeps its place; in a full list all move
/// down by one and the last falls off.
void AddRecent(Setup& setup, const QString& path);

} // namespace velara
