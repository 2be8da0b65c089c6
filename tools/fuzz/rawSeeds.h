// Intact files of cameras to start from: a small sensor's samples, stored as each format does.
#pragma once
#include <QByteArray>
#include <QList>

namespace velara::fuzz {

/// Several ways of storing for some formats; none of an extension that isn't a camera's.
QList<QByteArray> rawSeeds(const QString& format);

} // namespace velara::fuzz
