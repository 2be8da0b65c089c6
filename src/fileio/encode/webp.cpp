// WebP by the same code as in the programs.
#include "fileio/encode/encoders.h"
#include "fileio/writers/webp/WebpEncoder.h"

namespace velara::encode {

bool encodeWebp(const Picture& picture)
{
    const Request& request = picture.request;
    const int width = static_cast<int>(request.width), height = static_cast<int>(request.height);
    WebpEncoder encoder({static_cast<int>(request.quality), request.format == Format::LosslessWebp});
    return encoder.takeRgb(picture.pixels, width, height) && encoder.encode([] { return true; }) &&
           encoder.finish(picture.exif, picture.xmp, picture.profile) &&
           put(encoder.file().data(), encoder.file().size());
}

} // namespace velara::encode
