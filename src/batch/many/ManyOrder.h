// What the command line says of many pictures at once.
#pragma once
#include <QStringList>

namespace velara {

/// What is done where a file has the name of an output already. Newer: it is made again where it is older than its
/// input.
enum class Existing { Skip, Replace, Number, Newer };

/// Of `count` parts of the work the one that is done here, from 1.
struct Shard {
    int index = 1, count = 1;
};

struct ManyOrder {
    QStringList inputs; // files and folders
    QString into;       // empty: inPlace
    QString pattern = QStringLiteral("{dir}/{name}.{ext}");
    QString report; // empty: none; "-": standard output
    Existing existing = Existing::Skip;
    Shard shard;
    int jobs = 0; // 0: as many as cores
    bool inPlace = false, yes = false, recursive = false, stopAtFirst = false;
};

} // namespace velara
