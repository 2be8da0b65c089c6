// Plan: what becomes of each input, decided before anything is written.
#pragma once
#include "batch/inputs/InputList.h"
#include "batch/many/ManyOrder.h"
#include "batch/names/NamePattern.h"
#include <deque>
#include <functional>
#include <map>
#include <set>

namespace velara {

/// The ending of the output for an input with that ending.
using EndingOf = std::function<QString(const QString& ending)>;

/// Names are made when they are asked for: there may be millions of pictures.
struct Plan {
    struct Picture {
        int input;
        int number = 1;         // in its name; 1: none
        bool isSkipped = false; // there is an output already
    };
    ManyOrder order;
    InputFiles inputs; // of all shards
    EndingOf endingOf;
    std::deque<Picture> pictures = {};     // of this shard
    QStringList folders = {};              // those that the outputs go to
    bool isLate = false;                   // the names have the size of the output in them
    std::set<FileIdentity> originals = {}; // all inputs, where names are late
    std::map<int, QString> faults = {};    // why a picture can't be made, as far as it is known

    int size() const { return static_cast<int>(pictures.size()); }
    bool isSkipped(int picture) const { return pictures[static_cast<std::size_t>(picture)].isSkipped; }
    QString input(int picture) const { return inputs.path(pictures[static_cast<std::size_t>(picture)].input); }
    /// The file that is written; "{width}" and "{height}" as such where its name has them.
    QString output(int picture) const;
    NameFacts facts(int picture) const { return factsOf(pictures[static_cast<std::size_t>(picture)].input); }
    /// Of any input, by its place among them, what its output is called before a number is given.
    QString plainOutput(int input) const;
    NameFacts factsOf(int input) const;
};

/// The file of an output. Not for work in place.
QString outputOf(const ManyOrder& order, const NameFacts& facts);
/// "a-2.jpg" for "a.jpg" and 2.
QString numberedName(const QString& output, int number);
using FileTime = std::pair<std::int64_t, std::int64_t>; // seconds, nanoseconds
/// Whether an output that is there is left, given when the input and it were changed.
bool isLeft(const ManyOrder& order, const FileTime& input, const FileTime& output);

/// Throws a Failure where two inputs would become one output, or an output would be written over an input though
/// that is not ordered. Numbers count, and shards are made, over all inputs, so that each machine comes to the same.
Plan planOf(const ManyOrder& order, InputFiles inputs, const EndingOf& endingOf);

/// 1 to count, by the name below the INPUT folder: the same on every machine, wherever the folder is there.
int shardOf(const QString& dir, const QString& file, int count);

} // namespace velara
