#include "fileio/decode/libraries/Gif.h"
#include "fileio/decode/libraries/metadata.h"
#include <algorithm>
#include <cstring>

namespace velara::decode {

GifPlaces::GifPlaces(FileBytes& file)
{
    constexpr std::size_t kScreen = 13, kDescriptor = 10;
    enum Block : std::uint32_t { Extension = 0x21, Image = 0x2c };
    const auto palette = [&](std::size_t flagsAt) { // in bytes
        const std::uint32_t flags = file.byte(flagsAt);
        return flags & 0x80 ? std::size_t{3} << ((flags & 7) + 1) : 0;
    };
    for (std::size_t at = kScreen + palette(kScreen - 3); at < file.size();) {
        const std::size_t begin = at;
        const std::uint32_t block = file.byte(at);
        if (block != Extension && block != Image) return; // the end of the pictures, or damage
        at += block == Extension ? 2 : kDescriptor + palette(at + kDescriptor - 1) + 1;
        const bool isFrame = block == Image && at <= file.size();
        std::size_t last = at; // the last piece
        for (; at < file.size() && file.byte(at) != 0; at += 1 + file.byte(at)) last = at;
        if (at > file.size() && last < file.size())
            file.bytes()[last] = static_cast<std::uint8_t>(file.size() - last - 1);
        if (isFrame) frames.push_back({begin, at + 1});
        isCutOff = isFrame && at >= file.size();
        ++at;
    }
}

Gif::Gif(const FileBytes& file) : file_(file)
{
    // Behind the end stand zeros, which end whatever is under way.
    const auto read = [](GifFileType* gif, GifByteType* to, int count) {
        auto& self = *static_cast<Gif*>(gif->UserData);
        const auto wanted = static_cast<std::size_t>(std::max(count, 0));
        const std::size_t part = std::min(wanted, self.file_.size() - std::min(self.at_, self.file_.size()));
        if (part > 0) std::memcpy(to, self.file_.bytes().data() + self.at_, part);
        std::memset(to + part, 0, wanted - part);
        self.at_ += part;
        return count;
    };
    gif_ = DGifOpen(this, read, nullptr);
    if (!gif_) throw Damage("no picture");
}

bool Gif::nextFrame()
{
    control_ = {};
    control_.TransparentColor = NO_TRANSPARENT_COLOR;
    for (;;) {
        GifRecordType record{};
        if (DGifGetRecordType(gif_, &record) != GIF_OK) return false;
        if (record == IMAGE_DESC_RECORD_TYPE) return DGifGetImageHeader(gif_) == GIF_OK;
        if (record != EXTENSION_RECORD_TYPE || !takeExtension()) return false;
    }
}

bool Gif::takeExtension()
{
    int code = 0;
    GifByteType* piece = nullptr; // its length, and as many bytes
    std::string text;
    if (DGifGetExtension(gif_, &code, &piece) != GIF_OK) return false;
    if (piece && code == GRAPHICS_EXT_FUNC_CODE) DGifExtensionToGCB(piece[0], piece + 1, &control_);
    while (piece) {
        if (code == COMMENT_EXT_FUNC_CODE && text.size() <= kMostComment)
            text.append(reinterpret_cast<const char*>(piece) + 1, piece[0]);
        if (DGifGetExtensionNext(gif_, &piece) != GIF_OK) return false;
    }
    if (comment_.empty() && text.size() <= kMostComment) comment_ = text;
    return true;
}

bool Gif::read(std::span<GifPixelType> indices)
{
    // Of a row without pixels the library would read a whole one.
    return indices.empty() || DGifGetLine(gif_, indices.data(), static_cast<int>(indices.size())) == GIF_OK;
}

} // namespace velara::decode
