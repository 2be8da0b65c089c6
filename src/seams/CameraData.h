// CameraData: what a picture file carries beside its pixels, for the files that the picture is saved to.
#pragma once
#include <QByteArray>
#include <QString>

namespace velara {

/// The bytes are the file's own, with orientation, pixel sizes and small picture mended by the child that read it.
struct CameraData {
    QByteArray exif = {};  // from the byte order mark ("II", "MM") on, without "Exif\0\0"
    QByteArray xmp = {};   // the packet
    QByteArray iptc = {};  // the records, from the first 0x1c on
    QString comment = {};  // of the container, such as JPEG's COM segment, else that in the EXIF
    double dotsAcross = 0; // per inch; 0: unknown, and then dotsDown is 0, too
    double dotsDown = 0;
    QByteArray profile = {}; // ICC, of the pixels where they aren't in sRGB
};

/// How much of it a saved file gets.
enum class CameraKept { All, NoPlace, None };

} // namespace velara
