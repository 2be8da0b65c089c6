// Damage beyond a reader's first checks: chunks keep valid lengths and checksums, pixels are damaged before they are
// compressed, blocks and directories stay in order, boxes keep valid lengths.
#pragma once
#include "tools/fuzz/Subject.h"

namespace velara::fuzz {

/// The formats that support this, by their extension.
constexpr const char* kInside[] = {"png",  "mng", "gif", "tif", "webp", "heic",
                                   "avif", "jxl", "dng", "cr2", "nef",  "arw"};

/// Makes one to four changes inside a picture of the format; other is one to take parts from. Data without the format's
/// structure is damaged as by mutate.
void mutateInside(QByteArray& bytes, const QString& format, const QByteArray& other, Dice& dice);

/// The PNG file as the single frame of an MNG file.
QByteArray asMng(const QByteArray& png);

} // namespace velara::fuzz
