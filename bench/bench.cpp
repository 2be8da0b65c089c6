#include "bench.h"
#include "support/typicalArguments.h"
#include <cmath>
#include <memory>

namespace velara::bench {

namespace {

Bits drawPicture(Size size)
{
    Bits bits = Bits::uninitialized(size.width, size.height);
    std::vector<float> across[3];
    for (int c = 0; c < 3; ++c)
        for (int x = 0; x < bits.stride(); ++x)
            across[c].push_back(48 * std::sin(x * (0.0021f + 0.0017f * float(c))) +
                                24 * std::sin(x * 0.05f + float(c)));
    std::uint32_t noise = 1;
    for (int y = -Bits::kMargin; y < size.height + Bits::kMargin; ++y) {
        Pixel* row = bits.row(y) - Bits::kMargin;
        const bool shadow = y / 200 % 3 == 0;
        for (int c = 0; c < 3; ++c) {
            const float down = (shadow ? 96.0f : 128.0f) + 40 * std::sin(float(y) * (0.0013f + 0.0011f * float(c)));
            for (int x = 0; x < bits.stride(); ++x) {
                noise = noise * 1664525 + 1013904223;
                const float v = down + across[c][std::size_t(x)] + float(noise >> 28) - 8;
                row[x].c[c] = static_cast<std::uint8_t>(std::min(255.0f, std::max(0.0f, v)));
            }
        }
        for (int x = 0; x < bits.stride(); ++x) row[x].c[3] = 0;
    }
    return bits;
}

/// Runs the operation on an engine of its own, always on the same picture.
std::function<void()> calling(const std::string& name, const Arguments& arguments, const Bits& bits,
                              const Region& region)
{
    const Operation* found = findOperation(name);
    if (!found) throw std::invalid_argument("no operation " + name);
    auto filter = std::make_shared<cBitFilter>();
    filter->setBitsRegion(region);
    return [=] {
        filter->setBits(bits);
        found->call(*filter, arguments);
        filter->setBits(bits); // recycles the result's buffer
    };
}

Region everything(Size size) { return Region::rectangle(0, 0, size.width, size.height); }

std::string written(const std::string& name, const Arguments& arguments)
{
    std::string text = name;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        text += i ? "," : "(";
        if (const auto* v = std::get_if<bool>(&arguments[i])) text += *v ? "true" : "false";
        if (const auto* v = std::get_if<int>(&arguments[i])) text += std::to_string(*v);
        if (const auto* v = std::get_if<double>(&arguments[i])) text += std::to_string(*v).substr(0, 5);
        if (const auto* v = std::get_if<std::string>(&arguments[i])) text += *v;
        if (std::holds_alternative<Bits>(arguments[i])) text += "picture";
    }
    return arguments.empty() ? text : text + ")";
}

} // namespace

const Bits& picture(Size size)
{
    static Bits kept;
    if (kept.width() != size.width || kept.height() != size.height) kept = drawPicture(size);
    return kept;
}

Row operation(std::string family, double must, double goal, std::string name, Arguments arguments)
{
    return {family,
            written(name, arguments),
            must,
            goal,
            [=](Size size) {
                return Timing{calling(name, arguments, picture(size), everything(size)), {}};
            },
            "memcpy",
            name};
}

Row bounded(Bound bound, Row row)
{
    row.bound = bound;
    return row;
}

Row afterASum(Row row)
{
    row.copied *= 1.5;
    return row;
}

Row inEllipse(std::string family, double must, double goal, std::string name, Arguments arguments, Tested tested)
{
    const double share = tested == Tested::Target ? std::acos(-1.0) / 4 : 1;
    return {family,
            written(name, arguments) + " in an ellipse",
            must,
            goal,
            [=](Size size) {
                const Bits& bits = picture(size);
                return Timing{calling(name, arguments, bits, Region::ellipse(0, 0, size.width + 1, size.height + 1)),
                              calling(name, arguments, bits, everything(size)), share};
            },
            "whole picture a pixel",
            name,
            {},
            1 - share};
}

} // namespace velara::bench
