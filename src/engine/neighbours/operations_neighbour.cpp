#include "engine/operationRows.h"
#include <sstream>

namespace velara {

namespace {

/// "0 1 0/1 4 1/0 1 0": whole numbers, rows split by slashes, as many as each row has numbers.
std::vector<std::vector<int>> maskOf(const std::string& text)
{
    std::vector<std::vector<int>> mask;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line, '/');) {
        std::istringstream numbers(line);
        std::vector<int>& row = mask.emplace_back();
        for (int number; numbers >> number;) row.push_back(number);
        if (!numbers.eof()) throw std::invalid_argument("Mask");
    }
    for (const auto& row : mask)
        if (row.size() != mask.size()) throw std::invalid_argument("Mask");
    if (mask.empty()) throw std::invalid_argument("Mask");
    return mask;
}

void maskFilter(cBitFilter& filter, std::string mask, double divisor, int addRed, int addGreen, int addBlue, bool clip)
{
    filter.setBits(filter.MaskFilter(maskOf(mask), divisor, addRed, addGreen, addBlue, clip));
}

} // namespace

// clang-format off
std::vector<Operation> neighbourOperations()
{
    return {
        row("SHARPEN",      "Level",            &cBitFilter::SHARPEN),
        row("SOFTEN",       "Level",            &cBitFilter::SOFTEN),
        row("EDGEENHANCE",  "Level",            &cBitFilter::EDGEENHANCE),
        row("Blurs",        "Radius",           &cBitFilter::Blurs),
        row("DILATE",       "",                 &cBitFilter::DILATE),
        row("ERODE",        "",                 &cBitFilter::ERODE),
        row("CONTOUR",      "Level,Background", &cBitFilter::CONTOUR),
        row("EMBOSS",       "Weight",           &cBitFilter::EMBOSS),
        row("ENGRAVE",      "Weight",           &cBitFilter::ENGRAVE),
        row("RELIEF",       "",                 &cBitFilter::RELIEF),
        row("RankFilterN4", "Mode",             &cBitFilter::RankFilterN4),
        row("RankFilterND", "Mode",             &cBitFilter::RankFilterND),
        row("DIFFUSE",      "HorizontalRange,VerticalRange", &cBitFilter::DIFFUSE),
        row("MaskFilter",   "Mask,Divisor,AddRed,AddGreen,AddBlue,Clip", maskFilter),
    };
}
// clang-format on

} // namespace velara
