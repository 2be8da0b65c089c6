// The configuration file "Vlaera.dat" in the program folder: one Setup as 3081 bytes, read at the start and written as
// the frame closes.
#pragma once
#include "seams/Setup.h"
#include <cstdint>
#include <span>
#include <vector>

namespace velara {

class Platform;

extern const int kSetupBytes; // 3081: what the rows of SetupStore.cpp come to
using SetupRecord = std::vector<std::uint8_t>;

/// The record of the file; what a short one lacks, or there is none, has its default, and the whole is written at once.
/// Any content is safe.
Setup LoadSetup(Platform& platform);
/// Over the first bytes of the file, for the user alone; what a longer file holds behind them stays, and so do the
/// bytes of a text that isn't UTF-8 and was not edited. On failure false, and the old file is whole.
bool SaveSetup(Platform& platform, const Setup& setup);

/// The record as it lies in the file, over the one that is there, and back; a field of which bytes are missing has its
/// default, further ones are not looked at.
SetupRecord setupBytes(const Setup& setup, SetupRecord before = {});
Setup setupFromBytes(std::span<const std::uint8_t> bytes);

/// Puts path into the first empty entry of the recent list. One that is there keeps its place; in a full list all move
/// down by one and the last falls off.
void AddRecent(Setup& setup, const QString& path);

} // namespace velara
