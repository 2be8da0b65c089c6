// velara-texts FILE: writes the texts of the tables whose rows are shown to people, as source code that lupdate reads.
// A new row is translatable without further ado. The names of the tables are those given to shown() (seams/text.h).
#include "app/menus/menus.h"
#include "colour/presetColours.h"
#include "commands/effects.h"
#include "commands/filterDialogs.h"
#include "document/stockTextures.h"
#include "fileio/formats.h"
#include "fileio/web/WebSettings.h"
#include "seams/text.h"
#include "tools/toolRows.h"
#include <QStringList>
#include <algorithm>
#include <cstdio>

using namespace velara;

namespace {

/// Each text of a table once; those without letters need no translation.
struct Table {
    const char* name;
    QStringList texts = {};

    void add(std::string_view english)
    {
        const QString all = text(english);
        if (std::ranges::any_of(all, [](QChar c) { return c.isLetter(); }) && !texts.contains(all)) texts << all;
    }
};

Table menus()
{
    Table table{"Menus"};
    for (const MenuRow& row : menuRows()) table.add(row.caption);
    for (const ButtonRow& row : buttonRows()) table.add(row.caption);
    for (const DropRow& row : dropRows()) table.add(row.caption);
    for (const BarRow& row : barRows()) table.add(row.caption);
    for (const StripRow& row : stripRows()) table.add(row.caption);
    for (const CommandWord& word : vocabulary()) table.add(helpOf(word.word).about);
    return table;
}

Table searchWords()
{
    Table table{"Search words"};
    for (const CommandWord& word : vocabulary()) table.add(helpOf(word.word).finds);
    return table;
}

void addTool(Table& table, const ToolRow& tool)
{
    table.add(tool.caption);
    for (const PaneRow& row : tool.pane) {
        table.add(row.caption);
        table.add(row.hint);
        for (const QString& entry : QString::fromUtf8(row.entries).split(u'|')) table.add(entry.toStdString());
    }
}

Table tools()
{
    Table table{"Tools"};
    for (const ToolRow& tool : toolRows()) addTool(table, tool);
    addTool(table, pasteRow());
    return table;
}

Table filters()
{
    Table table{"Filters"};
    for (const FilterRow& row : filterRows()) {
        table.add(row.title);
        table.add(row.option ? row.option : "");
        for (const FilterSlider& slider : row.sliders) {
            if (!slider.used()) continue;
            table.add(slider.caption);
            for (const Parameter& parameter : findOperation(row.operation)->parameters)
                if (parameter.name == slider.parameter) table.add(parameter.meaning);
        }
    }
    for (const GlassStyle& style : kGlassStyles) table.add(style.caption);
    for (const char* mode : kGlassModes) table.add(mode);
    for (const char* curtain : kCurtains) table.add(curtain);
    for (const Effect& effect : effects()) table.add(effect.name);
    return table;
}

Table formats()
{
    Table table{"Formats"};
    table.add(kAllOpened);
    for (const Kinds& line : kOpened) table.add(line.caption);
    for (const Kinds& line : kSaved) table.add(line.caption);
    for (const Family& family : kFamilies) table.add(family.name);
    for (const Format& format : kFormats) table.add(format.name);
    return table;
}

Table web()
{
    Table table{"Save for Web"};
    for (const WebPreset& preset : webPresets()) {
        table.add(preset.entry);
        table.add(preset.depthText);
    }
    for (const auto& entries : {webMaps(), webDithers(), webModes(), webJpegQualities()})
        for (const WebEntry& entry : entries) table.add(entry.entry);
    return table;
}

Table colours()
{
    Table table{"Colors"};
    for (int i = 0; i < kPresetSets; ++i) table.add(presetSet(i).name);
    return table;
}

Table textures()
{
    Table table{"Textures"};
    const auto name = [](int number) { return stockTextureName(QStringLiteral("Velara%1.bmp").arg(number)); };
    for (int i = 1; !name(i).isEmpty(); ++i) table.add(name(i).toStdString());
    return table;
}

} // namespace

int main(int argc, char** argv)
{
    std::FILE* const file = argc == 2 ? std::fopen(argv[1], "w") : nullptr;
    if (!file) return std::fprintf(stderr, "usage: velara-texts FILE\n"), 2;
    std::fputs("const char* const kTexts[] = {\n", file);
    for (const Table& table : {menus(), searchWords(), tools(), filters(), formats(), web(), colours(), textures()})
        for (QString english : table.texts)
            std::fprintf(file, "    QT_TRANSLATE_NOOP(\"%s\", \"%s\"),\n", table.name,
                         english.replace(u'\\', "\\\\").replace(u'"', "\\\"").toUtf8().constData());
    std::fputs("};\n", file);
    return std::fclose(file) == 0 ? 0 : 1;
}
