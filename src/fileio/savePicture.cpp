#include "fileio/savePicture.h"
#include "fileio/formats.h"
#include "fileio/writers/GifWriter.h"
#include "fileio/writers/PCX.h"
#include "fileio/writers/pictureFiles.h"
#include "pixels/RuntimeError.h"
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
    const SaveWishes& wishes;
    const std::function<bool()> goesOn; // false once it was
};

/// Failed, with the system's error, where it can't be written.
SaveReport writeAs(const Job& job, bool (*write)(const Job& job, OutputFile& file), bool keepsRemains = false)
{
    OutputFile file(job.fileName, job.links);
    file.setGoOn(job.goesOn);
    file.setAwaitRow(job.wishes.awaitRow);
    if (file.isOpen() && write(job, file) && file.awaitRow(job.bits.height()) && job.goesOn() && file.commit())
        return {SaveResult::Written};
    SaveReport report{SaveResult::Failed};
    report.error = file.error();
    if (keepsRemains && job.wishes.keepsRemains && job.goesOn()) file.keepRemains();
    return report;
}

// --- Formats whose failure is told

bool png(const Job& job, OutputFile& file) { return writePng(job.bits, kUsualEffort, file, job.camera); }
bool jpeg(const Job& job, OutputFile& file)
{
    return writeJpeg(job.bits, job.wishes.quality.value_or(kSuperbJpeg), file, job.camera);
}
bool bmp(const Job& job, OutputFile& file) { return writeBmp(job.bits, file); }
bool tiff(const Job& job, OutputFile& file) { return writeTiff(job.bits, file, job.camera); }
bool targa(const Job& job, OutputFile& file) { return writeTga(job.bits, file); }
// Without a loss that an eye would find.
bool webp(const Job& job, OutputFile& file)
{
    return writeWebp(job.bits, {job.wishes.quality.value_or(95)}, file, job.camera);
}
bool avif(const Job& job, OutputFile& file)
{
    return writeAvif(job.bits, job.wishes.quality.value_or(90), file, job.camera);
}
bool jxl(const Job& job, OutputFile& file)
{
    return writeJxl(job.bits, job.wishes.quality.value_or(90), file, job.camera);
}
bool pixmap(const Job& job, OutputFile& file) { return writePpm(job.bits, file); }
bool gif(const Job& job, OutputFile& file)
try {
    const auto goOn = [&](int) {
        if (!job.goesOn()) throw Cancelled();
    };
    return writeGif(reduceToBestColours(job.bits, 256, goOn), file, false, 1);
} catch (const Cancelled&) {
    return false;
}

template <auto write, bool keepsRemains = false> SaveReport told(const Job& job)
{
    const SaveReport report = writeAs(job, write, keepsRemains);
    if (report.result == SaveResult::Written) return report;
    return {SaveResult::FailedAndTold, "Internal Error",
            "There was an error while saving! Please Restart Velara's Studio", Icon::Critical, report.error};
}

// --- The others

/// Pictures always have 24 bits here, so a portable anymap is always a pixmap, whatever was typed.
SaveReport saveAnymap(const Job& job)
{
    Job real = job;
    real.fileName += "ppm";
    const SaveReport report = writeAs(real, pixmap);
    if (report.result != SaveResult::Written) return report;
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

SaveReport saveGif(const Job& job) { return writeAs(job, gif); }

SaveReport savePcx(const Job& job)
{
    PCX writer;
    SaveReport report;
    report.result =
        writer.SavePCXinFile(job.fileName, job.bits, true, job.goesOn) ? SaveResult::Written : SaveResult::Failed;
    report.error = writer.error;
    return report;
}

SaveReport refuseIcon(const Job&)
{
    return {SaveResult::Refused, kProgramName, "This facility is currently turned Off!", Icon::Information};
}

struct Writer {
    std::string_view extension; // "pnm": the family of the portable anymaps
    SaveReport (*save)(const Job& job);
    bool hasQuality = false;
    bool isInOrder = false; // it asks for each row, from the top, before it reads it
};

// clang-format off
constexpr Writer kWriters[] = {
    {"png", told<png>, false, true},
    {"gif", saveGif},
    {"jpg", told<jpeg, true>, true, true},
    {"ico", refuseIcon},
    {"bmp", told<bmp>},
    {"tif", told<tiff>, false, true},
    {"pcx", savePcx},
    {"pnm", saveAnymap, false, true},
    {"tga", told<targa>},
    {"webp", saveWebp, true},
    {"avif", told<avif>, true},
    {"jxl", told<jxl>, true},
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

bool hasQuality(const QString& extension)
{
    const std::string known = extension.toLower().toStdString();
    const Writer* writer = writerOf(known);
    return writer && writer->hasQuality;
}

SaveReport writePicture(const Bits& bits, const QString& FileName, const QString& Ext, OutputFile::Links links,
                        const CameraData& camera, const SaveWishes& wishes)
try {
    if (bits.isNull()) return {SaveResult::NotWritten};
    bool stopped = false;
    const auto goesOn = [&] { return !(stopped = stopped || (wishes.goOn && !wishes.goOn())); };
    const Writer* writer = writerOf(Ext.toLower().toStdString());
    if (!writer) return {SaveResult::NotWritten};
    if (wishes.awaitRow && !writer->isInOrder && !wishes.awaitRow(bits.height())) return {SaveResult::Failed};
    const SaveReport report = writer->save({bits, FileName, links, camera, wishes, goesOn});
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
