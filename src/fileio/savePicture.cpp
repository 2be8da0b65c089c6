#include "fileio/savePicture.h"
#include "fileio/formats.h"
#include "fileio/writers/GifWriter.h"
#include "fileio/writers/PCX.h"
#include "fileio/writers/pictureFiles.h"
#include "reduce/bestColours.h"
#include <algorithm>
#include <iterator>
#include <new>

namespace velara {

namespace {

struct Job {
    const Bits& bits;
    QString fileName;
    OutputFile::Links links;
    const CameraData& camera;
    const std::function<bool()> goesOn; // false once it was
};

SaveReport reportOf(bool written) { return {written ? SaveResult::Written : SaveResult::Failed}; }

bool writeAs(const Job& job, bool (*write)(const Job& job, OutputFile& file), bool keepsRemains = false)
{
    OutputFile file(job.fileName, job.links);
    file.setGoOn(job.goesOn);
    if (file.isOpen() && write(job, file) && job.goesOn() && file.commit()) return true;
    if (keepsRemains && job.goesOn()) file.keepRemains();
    return false;
}

// --- Formats whose failure is told

bool png(const Job& job, OutputFile& file) { return writePng(job.bits, kUsualEffort, file, job.camera); }
bool jpeg(const Job& job, OutputFile& file) { return writeJpeg(job.bits, kSuperbJpeg, file, job.camera); }
bool bmp(const Job& job, OutputFile& file) { return writeBmp(job.bits, file); }
bool tiff(const Job& job, OutputFile& file) { return writeTiff(job.bits, file, job.camera); }
bool targa(const Job& job, OutputFile& file) { return writeTga(job.bits, file); }
// Without a loss that an eye would find.
bool webp(const Job& job, OutputFile& file) { return writeWebp(job.bits, {95}, file, job.camera); }
bool avif(const Job& job, OutputFile& file) { return writeAvif(job.bits, 90, file, job.camera); }
bool jxl(const Job& job, OutputFile& file) { return writeJxl(job.bits, 90, file, job.camera); }
bool pixmap(const Job& job, OutputFile& file) { return writePpm(job.bits, file); }
bool gif(const Job& job, OutputFile& file)
{
    struct Unwanted {};
    try {
        const auto goOn = [&](int) {
            if (!job.goesOn()) throw Unwanted();
        };
        return writeGif(reduceToBestColours(job.bits, 256, goOn), file, false, 1);
    } catch (const Unwanted&) {
        return false;
    }
}

template <auto write, bool keepsRemains = false> SaveReport told(const Job& job)
{
    if (writeAs(job, write, keepsRemains)) return {SaveResult::Written};
    return {SaveResult::FailedAndTold, "Internal Error",
            "There was an error while saving! Please Restart Velara's Studio", Icon::Critical};
}

// --- The others

/// Pictures always have 24 bits here, so a portable anymap is always a pixmap, whatever was typed.
SaveReport saveAnymap(const Job& job)
{
    Job real = job;
    real.fileName += "ppm";
    if (!writeAs(real, pixmap)) return {SaveResult::Failed};
    return {
        SaveResult::Written, "Collection of ASCII based bitmap",
        "PBM, PGM and PPM: If the bitmap has a bit depth of 1, the file is saved as a PBM file. If the bitmap has a "
        "bit depth of 8, the file is saved as a PGM file. If the bitmap has a bit depth of 24, the file is saved as "
        "a PPM file. Other bit depths are not supported. The file you requested is saved as 24-bit True Color (.ppm) "
        "format.",
        Icon::Information};
}

SaveReport saveWebp(const Job& job)
{
    if (fitsWebp(job.bits)) return told<webp>(job);
    return {SaveResult::FailedAndTold, kProgramName, "A WebP picture has at most 16383 pixels a side.",
            Icon::Exclamation};
}

SaveReport saveGif(const Job& job) { return reportOf(writeAs(job, gif)); }

SaveReport savePcx(const Job& job) { return reportOf(PCX().SavePCXinFile(job.fileName, job.bits, true, job.goesOn)); }

SaveReport refuseIcon(const Job&)
{
    return {SaveResult::Refused, kProgramName, "This facility is currently turned Off!", Icon::Information};
}

struct Writer {
    std::string_view extension; // "pnm": the family of the portable anymaps
    SaveReport (*save)(const Job& job);
};

// clang-format off
constexpr Writer kWriters[] = {
    {"png", told<png>},
    {"gif", saveGif},
    {"jpg", told<jpeg, true>},
    {"ico", refuseIcon},
    {"bmp", told<bmp>},
    {"tif", told<tiff>},
    {"pcx", savePcx},
    {"pnm", saveAnymap},
    {"tga", told<targa>},
    {"webp", saveWebp},
    {"avif", told<avif>},
    {"jxl", told<jxl>},
};
// clang-format on

constexpr const Writer* writerOf(std::string_view extension)
{
    const auto* writer = std::ranges::find(kWriters, usualExtension(extension), &Writer::extension);
    return writer == std::end(kWriters) ? nullptr : writer;
}
static_assert(std::ranges::all_of(kFormats,
                                  [](const Format& f) {
                                      return (f.saving == Saving::Directly || f.saving == Saving::Refused) ==
                                             (writerOf(f.extension) != nullptr);
                                  }),
              "a format that is saved without its writer: add the row to kWriters in src/fileio/savePicture.cpp");

} // namespace

SaveReport writePicture(const Bits& bits, const QString& FileName, const QString& Ext, OutputFile::Links links,
                        const CameraData& camera, const std::function<bool()>& goOn)
try {
    if (bits.isNull()) return {SaveResult::NotWritten};
    bool stopped = false;
    const auto goesOn = [&] { return !(stopped = stopped || (goOn && !goOn())); };
    const Writer* writer = writerOf(Ext.toLower().toStdString());
    if (!writer) return {SaveResult::NotWritten};
    const SaveReport report = writer->save({bits, FileName, links, camera, goesOn});
    return stopped && report.result != SaveResult::Written ? SaveReport{SaveResult::Stopped} : report;
} catch (const std::bad_alloc&) {
    return {SaveResult::Failed};
}

SaveResult savePicture(Dialogs& dialogs, const Bits& bits, const QString& FileName, const QString& Ext,
                       OutputFile::Links links)
{
    const SaveReport report = writePicture(bits, FileName, Ext, links);
    report.tell(dialogs);
    return report.result;
}

} // namespace velara
