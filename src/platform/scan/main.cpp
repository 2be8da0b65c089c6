// velara-scan: accesses the scanners, so that a device or a driver that hangs or crashes affects only this process.
// Started by SaneScanner, which reads the lines it prints:
//
//   velara-scan list                          source<TAB>device<TAB>title, one per scanner
//   velara-scan describe DEVICE               key<TAB>value..., see describe()
//   velara-scan acquire DEVICE FEED MODE RESOLUTION LEFT TOP RIGHT BOTTOM WHAT FILE
//                                             percent<TAB>n meanwhile, and page when FILE, a bmp, has one; a line on
//                                             the standard input is the sign that it may be replaced. WHAT: page, pages
//                                             (all that are in the feeder) or preview. Empty, 0: the current one.
//
// Status 0: done. 1: the last line is failed<TAB>reason; an empty FILE may be left. SIGTERM ends a scan cleanly.
#include "platform/scan/Cage.h"
#include "platform/scan/Device.h"
#include "platform/scan/Frames.h"
#include <QCoreApplication>
#include <QFile>
#include <algorithm>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <sane/saneopts.h>
#include <sys/prctl.h>
#include <vector>

namespace velara {

namespace {

SANE_Handle scanning = nullptr; // cancelled by SIGTERM

void print(const QStringList& words)
{
    std::puts(words.join('\t').toUtf8().constData());
    std::fflush(stdout);
}

QString number(double value) { return QString::number(value, 'g', 8); }

void list()
{
    const SANE_Device** devices = nullptr;
    check(sane_get_devices(&devices, SANE_FALSE));
    for (; devices && *devices; ++devices) {
        const SANE_Device& d = **devices;
        print({"source", QString::fromUtf8(d.name),
               QString("%1 %2 (%3)")
                   .arg(QString::fromUtf8(d.vendor), QString::fromUtf8(d.model), QString::fromUtf8(d.type))});
    }
}

/// The words of a list option; a single empty one without such an option.
QStringList wordsOf(const Device& device, const char* name)
{
    const SANE_Int option = device.option(name);
    const SANE_Option_Descriptor* d = option ? device.descriptor(option) : nullptr;
    if (!d || d->constraint_type != SANE_CONSTRAINT_STRING_LIST) return {""};
    QStringList words;
    for (const SANE_String_Const* word = d->constraint.string_list; *word; ++word) words << *word;
    return words;
}

QString present(const Device& device, const char* name)
{
    const SANE_Int option = device.option(name);
    return option ? device.text(option) : QString();
}

/// An empty word sets nothing.
void set(const Device& device, const char* name, const QString& word)
{
    if (const SANE_Int option = device.option(name); option && !word.isEmpty()) device.setText(option, word);
}

SANE_Int resolutionOf(const Device& device)
{
    const SANE_Int both = device.option(SANE_NAME_SCAN_RESOLUTION);
    return both ? both : device.option(SANE_NAME_SCAN_X_RESOLUTION);
}

void describeResolution(const Device& device, SANE_Int option)
{
    const SANE_Option_Descriptor* d = device.descriptor(option);
    const auto value = [d](SANE_Word w) { return number(d->type == SANE_TYPE_FIXED ? SANE_UNFIX(w) : w); };
    if (d->constraint_type == SANE_CONSTRAINT_RANGE) {
        const SANE_Range& range = *d->constraint.range;
        print({"range", value(range.min), value(range.max), value(range.quant)});
    }
    if (d->constraint_type == SANE_CONSTRAINT_WORD_LIST) {
        QStringList values{"resolutions"};
        for (SANE_Int i = 1; i <= d->constraint.word_list[0]; ++i) values << value(d->constraint.word_list[i]);
        print(values);
    }
    print({"resolution", number(device.number(option))});
}

/// Where a name says so: there is no other sign of one.
bool isFeeder(const QString& feed)
{
    return feed.contains("ADF", Qt::CaseInsensitive) || feed.contains("feeder", Qt::CaseInsensitive);
}

/// What the device takes with the present feed and mode.
void describeChoice(const Device& device, const QString& feed, const QString& mode, bool isUsual)
{
    print({"choice", feed, mode, isFeeder(feed) ? "1" : "0", isUsual ? "1" : "0"});
    if (const SANE_Int resolution = resolutionOf(device)) describeResolution(device, resolution);
    const SANE_Int right = device.option(SANE_NAME_SCAN_BR_X), bottom = device.option(SANE_NAME_SCAN_BR_Y);
    const auto most = [&](SANE_Int option) {
        const SANE_Option_Descriptor* d = option ? device.descriptor(option) : nullptr;
        if (!d || d->unit != SANE_UNIT_MM || d->constraint_type != SANE_CONSTRAINT_RANGE) return 0.0;
        return d->type == SANE_TYPE_FIXED ? SANE_UNFIX(d->constraint.range->max) : d->constraint.range->max;
    };
    if (most(right) > 0 && most(bottom) > 0) print({"bed", number(most(right)), number(most(bottom))});
}

/// Prints choice<TAB>feed<TAB>mode<TAB>feeder<TAB>usual for each combination, and below it resolutions<TAB>each or
/// range<TAB>least<TAB>most<TAB>step, resolution<TAB>present, bed<TAB>width<TAB>height in millimetres; each only if the
/// device has it. A choice changes what else there is: so all of them are tried.
void describe(const Device& device)
{
    const QString usualFeed = present(device, SANE_NAME_SCAN_SOURCE), usualMode = present(device, SANE_NAME_SCAN_MODE);
    for (const QString& feed : wordsOf(device, SANE_NAME_SCAN_SOURCE)) {
        set(device, SANE_NAME_SCAN_SOURCE, feed);
        for (const QString& mode : wordsOf(device, SANE_NAME_SCAN_MODE)) {
            set(device, SANE_NAME_SCAN_MODE, mode);
            describeChoice(device, feed, mode,
                           (feed.isEmpty() || feed == usualFeed) && (mode.isEmpty() || mode == usualMode));
        }
    }
}

FrameFormat formatOf(const SANE_Parameters& p)
{
    FrameFormat format;
    format.channel = p.format >= SANE_FRAME_RED ? p.format - SANE_FRAME_RED : -1;
    format.samples = p.format == SANE_FRAME_RGB ? 3 : 1;
    format.depth = p.depth;
    format.bytesPerLine = p.bytes_per_line;
    format.width = p.pixels_per_line;
    return format;
}

/// Reads one frame into the picture. True when it was the last.
bool readFrame(const Device& device, Frames& frames, int pass)
{
    check(sane_start(device.handle()));
    SANE_Parameters p{};
    check(sane_get_parameters(device.handle(), &p));
    if (p.format > SANE_FRAME_BLUE || !frames.begin(formatOf(p))) throw ScanFailure("unknown kind of picture");
    const double whole = double(p.bytes_per_line) * p.lines * (p.format >= SANE_FRAME_RED ? 3 : 1);
    double got = double(p.bytes_per_line) * p.lines * pass;
    std::vector<SANE_Byte> buffer(64 * 1024);
    for (int shown = 0;;) {
        SANE_Int length = 0;
        const SANE_Status status = sane_read(device.handle(), buffer.data(), SANE_Int(buffer.size()), &length);
        if (status == SANE_STATUS_EOF) return p.last_frame;
        check(status);
        if (!frames.add({buffer.data(), std::size_t(length)})) throw ScanFailure("the picture is too large");
        got += length;
        const int percent = p.lines > 0 ? int(std::min(100.0, 100 * got / whole)) : 0;
        if (percent != std::exchange(shown, percent)) print({"percent", QString::number(percent)});
    }
}

/// Creates a file readable by the user only; an existing link is not followed. -1: it can't be made.
int newFile(const QString& path)
{
    QFile::remove(path);
    return open(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
}

/// Replaces what the file contains.
bool written(const QImage& picture, int descriptor)
{
    QFile file;
    return ftruncate(descriptor, 0) == 0 && lseek(descriptor, 0, SEEK_SET) == 0 &&
           file.open(descriptor, QIODevice::WriteOnly, QFileDevice::DontCloseHandle) && picture.save(&file, "BMP") &&
           file.flush();
}

/// The arguments of an order to acquire.
enum Argument { Feed, Mode, Resolution, LeftEdge, TopEdge, RightEdge, BottomEdge, What, Path, Arguments };

void setUp(const Device& device, const QStringList& arguments)
{
    set(device, SANE_NAME_SCAN_SOURCE, arguments[Feed]);
    set(device, SANE_NAME_SCAN_MODE, arguments[Mode]);
    if (const SANE_Int option = device.option(SANE_NAME_PREVIEW))
        device.setNumber(option, arguments[What] == "preview" ? SANE_TRUE : SANE_FALSE);
    const int resolution = arguments[Resolution].toInt();
    for (const SANE_Int option : {resolutionOf(device), device.option(SANE_NAME_SCAN_Y_RESOLUTION)})
        if (option && resolution > 0) device.setNumber(option, resolution);
    // The far corner first: the near one may lie beyond its previous position.
    constexpr struct {
        const char* name;
        Argument argument;
    } kCorners[] = {{SANE_NAME_SCAN_BR_X, RightEdge},
                    {SANE_NAME_SCAN_BR_Y, BottomEdge},
                    {SANE_NAME_SCAN_TL_X, LeftEdge},
                    {SANE_NAME_SCAN_TL_Y, TopEdge}};
    const bool hasArea = arguments[RightEdge].toDouble() > 0 && arguments[BottomEdge].toDouble() > 0;
    for (const auto& corner : kCorners)
        if (const SANE_Int option = device.option(corner.name); option && hasArea)
            device.setNumber(option, arguments[corner.argument].toDouble());
}

QImage scanPage(const Device& device)
{
    Frames frames;
    constexpr int kMostPasses = 3;
    for (int pass = 0; pass < kMostPasses && !readFrame(device, frames, pass); ++pass) {
    }
    const QImage picture = frames.picture();
    if (picture.isNull()) throw ScanFailure("the scanner gave no picture");
    return picture;
}

/// False when the feeder was empty.
bool acquirePage(const Device& device, bool isFirst, int file)
try {
    if (!written(scanPage(device).convertToFormat(QImage::Format_RGB888), file))
        throw ScanFailure("the picture could not be written");
    print({"page"});
    return true;
} catch (const ScanFailure& failure) {
    if (isFirst || failure.status != SANE_STATUS_NO_DOCS) throw;
    return false;
}

/// Waits for the line that says that the page has been read. False at the end of the lines.
bool pageIsTaken()
{
    char line[8];
    return std::fgets(line, sizeof line, stdin) != nullptr;
}

void acquire(const Device& device, const QStringList& arguments, int file)
{
    setUp(device, arguments);
    scanning = device.handle();
    std::signal(SIGTERM, [](int) { sane_cancel(scanning); });
    const bool isFeeder = arguments[What] == "pages";
    for (bool first = true; acquirePage(device, first, file) && pageIsTaken() && isFeeder; first = false) {
    }
    std::signal(SIGTERM, SIG_DFL);
    sane_cancel(device.handle());
}

struct Order {
    const char* what;
    qsizetype arguments;
    void (*run)(const QStringList& arguments, int file);
};
constexpr Order kOrders[] = {
    {"list", 0, [](const QStringList&, int) { list(); }},
    {"describe", 1, [](const QStringList& a, int) { describe(Device(a[0].toUtf8().constData())); }},
    {"acquire", 1 + Arguments,
     [](const QStringList& a, int file) { acquire(Device(a[0].toUtf8().constData()), a.mid(1), file); }},
};

/// Returns the exit status. The file is opened before the cage closes, the library is loaded afterwards.
int run(const QStringList& arguments)
try {
    const auto* order = std::ranges::find_if(kOrders, [&](const Order& row) {
        return arguments.value(0) == row.what && arguments.size() == row.arguments + 1;
    });
    if (order == std::end(kOrders)) return 2;
    const int file = order->arguments > 1 ? newFile(arguments.last()) : -1;
    if (order->arguments > 1 && file < 0) throw ScanFailure("the picture could not be written");
    if (!enterScanCage()) throw ScanFailure("the scanners' drivers could not be locked in");
    check(sane_init(nullptr, nullptr));
    order->run(arguments.mid(1), file);
    sane_exit();
    return 0;
} catch (const std::exception& failure) {
    print({"failed", QString::fromUtf8(failure.what())});
    return 1;
}

} // namespace

} // namespace velara

int main(int argc, char** argv)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL); // never without the editor
    QStringList arguments;
    for (int i = 1; i < argc; ++i) arguments << QString::fromUtf8(argv[i]);
    return velara::run(arguments);
}
