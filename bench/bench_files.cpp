// Opening and saving relative to FreeImage's own calls in this process: the cost of the child, of the transfer and of
// the conversion between 24 and 32 bits. The files are in the page cache.
#include "bench.h"
#include "fileio/savePicture.h"
#include "platform/WindowlessPlatform.h"
#include <FreeImage.h>
#include <QTemporaryDir>
#include <stdexcept>

namespace velara::bench {
namespace {

class HomePlatform : public WindowlessPlatform {
    void message(const QString&, const QString& text, Icon) override { throw std::runtime_error(text.toStdString()); }
};

HomePlatform& machine()
{
    static HomePlatform machine;
    return machine;
}

QString pathOf(const QString& name, const char* extension)
{
    static const QTemporaryDir folder;
    return folder.filePath(name + '.' + extension);
}

Bits load(const QString& path, const char* extension)
{
    LoadedPicture picture = machine().loadPicture(path, extension);
    if (!picture.ok()) throw std::runtime_error(picture.reason.toStdString());
    return picture.bits;
}

void save(const Bits& bits, const QString& path, const char* extension)
{
    if (savePicture(machine(), bits, path, extension) != SaveResult::Written)
        throw std::runtime_error("can't be saved");
}

/// FreeImage is open while it lives, and so is what it makes of a picture: its own bitmap, bottom row first.
class Library {
  public:
    Library() { FreeImage_Initialise(0); }
    ~Library() { FreeImage_DeInitialise(); }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;
};

std::shared_ptr<FIBITMAP> bitmapOf(const Bits& bits)
{
    const Library library;
    auto* bytes = const_cast<std::uint8_t*>(bits.row(0)->c);
    FIBITMAP* full =
        FreeImage_ConvertFromRawBits(bytes, bits.width(), bits.height(), static_cast<int>(bits.stride() * 4), 32,
                                     FI_RGBA_RED_MASK, FI_RGBA_GREEN_MASK, FI_RGBA_BLUE_MASK, TRUE);
    const std::shared_ptr<FIBITMAP> packed(FreeImage_ConvertTo24Bits(full), FreeImage_Unload);
    FreeImage_Unload(full);
    return packed;
}

Row opening(const char* extension, int format, double must, double goal)
{
    return {"files",
            std::string("open ") + extension,
            must,
            goal,
            [=](Size size) {
                const QString path = pathOf("open", extension);
                save(picture(size), path, extension);
                return Timing{[=] { load(path, extension); },
                              [=] {
                                  const Library library;
                                  FreeImage_Unload(FreeImage_Load(FREE_IMAGE_FORMAT(format), path.toUtf8(), 0));
                              }};
            },
            "FreeImage_Load"};
}

Row saving(const char* extension, int format, int flags, double must, double goal)
{
    return {"files",
            std::string("save ") + extension,
            must,
            goal,
            [=](Size size) {
                const QString path = pathOf("save", extension), reference = pathOf("reference", extension);
                const auto dib = bitmapOf(picture(size));
                return Timing{[=] { save(picture(size), path, extension); },
                              [=] {
                                  const Library library;
                                  FreeImage_Save(FREE_IMAGE_FORMAT(format), dib.get(), reference.toUtf8(), flags);
                              }};
            },
            "FreeImage_Save"};
}

Timing jpegToBitmap(Size size)
{
    const QString from = pathOf("photo", "jpg"), to = pathOf("photo", "bmp");
    save(picture(size), from, "jpg");
    return {[=] { save(load(from, "jpg"), to, "bmp"); }, {}};
}

// Opening a bitmap takes FreeImage as long as about seven copies of the picture, saving it five, a JPEG about twenty.
// clang-format off
const Rows rows{
    opening("bmp", FIF_BMP, 1.7, 1.35),
    opening("tga", FIF_TARGA, 1.7, 1.35),
    opening("jpg", FIF_JPEG, 1.4, 1.1),
    saving("bmp", FIF_BMP, 0, 2.0, 1.4),
    saving("tga", FIF_TARGA, 0, 2.0, 1.4),
    saving("jpg", FIF_JPEG, JPEG_QUALITYSUPERB, 1.2, 1.0),
    saving("png", FIF_PNG, 0, 1.2, 1.0),
    saving("tif", FIF_TIFF, 0, 1.2, 1.0),
    {"files", "jpg to bmp, the whole road", 1000, 500, jpegToBitmap, "ms"},
};
// clang-format on

} // namespace
} // namespace velara::bench
