// Plan: what becomes of each input, decided before anything is written.
#pragma once
#include "batch/many/InputList.h"
#include "batch/many/ManyOrder.h"
#include "batch/names/NamePattern.h"
#include <functional>
#include <set>

namespace velara {

struct PlannedPicture {
    QString input, output;  // the file that is written; "{width}" and "{height}" as such where its name has them
    bool isSkipped = false; // there is an output already
    QString fault = {};     // why it can't be made; empty: nothing is known
};

struct Plan {
    std::vector<PlannedPicture> pictures; // of this shard
    QStringList folders;                  // those that the outputs go to
    std::vector<NameFacts> late;          // of each picture, where the names have the size of the output; else empty
    std::set<FileIdentity> originals;     // likewise: all inputs
};

/// The file of an output. Not for work in place.
QString outputOf(const ManyOrder& order, const NameFacts& facts);
/// "a-2.jpg" for "a.jpg" and 2.
QString numberedName(const QString& output, int number);
using FileTime = std::pair<std::int64_t, std::int64_t>; // seconds, nanoseconds
/// Whether an output that is there is left, given when the input and it were changed.
bool isLeft(const ManyOrder& order, const FileTime& input, const FileTime& output);

/// The ending of the output for an input with that ending.
using EndingOf = std::function<QString(const QString& ending)>;

/// Throws a Failure where two inputs would become one output, or an output would be written over an input though
/// that is not ordered. Numbers count, and shards are made, over all inputs, so that each machine comes to the same.
Plan planOf(const ManyOrder& order, const std::vector<InputFile>& inputs, const EndingOf& endingOf);

/// 1 to count, by the name below the INPUT folder: the same on every machine, wherever the folder is there.
int shardOf(const QString& dir, const QString& file, int count);

} // namespace velara
