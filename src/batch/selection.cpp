// --select: shapes and how they are combined with the previous selection.
#include "batch/CommandLine.h"
#include "batch/nearest.h"
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
bool isOutline(std::size_t count) { return count >= 6 && count % 2 == 0; }

// clang-format off
constexpr Shape kShapes[] = {
    {"rect",    "l,t,r,b",                        isBox,     [](const Numbers& n) { return Region::rectangle(n[0], n[1], n[2], n[3]); }},
    {"ellipse", "l,t,r,b",                        isBox,     [](const Numbers& n) { return Region::ellipse(n[0], n[1], n[2], n[3]); }},
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
    const QString near = QString::fromStdString(nearestName(wanted, {"rect", "ellipse", "polygon", "invert", "none"}));
    throw badArgument(near.isEmpty() ? QStringLiteral("the shapes are rect, ellipse, polygon, invert and none")
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
        throw badArgument(QStringLiteral("after it come a colon and %1").arg(QLatin1String(shape.numbers)));
    const Region region = shape.make(numbers);
    if (region.isEmpty()) throw badArgument(QStringLiteral("there is no pixel in it"));
    return region;
}

} // namespace

LineStep parseSelection(const QString& text)
{
    const QString step = QStringLiteral("--select ") + text;
    if (const auto* whole = std::ranges::find(kWhole, text.toStdString(), &Whole::name); whole != std::end(kWhole))
        return {step, [whole](Session& s) { s.select(whole->change); }};

    const auto* prefix = std::ranges::find_if(kPrefixes, [&](const Prefix& p) { return text.startsWith(p.sign); });
    const bool hasPrefix = prefix != std::end(kPrefixes);
    const Combine mode = hasPrefix ? prefix->mode : Combine::Copy;
    const Region shape = naming(step, [&] { return parseShape(hasPrefix ? text.mid(1) : text); });
    return {step, [=](Session& s) {
                if (isOutside(shape, s.picture()))
                    throw badArgument(QStringLiteral("it lies outside of the picture, which is %1 by %2 here")
                                          .arg(s.picture().width())
                                          .arg(s.picture().height()));
                s.select([&](cBitRegion& selection) { combine(selection, shape, mode); });
            }};
}

} // namespace velara
