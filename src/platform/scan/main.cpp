// velara-scan: accesses the scanners, so that a device or a driver that hangs or crashes affects only this process.
// Started by SaneScanner, which reads the lines it prints:
//
//   velara-scan list                          source<TAB>device<TAB>title, one per scanner
//   velara-scan describe DEVICE               key<TAB>value..., see describe()
//   velara-scan acquire DEVICE MODE RESOLUTION LEFT TOP RIGHT BOTTOM FILE
//                                             percent<TAB>n meanwhile; FILE is a bmp. Empty MODE, 0: the current one.
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

/// Prints modes<TAB>each, mode<TAB>present, resolutions<TAB>each or range<TAB>least<TAB>most, resolution<TAB>present,
/// bed<TAB>width<TAB>height in millimetres; each only if the device has it.
void describe(const Device& device)
{
    if (const SANE_Int mode = device.option(SANE_NAME_SCAN_MODE)) {
        QStringList modes{"modes"};
        const SANE_Option_Descriptor* d = device.descriptor(mode);
        if (d->constraint_type == SANE_CONSTRAINT_STRING_LIST)
            for (const SANE_String_Const* word = d->constraint.string_list; *word; ++word) modes << *word;
        print(modes);
        print({"mode", device.text(mode)});
    }
    if (const SANE_Int resolution = device.option(SANE_NAME_SCAN_RESOLUTION)) {
        const SANE_Option_Descriptor* d = device.descriptor(resolution);
        const auto value = [d](SANE_Word w) { return number(d->type == SANE_TYPE_FIXED ? SANE_UNFIX(w) : w); };
        if (d->constraint_type == SANE_CONSTRAINT_RANGE)
            print({"range", value(d->constraint.range->min), value(d->constraint.range->max)});
        if (d->constraint_type == SANE_CONSTRAINT_WORD_LIST) {
            QStringList values{"resolutions"};
            for (SANE_Int i = 1; i <= d->constraint.word_list[0]; ++i) values << value(d->constraint.word_list[i]);
            print(values);
        }
        print({"resolution", number(device.number(resolution))});
    }
    const SANE_Int right = device.option(SANE_NAME_SCAN_BR_X), bottom = device.option(SANE_NAME_SCAN_BR_Y);
    const auto most = [&](SANE_Int option) {
        const SANE_Option_Descriptor* d = option ? device.descriptor(option) : nullptr;
        if (!d || d->unit != SANE_UNIT_MM || d->constraint_type != SANE_CONSTRAINT_RANGE) return 0.0;
        return d->type == SANE_TYPE_FIXED ? SANE_UNFIX(d->constraint.range->max) : d->constraint.range->max;
    };
    if (most(right) > 0 && most(bottom) > 0) print({"bed", number(most(right)), number(most(bottom))});
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

bool written(const QImage& picture, int descriptor)
{
    QFile file;
    return file.open(descriptor, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle) && picture.save(&file, "BMP") &&
           file.flush();
}

void acquire(const Device& device, const QStringList& arguments, int file)
{
    const QString& mode = arguments[0];
    if (const SANE_Int option = device.option(SANE_NAME_SCAN_MODE); option && !mode.isEmpty())
        device.setText(option, mode);
    if (const SANE_Int option = device.option(SANE_NAME_SCAN_RESOLUTION); option && arguments[1].toInt() > 0)
        device.setNumber(option, arguments[1].toInt());
    // The far corner first: the near one may lie beyond its previous position.
    constexpr struct {
        const char* name;
        int argument;
    } kCorners[] = {
        {SANE_NAME_SCAN_BR_X, 4}, {SANE_NAME_SCAN_BR_Y, 5}, {SANE_NAME_SCAN_TL_X, 2}, {SANE_NAME_SCAN_TL_Y, 3}};
    const bool hasArea = arguments[4].toDouble() > 0 && arguments[5].toDouble() > 0;
    for (const auto& corner : kCorners)
        if (const SANE_Int option = device.option(corner.name); option && hasArea)
            device.setNumber(option, arguments[corner.argument].toDouble());

    Frames frames;
    scanning = device.handle();
    std::signal(SIGTERM, [](int) { sane_cancel(scanning); });
    constexpr int kMostPasses = 3;
    for (int pass = 0; pass < kMostPasses && !readFrame(device, frames, pass); ++pass) {
    }
    std::signal(SIGTERM, SIG_DFL);
    sane_cancel(device.handle());
    const QImage picture = frames.picture();
    if (picture.isNull()) throw ScanFailure("the scanner gave no picture");
    if (!written(picture.convertToFormat(QImage::Format_RGB888), file))
        throw ScanFailure("the picture could not be written");
}

struct Order {
    const char* what;
    qsizetype arguments;
    void (*run)(const QStringList& arguments, int file);
};
constexpr Order kOrders[] = {
    {"list", 0, [](const QStringList&, int) { list(); }},
    {"describe", 1, [](const QStringList& a, int) { describe(Device(a[0].toUtf8().constData())); }},
    {"acquire", 8, [](const QStringList& a, int file) { acquire(Device(a[0].toUtf8().constData()), a.mid(1), file); }},
};

/// Returns the exit status. The file is opened before the cage closes, the library is loaded afterwards.
int run(const QStringList& arguments)
try {
    const auto* order = std::ranges::find_if(kOrders, [&](const Order& row) {
        return arguments.value(0) == row.what && arguments.size() == row.arguments + 1;
    });
    if (order == std::end(kOrders)) return 2;
    const int file = order->arguments == 8 ? newFile(arguments[8]) : -1;
    if (order->arguments == 8 && file < 0) throw ScanFailure("the picture could not be written");
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
