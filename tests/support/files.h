// Small files of tests, written and read back whole, and a folder for them.
#pragma once
#include <QByteArray>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
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

/// The file as if it was changed then; a new one where there is none.
inline void touchFile(const QString& path, const QDateTime& when)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadWrite) && file.setFileTime(when, QFile::FileModificationTime));
}

/// Base of tests with a folder of their own. A name is that of a file in it.
struct FolderTest : ::testing::Test {
    QTemporaryDir folder;

    QString path(const QString& name) const { return folder.filePath(name); }
    /// Makes the file anew. \returns where it is.
    QString put(const QString& name, const QByteArray& bytes) const
    {
        putFile(path(name), bytes);
        return path(name);
    }
    QByteArray content(const QString& name) const { return fileBytes(path(name), "missing"); }
    /// Names of all that is there, in their order.
    QStringList files() const
    {
        const auto all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
        return QDir(folder.path()).entryList(all, QDir::Name);
    }
};

} // namespace velara
