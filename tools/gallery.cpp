// velara-gallery FOLDER: runs every preset and every filter dialog on the sample picture and writes one contact sheet
// per menu. Those in no menu are on the last sheet, so that none is missing.
#include "app/menus/menus.h"
#include "commands/presets.h"
#include "pixels/images.h"
#include "seams/findRow.h"
#include "seams/text.h"
#include "tools/contactSheet.h"
#include "tools/reference/dialogTrials.h"
#include "tools/samplePicture.h"
#include <QDir>
#include <QGuiApplication>
#include <algorithm>
#include <cstdio>
#include <set>

namespace velara {

namespace {

struct SheetRow {
    const char* file;
    const char* title;
    std::vector<std::string_view> menus; // arrays of the menu tree; several become sections
    bool closeUp = false;                // a part at its own size instead of the whole: for effects on fine detail
};

// clang-format off
const SheetRow kSheets[] = {
    {"colors",      "Colors",                            {"mnuColors"}},
    {"replace",     "Colors: Replace",                   {"mnuReplace"}},
    {"swap",        "Colors: Swap",                      {"mnuSwap"}},
    {"add-colors",  "Colors: Add Colors",                {"mnuAddColors"}},
    {"filters",     "Filters",                           {"mnuFilters"}, true},
    {"light-heavy", "Filters: light, heavy and custom",  {"LUMINOUS", "EMBOSS", "CONTOUR", "DIFFUSE", "ENGRAVE", "SOFTEN", "SHARPEN", "BLUR", "NOISE", "SATURATION"}, true},
    {"add",         "Filters: Add",                      {"mnuAdd"}},
    {"effects",     "Effects",                           {"mnuEffects"}},
    {"shapes",      "Effects: Shapes",                   {"mnuShapes"}},
    {"glass",       "Effects: Glass",                    {"mnuGlass"}, true},
    {"curtain",     "Effects: Curtain",                  {"mnuCurtain"}},
};
// clang-format on

/// The sample picture after run, everything selected; the whole of it, or only the house.
template <class Function> QImage after(bool closeUp, Function run)
{
    cBitFilter filter;
    filter.setBits(samplePicture());
    filter.setBitsRegion(Region::rectangle(0, 0, filter.BitsWidth(), filter.BitsHeight()));
    run(filter);
    const QImage whole = imageOver(filter.bits()).copy();
    return closeUp ? whole.copy(70, 140, 180, 120) : whole;
}

QString plain(std::string_view caption)
{
    return text(caption).replace(QStringLiteral("&&"), QStringLiteral("+")).remove(u'&').remove(QStringLiteral(" ..."));
}

QString written(const Argument& argument)
{
    if (const auto* v = std::get_if<bool>(&argument)) return *v ? QStringLiteral("true") : QStringLiteral("false");
    if (const auto* v = std::get_if<int>(&argument))
        return *v > 0xFFFF ? QStringLiteral("0x%1").arg(*v, 0, 16) : QString::number(*v); // colours are large
    if (const auto* v = std::get_if<double>(&argument)) return QString::number(*v);
    const auto* v = std::get_if<std::string>(&argument);
    return v ? text(*v) : QString();
}

Tile tileOf(const Preset& preset, const QString& caption, bool closeUp)
{
    QStringList arguments;
    for (const Argument& argument : preset.arguments) arguments << written(argument);
    QString call = text(preset.operation);
    if (!arguments.isEmpty()) call += u'(' + arguments.join(QStringLiteral(", ")) + u')';
    const QString word = text(preset.word), detail = call == word ? word : word + QStringLiteral(": ") + call;
    return {caption, detail, after(closeUp, [&](cBitFilter& filter) {
                const Operation* operation = findOperation(preset.operation);
                operation->call(filter, preset.arguments);
            })};
}

QString banks(const FilterArgs& args)
{
    static const QString names[] = {QStringLiteral("blue"), QStringLiteral("green"), QStringLiteral("red")};
    QStringList parts;
    for (std::size_t i = 0; i < 3; ++i)
        parts << names[2 - i] + (args.kill[i]     ? QStringLiteral(" killed")
                                 : args.invert[i] ? QStringLiteral(" from inverted ") + names[args.channel[i]]
                                                  : QStringLiteral(" from ") + names[args.channel[i]]);
    return parts.join(QStringLiteral(", "));
}

QString glass(const FilterArgs& args)
{
    const auto* style = std::ranges::find_if(kGlassStyles, [&](const auto& s) { return args.style == s.style; });
    return text(style->caption) + u' ' + text(kGlassModes[args.mode]);
}

/// The dialog's settings as text.
QString describe(const FilterRow& row, const FilterArgs& args)
{
    QStringList parts;
    for (std::size_t i = 0; i < row.sliders.size(); ++i)
        if (const FilterSlider& s = row.sliders[i]; s.used())
            parts << text(s.caption) + u' ' + s.text(args.value[i] + s.centre());
    if (row.option && args.option) parts << text(row.option);
    if (has(row.extras, FilterExtra::Banks)) parts << banks(args);
    if (has(row.extras, FilterExtra::Glass)) parts << glass(args);
    if (has(row.extras, FilterExtra::Curtain)) parts << text(kCurtains[args.mode]);
    return parts.join(QStringLiteral(", "));
}

Tile tileOf(const FilterRow& row, const QString& caption, const FilterArgs& args, bool closeUp)
{
    Tile tile{caption, describe(row, args),
              after(closeUp, [&](cBitFilter& filter) { filter.setBits(row.call(filter, args)); })};
    for (std::size_t i = 0; i < 2; ++i)
        if (const Colour c = args.colour[i];
            has(row.extras, i == 0 ? FilterExtra::SourceWell : FilterExtra::TargetWell))
            tile.swatches.emplace_back(redOf(c), greenOf(c), blueOf(c));
    return tile;
}

/// Collects tiles and remembers what has been shown.
class Gallery {
  public:
    Section menu(std::string_view array, bool closeUp)
    {
        closeUp_ = closeUp;
        Section section = begin();
        std::vector<std::string_view> open;
        for (const MenuRow& row : menuRows()) {
            if (row.kind == MenuKind::Menu || row.kind == MenuKind::SubMenu) {
                open.push_back(row.array);
                if (row.array == array) section.title = plain(row.caption);
            } else if (row.kind == MenuKind::End) {
                open.pop_back();
            } else if (row.kind == MenuKind::Item && open.back() == array) {
                add(section, row.word, plain(row.caption));
            }
        }
        return section;
    }

    /// All presets and dialogs that no menu has shown.
    Section rest()
    {
        closeUp_ = false;
        Section section = begin();
        for (const Preset& preset : presets())
            if (!words_.contains(preset.word)) add(section, preset.word, text(preset.word));
        for (const FilterRow& row : filterRows())
            if (!dialogs_.contains(row.number)) addDialog(section, row, text(row.title));
        return section;
    }

  private:
    Section begin() const
    {
        const QString size = closeUp_ ? QStringLiteral("180 by 120 of 480 by 320") : QStringLiteral("480 by 320");
        return {{}, {{QStringLiteral("Sample"), size, after(closeUp_, [](cBitFilter&) {})}}};
    }

    void add(Section& section, std::string_view word, const QString& caption)
    {
        if (const Preset* preset = findRow(presets(), word, &Preset::word)) {
            section.tiles.push_back(tileOf(*preset, caption, closeUp_));
            words_.insert(word);
        } else if (const FilterRow* row = findFilterRow(word)) {
            addDialog(section, *row, caption);
        }
    }

    void addDialog(Section& section, const FilterRow& row, const QString& caption)
    {
        const DialogTrial& trial = dialogTrial(row);
        Tile opening = tileOf(row, caption, trial.openingArgs(), closeUp_);
        opening.detail.prepend(QStringLiteral("As it opens: "));
        section.tiles.push_back(std::move(opening));
        section.tiles.push_back(tileOf(row, caption, trial.tellingArgs(), closeUp_));
        dialogs_.insert(row.number);
    }

    std::set<std::string_view> words_;
    std::set<int> dialogs_;
    bool closeUp_ = false;
};

bool write(const QDir& folder, const QString& file, const QString& title, std::vector<Section> sections)
{
    if (sections.size() == 1) sections.front().title.clear();
    const QString path = folder.filePath(file + QStringLiteral(".png"));
    if (writeSheet(contactSheet(title, sections), path)) return true;
    std::fprintf(stderr, "velara-gallery: %s could not be written\n", qPrintable(path));
    return false;
}

int run(const QDir& folder)
{
    if (!folder.mkpath(QStringLiteral("."))) return 1;
    Gallery gallery;
    for (const SheetRow& sheet : kSheets) {
        std::vector<Section> sections;
        for (const auto array : sheet.menus) sections.push_back(gallery.menu(array, sheet.closeUp));
        if (!write(folder, text(sheet.file), text(sheet.title), std::move(sections))) return 1;
    }
    return write(folder, QStringLiteral("rest"), QStringLiteral("In no menu above"), {gallery.rest()}) ? 0 : 1;
}

} // namespace

} // namespace velara

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    if (argc != 2) {
        std::fputs("usage: velara-gallery FOLDER\n", stderr);
        return 2;
    }
    return velara::run(QDir(QString::fromLocal8Bit(argv[1])));
}
