// IPTC records in the frame in which JPEG and TIFF files carry them.
#pragma once
#include <QByteArray>

namespace velara {

/// The records as resource 0x0404, without a name. Empty for none.
inline QByteArray iptcResource(const QByteArray& records)
{
    if (records.isEmpty()) return {};
    QByteArray bytes("8BIM\4\4\0\0", 8);
    for (int shift = 24; shift >= 0; shift -= 8) bytes.append(static_cast<char>(records.size() >> shift));
    bytes.append(records);
    if (records.size() % 2 == 1) bytes.append('\0');
    return bytes;
}

} // namespace velara
