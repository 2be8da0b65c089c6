// The rows of a picture file as its reader gives them, for what makes something of them.
#pragma once
#include "fileio/load/DecodeProtocol.h"
#include "fileio/load/PictureLoader.h"
#include <QByteArray>
#include <array>
#include <functional>

namespace velara {

/// Takes `count` rows of the picture's width, top down.
using RowTaker = std::function<void(const Pixel* rows, int first, int count)>;
using Parts = std::array<QByteArray, decode::kParts>;
/// Called once the size is known.
using Begin = std::function<RowTaker(const decode::Opening& opening, const Parts& parts)>;

struct Ending {
    bool whole;     // all rows have arrived
    QString reason; // why not, or why the picture is incomplete
};

/// Opens the file for reading; reason says why starting a reader would be pointless.
Descriptor openPicture(const QString& path, QString& reason);
/// Reads an open file by the reader of the extension; see DecodeProtocol.h for the wishes. Never throws.
Ending load(const Descriptor& file, const QString& extension, const QString& decoder, QStringList wishes,
            const DecoderLimits& limits, const GoOn& goOn, const Begin& begin);
/// The ending's reason with the picture's name, for the user; empty for a whole picture.
QString named(const Ending& ending, const QString& name);

} // namespace velara
