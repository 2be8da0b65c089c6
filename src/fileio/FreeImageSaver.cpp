#include "fileio/FreeImageSaver.h"
#include <FreeImage.h>
#include <algorithm>

namespace velara {

namespace {

OutputFile& fileOf(fi_handle handle) { return *static_cast<OutputFile*>(handle); }

unsigned DLL_CALLCONV readProc(void* bytes, unsigned size, unsigned count, fi_handle handle)
{
    return size == 0 ? 0 : static_cast<unsigned>(fileOf(handle).read(bytes, std::size_t{size} * count) / size);
}

unsigned DLL_CALLCONV writeProc(void* bytes, unsigned size, unsigned count, fi_handle handle)
{
    return fileOf(handle).write(bytes, std::size_t{size} * count) ? count : 0;
}

/// The writers of PNG and TIFF ignore failed writes and would encode the rest of the picture. They are aborted by
/// throwing text, which is what FreeImage itself throws and catches.
unsigned DLL_CALLCONV writeOrThrow(void* bytes, unsigned size, unsigned count, fi_handle handle)
{
    constexpr std::size_t kHeader = 8; // written at opening, where failures are noticed and TIFF would leak
    if (writeProc(bytes, size, count, handle) == count) return count;
    if (std::size_t{size} * count > kHeader) throw "the file can't be written";
    return 0;
}

int DLL_CALLCONV seekProc(fi_handle handle, long offset, int origin)
{
    return fileOf(handle).seek(offset, origin) ? 0 : -1;
}

long DLL_CALLCONV tellProc(fi_handle handle) { return fileOf(handle).tell(); }

/// A file of which only the length is kept.
struct Length {
    std::int64_t at = 0, end = 0;
    const std::function<bool()>& goOn;
};
Length& lengthOf(fi_handle handle) { return *static_cast<Length*>(handle); }

unsigned DLL_CALLCONV countProc(void*, unsigned size, unsigned count, fi_handle handle)
{
    Length& length = lengthOf(handle);
    if (length.goOn && !length.goOn()) return 0;
    length.at += std::int64_t{size} * count;
    length.end = std::max(length.end, length.at);
    return count;
}

int DLL_CALLCONV seekLengthProc(fi_handle handle, long offset, int origin)
{
    Length& length = lengthOf(handle);
    length.at = offset + (origin == SEEK_CUR ? length.at : origin == SEEK_END ? length.end : 0);
    return 0;
}

long DLL_CALLCONV tellLengthProc(fi_handle handle) { return lengthOf(handle).at; }

} // namespace

bool saveDib(FIBITMAP* dib, int format, int flags, OutputFile& file)
{
    const bool isDeaf = format == FIF_PNG || format == FIF_TIFF;
    FreeImageIO io{readProc, isDeaf ? writeOrThrow : writeProc, seekProc, tellProc};
    try {
        return dib && file.isOpen() &&
               FreeImage_SaveToHandle(static_cast<FREE_IMAGE_FORMAT>(format), dib, &io, &file, flags);
    } catch (const char*) {
        return false;
    }
}

std::optional<std::int64_t> savedBytes(FIBITMAP* dib, int format, int flags, const std::function<bool()>& goOn)
{
    Length length{.goOn = goOn};
    FreeImageIO io{[](void*, unsigned, unsigned, fi_handle) { return 0U; }, countProc, seekLengthProc, tellLengthProc};
    if (!dib || !FreeImage_SaveToHandle(static_cast<FREE_IMAGE_FORMAT>(format), dib, &io, &length, flags)) return {};
    return length.end;
}

} // namespace velara
