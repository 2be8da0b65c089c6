// What the shells complete on the programs' command lines: options, words, operations, and files that can be read.
#pragma once
#include <QMap>
#include <QString>

namespace velara::packaging {

/// Texts by the names of their files, for bash, zsh and fish.
QMap<QString, QString> completions();

} // namespace velara::packaging
