// The stock textures: pictures that the program draws itself, each of which joins on to itself on all sides.
#pragma once
#include "pixels/Bits.h"
#include <QString>
#include <span>

namespace velara {

class Platform;

constexpr int kTextureSide = 256;

struct StockTexture {
    const char* name; // for a person
    Bits (*draw)();   // kTextureSide square
};
/// In the order of their numbers, from 1.
std::span<const StockTexture> stockTextures();

/// Makes the folder "Textures" of the program, and in it "Velara1.bmp" and so on, each where nothing has the name.
/// False when the folder can't be made or one of them not be written; the others are.
bool writeStockTextures(Platform& platform);
/// The name of the stock texture that a file of the folder is called after; empty for any other file.
QString stockTextureName(const QString& fileName);

} // namespace velara
