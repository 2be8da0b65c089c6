// The stock textures: pictures drawn by the program itself, which tile seamlessly on all sides.
#pragma once
#include "pixels/Bits.h"
#include <QString>
#include <span>

namespace velara {

class Platform;

constexpr int kTextureSide = 256;

struct StockTexture {
    const char* name; // shown to the user
    Bits (*draw)();   // kTextureSide by kTextureSide
};
/// In the order of their numbers, from 1 (the first is Velara1.bmp).
std::span<const StockTexture> stockTextures();

/// Makes the program's folder "Textures", and in it "Velara1.bmp" and so on, each unless its name is taken. False when
/// the folder can't be made or a file can't be written; the remaining files are still written.
bool writeStockTextures(Platform& platform);
/// The name of the stock texture in a file of that name; empty for any other file.
QString stockTextureName(const QString& fileName);

} // namespace velara
