#include "commands/recipe/textStep.h"
#include "commands/recipe/stepText.h"
#include "document/Document.h"
#include "seams/findRow.h"
#include "seams/text.h"
#include <array>
#include <memory>

namespace velara {

namespace {

enum Place : std::size_t {
    AtText,
    AtFont,
    AtSize,
    AtStyle,
    AtColour,
    AtCorner,
    AtAcross,
    AtDown,
    AtWidth,
    AtHeight,
    kArguments
};
constexpr std::size_t kOptional = 2;
constexpr int kLargestSize = 2000, kFarthest = 100000, kLargestSide = 32767;

constexpr struct {
    std::string_view word;
    bool TextStyle::*flag;
} kStyles[] = {{"bold", &TextStyle::bold},
               {"italic", &TextStyle::italic},
               {"underline", &TextStyle::underline},
               {"strikeout", &TextStyle::strikeOut}};
constexpr std::string_view kRegular = "regular";

/// Where the picture's middle or far side counts: 0 the left or upper one, 1 the middle, 2 the other.
constexpr struct {
    std::string_view word;
    int across, down;
} kCorners[] = {{"top-left", 0, 0}, {"top", 1, 0},         {"top-right", 2, 0}, {"left", 0, 1},        {"centre", 1, 1},
                {"right", 2, 1},    {"bottom-left", 0, 2}, {"bottom", 1, 2},    {"bottom-right", 2, 2}};

/// A text of a step, as far as it is known without the picture.
struct OrderedText {
    Layer layer; // its place counts from the corner
    bool isSized = false;
    int across = 0, down = 0; // of kCorners
};

// --- Texts in a line

constexpr struct {
    char16_t character;
    const char* escape;
} kEscapes[] = {{u'\\', "\\\\"}, {u'\n', "\\n"}, {u'\t', "\\t"}};

/// Line breaks, backslashes and what no line can hold: "\n", "\\", "\u{1b}".
QString escaped(QString text)
{
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    QString line;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        const bool isPair = c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        const auto* row = std::ranges::find(kEscapes, c.unicode(), [](const auto& each) { return each.character; });
        if (row != std::end(kEscapes))
            line += QLatin1String(row->escape);
        else if (isPair)
            line += text.mid(i++, 2);
        else if (c.isSurrogate() || c.category() == QChar::Other_Control)
            line += QStringLiteral("\\u{%1}").arg(uint(c.unicode()), 0, 16);
        else
            line += c;
    }
    return line;
}

StepFault badEscape(const QString& what)
{
    return unusable(
        QStringLiteral("Text: %1 is unknown; there are \\n for a new line, \\\\, \\t and \\u{HEX}").arg(what));
}

QString unescaped(const QString& line)
{
    QString text;
    for (qsizetype i = 0; i < line.size(); ++i) {
        if (line[i] != u'\\') {
            text += line[i];
            continue;
        }
        const QString two = line.mid(i, 2);
        const auto* row = std::ranges::find(kEscapes, two, [](const auto& each) { return QLatin1String(each.escape); });
        if (row != std::end(kEscapes)) {
            text += QChar(row->character);
            ++i;
            continue;
        }
        const qsizetype end = line.indexOf(u'}', i);
        bool isNumber = false;
        const uint code = line.mid(i, 3) == QStringLiteral("\\u{") && end > 0
                              ? line.mid(i + 3, end - i - 3).toUInt(&isNumber, 16)
                              : 0;
        if (!isNumber || code > QChar::LastValidCodePoint) throw badEscape(two);
        text += code > 0xFFFF ? QString::fromUcs4(reinterpret_cast<const char32_t*>(&code), 1) : QString(QChar(code));
        i = end;
    }
    return text.replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
}

// --- Arguments

QString styleText(const TextStyle& style)
{
    QStringList words;
    for (const auto& row : kStyles)
        if (style.*row.flag) words << text(row.word);
    return words.isEmpty() ? text(kRegular) : words.join(u'+');
}

void takeStyle(TextStyle& style, const QString& words)
{
    if (words == text(kRegular)) return;
    for (const QString& word : words.split(u'+')) {
        const auto* row = std::ranges::find(kStyles, word.toStdString(), [](const auto& each) { return each.word; });
        if (row == std::end(kStyles))
            throw unusable(QStringLiteral("Style has to be %1, or several of them as in bold+italic, not \"%2\"")
                               .arg(text(textOperation().parameters[AtStyle].values), words));
        style.*row->flag = true;
    }
}

int within(const Argument& argument, Place place, int least, int most)
{
    const int value = std::get<int>(argument);
    if (value < least || value > most)
        throw unusable(QStringLiteral("%1 has to be from %2 to %3, not %4")
                           .arg(text(textOperation().parameters[place].name))
                           .arg(least)
                           .arg(most)
                           .arg(value));
    return value;
}

OrderedText orderOf(const Arguments& a)
{
    const auto word = [&](Place place) { return QString::fromStdString(std::get<std::string>(a[place])); };
    OrderedText order;
    Layer& layer = order.layer;
    layer.text = unescaped(word(AtText));
    layer.style.family = word(AtFont);
    if (layer.style.family.isEmpty()) throw unusable(QStringLiteral("Font has to be the name of a font"));
    layer.style.size = within(a[AtSize], AtSize, 1, kLargestSize);
    takeStyle(layer.style, word(AtStyle));
    layer.colour = static_cast<Colour>(std::get<int>(a[AtColour]));
    const auto* corner =
        std::ranges::find(kCorners, word(AtCorner).toStdString(), [](const auto& c) { return c.word; });
    if (corner == std::end(kCorners))
        throw unusable(QStringLiteral("Corner has to be %1, not \"%2\"")
                           .arg(text(textOperation().parameters[AtCorner].values), word(AtCorner)));
    order.across = corner->across;
    order.down = corner->down;
    order.isSized = a.size() == kArguments;
    layer.place = {within(a[AtAcross], AtAcross, -kFarthest, kFarthest),
                   within(a[AtDown], AtDown, -kFarthest, kFarthest), 0, 0};
    layer.place.right = layer.place.left + (order.isSized ? within(a[AtWidth], AtWidth, 1, kLargestSide) : 0);
    layer.place.bottom = layer.place.top + (order.isSized ? within(a[AtHeight], AtHeight, 1, kLargestSide) : 0);
    return order;
}

// --- Drawing

/// From the corner's distance to a position in a picture with that side.
int placed(int corner, int distance, int side, int picture)
{
    return corner == 0 ? distance : corner == 1 ? (picture - side) / 2 + distance : picture - side - distance;
}

Layers::Kept keptOf(const OrderedText& order, const Layers& layers)
{
    Layer layer = order.layer;
    const Bits& picture = layers.canvas();
    const Rect given = layer.place;
    int width = given.width(), height = given.height();
    if (!order.isSized) {
        // From the far side there is as much room as from the near one.
        const int room = picture.width() - std::max(0, order.across == 1 ? 0 : given.left);
        const RunSize size = layers.extentOf(layer.text, layer.style, std::max(room, Layers::kLeastSide));
        width = std::max(size.width, Layers::kLeastSide);
        height = std::max(size.height, Layers::kLeastSide);
    }
    const int left = placed(order.across, given.left, width, picture.width());
    const int top = placed(order.down, given.top, height, picture.height());
    layer.place = {left, top, left + width, top + height};
    return {layer, true};
}

void draw(const std::vector<OrderedText>& orders, Fonts& fonts, Document& draft)
{
    Layers layers(fonts);
    layers.setCanvas(draft.bits());
    Layers::State state;
    for (const OrderedText& order : orders) {
        const int index = Layers::kFirst + static_cast<int>(state.size());
        state[index] = keptOf(order, layers);
    }
    layers.restore(state);
    draft.setBits(layers.Blend());
}

Arguments parsedArguments(const QStringList& texts)
{
    Arguments arguments;
    for (const QString& each : texts)
        arguments.push_back(parseArgument(each, textOperation().parameters[arguments.size()]));
    return arguments;
}

using enum ArgumentType;

} // namespace

const Operation& textOperation()
{
    // clang-format off
    static const Operation operation{
        "TEXT",
        {{"Text", Text, "any", "Hello", "\\n is a new line, \\\\ a backslash, \\u{HEX} any character"},
         {"Font", Text, "family", {}, "refused where it isn't installed"},
         {"Size", Integer, "1..2000", "15", "points, of which 72 are 96 pixels", 1, 2000, 15},
         {"Style", Text, "regular|bold|italic|underline|strikeout", "regular", "several as in bold+italic"},
         {"Colour", Integer, "colour", "0", "0x00BBGGRR", 0, 0xFFFFFF, 0},
         {"Corner", Text, "top-left|top|top-right|left|centre|right|bottom-left|bottom|bottom-right", "top-left", "from where the text is placed"},
         {"Across", Integer, "column", "10", "pixels from there into the picture", -1000, 1000, 10},
         {"Down", Integer, "row", "10", "the same", -1000, 1000, 10},
         {"Width", Integer, "side", {}, "where the text wraps; without it as wide as the text, up to the picture's edge", 1, 1000, 200},
         {"Height", Integer, "side", {}, "lines below it are cut off", 1, 1000, 100}},
        kOptional,
        [](const Operation&, cBitFilter&, const Arguments&) { throw std::invalid_argument("TEXT (the engine has no fonts)"); }};
    // clang-format on
    return operation;
}

RecipeStep parseTextStep(const QString& text, const QStringList& arguments)
{
    const auto orders = std::make_shared<std::vector<OrderedText>>();
    const auto fonts = std::make_shared<Fonts*>(nullptr);
    RecipeStep step{text, RecipeStep::Change};
    for (qsizetype at = 0; at < arguments.size(); at += kArguments) {
        orders->push_back(orderOf(parsedArguments(arguments.mid(at, kArguments))));
        step.fonts << orders->back().layer.style.family;
    }
    step.drawBy = [fonts](Fonts& given) { *fonts = &given; };
    step.job = [orders, fonts](Document& draft, cBitFilter&) { draw(*orders, **fonts, draft); };
    return step;
}

QString textWords(const Layers::State& layers, Fonts& fonts)
{
    Arguments all;
    for (const auto& [index, kept] : layers) {
        const Layer& layer = kept.layer;
        if (!layer.shown) continue;
        const auto utf8 = [](const QString& text) { return text.toStdString(); };
        const auto colour = static_cast<int>(layer.colour);
        for (const Argument& each :
             {Argument(utf8(escaped(layer.text))), Argument(utf8(fonts.standIn(layer.style.family))),
              Argument(layer.style.size), Argument(utf8(styleText(layer.style))), Argument(colour),
              Argument(std::string(kCorners[0].word)), Argument(layer.place.left), Argument(layer.place.top),
              Argument(layer.place.width()), Argument(layer.place.height())})
            all.push_back(each);
    }
    return all.empty() ? QString() : callText(textOperation().name, all);
}

void checkFonts(const QStringList& families, Fonts& fonts)
{
    for (const QString& family : families) {
        if (fonts.standIn(family).compare(family, Qt::CaseInsensitive) == 0) continue;
        const auto all = fonts.list(); // some answer to names of others, too
        if (all && std::ranges::any_of(*all, [&](const FontFamily& each) {
                return each.name.compare(family, Qt::CaseInsensitive) == 0;
            }))
            continue;
        throw StepFault(StepFault::Failed, QStringLiteral("the font \"%1\" isn't installed").arg(family));
    }
}

} // namespace velara
