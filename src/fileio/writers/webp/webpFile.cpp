// WebP: small pictures here, larger ones by a velara-encode.
#include "fileio/cameraData.h"
#include "fileio/writers/encodedFile.h"
#include "fileio/writers/pictureFiles.h"
#include "fileio/writers/webp/WebpEncoder.h"

namespace velara {

namespace {

/// More pixels than this are encoded by a process that can be ended: the steps between two of the library's percents
/// are a hundredth of the picture and more.
constexpr std::int64_t kMostPixelsHere = 1 << 20;

std::span<const std::uint8_t> spanOf(const QByteArray& bytes)
{
    return {reinterpret_cast<const std::uint8_t*>(bytes.constData()), static_cast<std::size_t>(bytes.size())};
}

} // namespace

bool fitsWebp(const Bits& picture)
{
    return picture.width() <= WEBP_MAX_DIMENSION && picture.height() <= WEBP_MAX_DIMENSION;
}

bool writeWebp(const Bits& picture, const WebpForm& form, ByteSink& to, const CameraData& carried)
{
    using encode::Format;
    if (!fitsWebp(picture)) return false;
    if (std::int64_t{picture.width()} * picture.height() > kMostPixelsHere)
        return writeEncoded(picture, form.lossless ? Format::LosslessWebp : Format::Webp, form.quality, to, carried);
    const CameraData camera = inExif(carried);
    WebpEncoder encoder(form);
    return encoder.takeBgrx(picture.row(0)->c, picture.width(), picture.height(),
                            static_cast<int>(picture.stride() * 4)) &&
           encoder.encode([&to] { return to.goesOn(); }) &&
           encoder.finish(spanOf(camera.exif), spanOf(camera.xmp), spanOf(camera.profile)) &&
           to.write(encoder.file().data(), encoder.file().size());
}

} // namespace velara
