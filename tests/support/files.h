// Small files of tests, written and read back whole.
#pragma once
#include <QByteArray>
#include <QFile>
#include <gtest/gtest.h>

namespace velara {

/// Makes the file anew; the test fails when that can't be done.
inline void putFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()) << path.toStdString();
}

/// What is in the file; the other, when it is not there.
inline QByteArray fileBytes(const QString& path, const QByteArray& otherwise = {})
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : otherwise;
}

} // namespace velara
