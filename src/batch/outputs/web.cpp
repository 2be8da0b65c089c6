#include "batch/outputs/web.h"
#include "fileio/web/webFile.h"
#include <QTemporaryDir>

namespace velara {

namespace {

template <class Row> QString entriesOf(std::span<const Row> rows)
{
    QStringList list;
    for (const Row& row : rows) list += u'"' + QLatin1String(row.entry) + u'"';
    return list.join(QStringLiteral(", "));
}

/// The index of an entry by its text, ignoring case.
template <class Row> int entryAt(const QString& option, const QString& text, std::span<const Row> rows)
{
    for (std::size_t i = 0; i < rows.size(); ++i)
        if (text.compare(QLatin1String(rows[i].entry), Qt::CaseInsensitive) == 0) return static_cast<int>(i);
    throw badArgument(QStringLiteral("%1: there is no entry \"%2\"; there are %3").arg(option, text, entriesOf(rows)));
}

std::int64_t numberOf(const QString& option, const QString& text, std::int64_t most)
{
    bool isNumber = false;
    const std::int64_t number = text.toLongLong(&isNumber);
    if (isNumber && number >= 0 && number <= most) return number;
    throw badArgument(QStringLiteral("%1: \"%2\" is no whole number from 0 to %3").arg(option, text).arg(most));
}

void chooseMap(WebOrder& order, const QString& option, const QString& text)
{
    std::vector<WebEntry> offered;
    for (const int i : order.settings.maps()) offered.push_back(webMaps()[std::size_t(i)]);
    if (offered.empty())
        throw badArgument(
            QStringLiteral("%1: %2 has no palette").arg(option, QLatin1String(order.settings.row().entry)));
    const int at = entryAt(option, text, std::span<const WebEntry>(offered));
    order.settings.chooseMap(order.settings.maps()[std::size_t(at)]);
}

void chooseQuality(WebOrder& order, const QString& option, const QString& text)
{
    constexpr int kMostQuality = 32767;
    bool isNumber = false;
    text.toLongLong(&isNumber);
    order.settings.JpegQuality = isNumber
                                     ? static_cast<int>(numberOf(option, text, kMostQuality))
                                     : webJpegQualities()[std::size_t(entryAt(option, text, webJpegQualities()))].word;
}

struct OptionRow {
    const char* name;
    bool takesValue;
    void (*take)(WebOrder& order, const QString& option, const QString& value);
};
/// In the order of evaluation, whatever the order on the command line: a palette decides about dithers.
constexpr OptionRow kOptions[] = {
    {"--web", true,
     [](WebOrder& o, const QString& name, const QString& v) {
         o.settings.choosePreset(entryAt(name, v, webPresets()), false);
     }},
    {"--interlaced", false, [](WebOrder& o, const QString&, const QString&) { o.settings.setInterlaced(true); }},
    {"--map", true, chooseMap},
    {"--dither", true,
     [](WebOrder& o, const QString& name, const QString& v) {
         o.settings.chooseDither(entryAt(name, v, webDithers()));
     }},
    {"--mode", true,
     [](WebOrder& o, const QString& name, const QString& v) {
         o.settings.ColorMode = webModes()[std::size_t(entryAt(name, v, webModes()))].word;
     }},
    {"--flip-h", false, [](WebOrder& o, const QString&, const QString&) { o.settings.flipH = true; }},
    {"--flip-v", false, [](WebOrder& o, const QString&, const QString&) { o.settings.flipV = true; }},
    {"--invert", false, [](WebOrder& o, const QString&, const QString&) { o.settings.invert = true; }},
    {"--quality", true, chooseQuality},
    {"--max-bytes", true,
     [](WebOrder& o, const QString& name, const QString& v) {
         if (!o.settings.fitsASize())
             throw badArgument(
                 name + QStringLiteral(": only GIF, 8-bit PNG and formats with a quality can be fitted to a size"));
         o.maxBytes = numberOf(name, v, std::int64_t{1} << 40);
     }},
};

} // namespace

std::optional<bool> webOptionTakesValue(const QString& name)
{
    const auto* row = std::ranges::find_if(kOptions, [&](const OptionRow& o) { return name == QLatin1String(o.name); });
    return row == std::end(kOptions) ? std::nullopt : std::optional(row->takesValue);
}

std::optional<WebOrder> webOrder(const WebOptions& options)
{
    if (options.empty()) return {};
    const bool isWeb = std::ranges::any_of(options, [](const auto& o) { return o.first == u"--web"; });
    if (!isWeb) throw badArgument(options.front().first + QStringLiteral(": this goes with --web alone"));
    WebOrder order;
    for (const OptionRow& row : kOptions)
        for (const auto& [name, value] : options)
            if (name == QLatin1String(row.name)) row.take(order, name, value);
    return order;
}

QString writeWeb(const Bits& picture, const WebOrder& order, const CameraData& camera, const QString& output)
{
    WebSettings settings = order.settings;
    settings.camera = camera;
    if (order.maxBytes) {
        const QTemporaryDir folder;
        const auto fitted = fittedSettings(picture, settings, *order.maxBytes, folder.filePath("tried"));
        if (!fitted)
            throw fileFault(QStringLiteral("%1 can't be written: no %2 makes it as small as %3 bytes")
                                .arg(output, settings.hasQuality() ? "quality" : "number of colors")
                                .arg(*order.maxBytes));
        settings = *fitted;
    }
    const WebFile file = writeWebFile(picture, settings, output, OutputFile::Links::Follow);
    if (file.outcome == WebFile::Outcome::NoBitmap)
        throw fileFault(output +
                        QStringLiteral(" can't be written: the current format cannot be applied to the image"));
    if (file.outcome != WebFile::Outcome::Written) throw fileFault(output + QStringLiteral(" can't be written"));
    const QString size = settings.sizeText(file.bytes).value_or(QString::number(file.bytes / 1024) + " KB");
    return settings.typeText() + QStringLiteral(", ") + settings.depthText() + QStringLiteral(", ") + size;
}

} // namespace velara
