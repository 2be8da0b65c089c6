// The measured facts, as rows of JSON, and regions as words. Not part of the source tree: tests skip when they are
// missing.
#pragma once
#include "region/Region.h"
#include "support/places.h"
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>
#include <vector>

namespace velara {

/// The lines of a kind in a file of the facts; empty when the file is missing.
inline std::vector<QJsonObject> gdiFacts(const QString& file, const QStringList& kinds)
{
    std::vector<QJsonObject> rows;
    QFile in(factsPath(file));
    if (!in.open(QIODevice::ReadOnly)) return rows;
    for (const QByteArray& line : in.readAll().split('\n')) {
        const QJsonObject row = QJsonDocument::fromJson(line).object();
        if (kinds.contains(row["t"].toString())) rows.push_back(row);
    }
    return rows;
}

inline std::vector<std::int32_t> numbersOf(const QJsonValue& array)
{
    std::vector<std::int32_t> numbers;
    for (const QJsonValue v : array.toArray()) numbers.push_back(v.toInt());
    return numbers;
}

/// The words of a region with these rectangles (left, top, right, bottom, ...).
inline std::vector<std::int32_t> wordsOf(const std::vector<std::int32_t>& rectangles)
{
    const int n = static_cast<int>(rectangles.size() / 4);
    std::vector<std::int32_t> words{32, 1, n, 16 * n, 0, 0, 0, 0};
    words.insert(words.end(), rectangles.begin(), rectangles.end());
    return words;
}

inline std::vector<std::int32_t> rectanglesOf(const Region& region)
{
    auto words = region.words();
    if (!words.empty()) words.erase(words.begin(), words.begin() + 8);
    return words;
}

} // namespace velara
