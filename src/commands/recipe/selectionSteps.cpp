// Selections: shapes and how they are combined with the previous selection.
#include "commands/recipe/RecipeStep.h"
#include "commands/recipe/nearest.h"
#include <algorithm>

namespace velara {

namespace {

using Numbers = std::vector<std::int32_t>;

struct Shape {
    std::string_view name;
    const char* numbers;
    bool (*suits)(std::size_t count);
    Region (*make)(const Numbers& n);
};

bool isBox(std::size_t count) { return count == 4; }
bool areBoxes(std::size_t count) { return count >= 4 && count % 4 == 0; }
bool isOutline(std::size_t count) { return count >= 6 && count % 2 == 0; }

/// The union of boxes.
Region unionOf(const Numbers& boxes)
{
    const auto count = static_cast<std::int32_t>(boxes.size() / 4);
    Numbers words{32, 1, count, 16 * count, 0, 0, 0, 0}; // the header of Region::words
    words.insert(words.end(), boxes.begin(), boxes.end());
    return Region::fromWords(words);
}

// clang-format off
constexpr Shape kShapes[] = {
    {"rect",    "l,t,r,b",                        isBox,     [](const Numbers& n) { return Region::rectangle(n[0], n[1], n[2], n[3]); }},
    {"ellipse", "l,t,r,b",                        isBox,     [](const Numbers& n) { return Region::ellipse(n[0], n[1], n[2], n[3]); }},
    {"rects",   "l,t,r,b of each rectangle",      areBoxes,  unionOf},
    {"polygon", "x0,y0,x1,y1,x2,y2 and so on",    isOutline, [](const Numbers& n) { return Region::polygon(n); }},
};

struct Prefix { QChar sign; Combine mode; };
constexpr Prefix kPrefixes[] = {{u'+', Combine::Or}, {u'-', Combine::Diff}, {u'&', Combine::And}, {u'^', Combine::Xor}};

struct Whole { std::string_view name; void (*change)(cBitRegion&); };
constexpr Whole kWhole[] = {
    {"invert", [](cBitRegion& region) { region.Invert(); }},
    {"none",   [](cBitRegion& region) { region.setRegion(Region::rectangle(0, 0, 0, 0)); }},
};
// clang-format on

Numbers parseNumbers(const QString& list)
{
    const Parameter coordinate{"a coordinate", ArgumentType::Integer};
    Numbers numbers;
    for (const QString& part : list.split(u',')) numbers.push_back(std::get<int>(parseArgument(part, coordinate)));
    return numbers;
}

const Shape& shapeNamed(const QString& name)
{
    const std::string wanted = name.toStdString();
    if (const auto* found = std::ranges::find(kShapes, wanted, &Shape::name); found != std::end(kShapes)) return *found;
    const QString near =
        QString::fromStdString(nearestName(wanted, {"rect", "rects", "ellipse", "polygon", "invert", "none"}));
    throw unusable(near.isEmpty() ? QStringLiteral("the shapes are rect, rects, ellipse, polygon, invert and none")
                                  : QStringLiteral("there is no such shape; did you mean %1?").arg(near));
}

bool isOutside(const Region& shape, const Bits& picture)
{
    return shape.combined(Region::rectangle(0, 0, picture.width(), picture.height()), Combine::And).isEmpty();
}

/// As in the editor: a first shape becomes the selection whatever the prefix, but there is nothing to subtract it from.
void combine(cBitRegion& region, const Region& shape, Combine mode)
{
    const bool first = region.IsEmptyRegion();
    if (mode == Combine::Copy || (first && mode != Combine::Diff))
        region.setRegion(shape);
    else if (!first)
        region.setRegion(region.Region().combined(shape, mode));
    region.Crop();
}

Region parseShape(const QString& text)
{
    const int colon = static_cast<int>(text.indexOf(u':'));
    const Shape& shape = shapeNamed(text.left(colon < 0 ? text.size() : colon));
    const Numbers numbers = colon < 0 ? Numbers() : parseNumbers(text.mid(colon + 1));
    if (!shape.suits(numbers.size()))
        throw unusable(QStringLiteral("after it come a colon and %1").arg(QLatin1String(shape.numbers)));
    const Region region = shape.make(numbers);
    if (region.isEmpty()) throw unusable(QStringLiteral("there is no pixel in it"));
    return region;
}

} // namespace

RecipeStep parseSelectionStep(const QString& text)
{
    RecipeStep step{QStringLiteral("--select ") + text, RecipeStep::Select};
    const auto* whole = std::ranges::find(kWhole, text.toStdString(), &Whole::name);
    if (whole != std::end(kWhole)) {
        step.select = [whole](cBitRegion& selection, const Bits&) { whole->change(selection); };
        return step;
    }
    const auto* prefix = std::ranges::find_if(kPrefixes, [&](const Prefix& p) { return text.startsWith(p.sign); });
    const bool hasPrefix = prefix != std::end(kPrefixes);
    const Combine mode = hasPrefix ? prefix->mode : Combine::Copy;
    const Region shape = namingStep(step.text, [&] { return parseShape(hasPrefix ? text.mid(1) : text); });
    step.select = [=](cBitRegion& selection, const Bits& picture) {
        if (isOutside(shape, picture))
            throw unusable(QStringLiteral("it lies outside of the picture, which is %1 by %2 here")
                               .arg(picture.width())
                               .arg(picture.height()));
        combine(selection, shape, mode);
    };
    return step;
}

} // namespace velara
