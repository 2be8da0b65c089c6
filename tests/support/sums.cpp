#include "support/sums.h"
#include "support/places.h"
#include <fstream>

namespace velara {

void expectCommittedSums(const TrialFamily& family)
{
    std::map<std::string, std::string> committed; // subject, line
    std::ifstream file(testsPath(family.sums).toStdString());
    for (std::string line; std::getline(file, line);) committed[line.substr(0, line.find(':'))] = line;
    EXPECT_EQ(family.subjects.size(), committed.size()) << "rows of " << family.sums;
    for (const std::string& subject : family.subjects)
        EXPECT_EQ(committed[subject], sumsLine(subject, sumsOf(family, subject, &Trial::fast)))
            << "make reference-diff NAMES='\"" << subject << "\"' shows where";
}

} // namespace velara
