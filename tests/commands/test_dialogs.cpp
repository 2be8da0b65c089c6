// The contents of each filter dialog, as text, compared with the row beside the definition of its operation.
#include "tools/reference/dialogTrials.h"
#include <QString>
#include <gtest/gtest.h>

namespace velara {
namespace {

std::string shown(const FilterSlider& s)
{
    return QStringLiteral("%1 %2..%3, %4").arg(s.caption).arg(s.least).arg(s.most).arg(s.byDefault).toStdString() +
           (s.step == 1 ? "" : ", by " + QString::number(s.step).toStdString());
}

std::string shown(const FilterRow& row)
{
    std::vector<std::string> parts;
    for (const FilterSlider& slider : row.sliders)
        if (slider.used()) parts.push_back(shown(slider));
    if (row.option) parts.push_back(std::string("option ") + row.option);
    const int wells = has(row.extras, FilterExtra::SourceWell) + has(row.extras, FilterExtra::TargetWell);
    if (wells) parts.push_back(wells == 1 ? "1 well" : "2 wells");
    for (const auto& [extra, text] :
         {std::pair(FilterExtra::PickColour, "picks a colour"), std::pair(FilterExtra::PickCentre, "picks the centre"),
          std::pair(FilterExtra::Banks, "banks"), std::pair(FilterExtra::Glass, "glass"),
          std::pair(FilterExtra::Curtain, "curtain")})
        if (has(row.extras, extra)) parts.push_back(text);
    std::string line = row.title;
    for (const std::string& part : parts) line += (&part == &parts[0] ? ": " : "; ") + part;
    return line;
}

TEST(Dialogs, ShowWhatTheirTrialsSay)
{
    for (const FilterRow& row : filterRows()) EXPECT_EQ(dialogTrial(row).shows, shown(row));
    EXPECT_EQ(dialogTrials().size(), filterRows().size());
}

} // namespace
} // namespace velara
