// A picture in its true colours: files that say what their numbers mean, by a profile or by gamma and chromaticities,
// are converted to sRGB. Others, and those that are in sRGB, are not touched.
#pragma once
#include "fileio/decode/decode.h"

namespace velara::decode {

/// To be called before the cage closes: the library asks for the time zone once.
void prepareColours();

/// Replaces rows (and samples, which are used up) by those of the picture in sRGB. A profile that is broken, larger
/// than 16 MB or made for another kind of picture is ignored.
void convertToSrgb(Decoded& picture);

/// Of a picture that is left in its stored colours: the profile that a file of its pixels has to carry, 4 MB at most.
/// Empty: they are sRGB's, or nothing that can be used tells what they are. Where the reader has corrected the pixels
/// by a gamma beside the profile, the rows are replaced by those that the profile means.
QByteArray profileOfStored(Decoded& picture);

/// The description in a profile, in English where there are several; empty when it can't be read.
QString nameOfProfile(const std::vector<std::uint8_t>& profile);

} // namespace velara::decode
