// Damage behind what a reader looks at first: chunks keep their lengths and sums, packed pixels are damaged before they
// are packed, blocks and directories stay in order.
#pragma once
#include "tools/fuzz/Subject.h"

namespace velara::fuzz {

/// The formats that can be damaged so, by their extension.
constexpr const char* kInside[] = {"png", "mng", "gif", "tif"};

/// A picture of the format with one to four changes inside; other is one to take parts from. What doesn't have the
/// format's frame is damaged as mutate does it.
void mutateInside(QByteArray& bytes, const QString& format, const QByteArray& other, Dice& dice);

/// The PNG file as the one frame of an MNG file.
QByteArray asMng(const QByteArray& png);

} // namespace velara::fuzz
