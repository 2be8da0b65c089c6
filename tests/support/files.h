// Small files for tests, written and read back whole, and a folder for them.
#pragma once
#include <QByteArray>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace velara {

/// Writes the file; the test fails if that isn't possible.
inline void putFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()) << path.toStdString();
}

/// The contents of the file; `otherwise` when it doesn't exist.
inline QByteArray fileBytes(const QString& path, const QByteArray& otherwise = {})
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : otherwise;
}

/// Sets the time of the file; creates it if there is none.
inline void touchFile(const QString& path, const QDateTime& when)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadWrite) && file.setFileTime(when, QFile::FileModificationTime));
}

/// Base of tests with a folder of their own. Names are those of files in it.
struct FolderTest : ::testing::Test {
    QTemporaryDir folder;

    QString path(const QString& name) const { return folder.filePath(name); }
    /// Writes the file. \returns its path.
    QString put(const QString& name, const QByteArray& bytes) const
    {
        putFile(path(name), bytes);
        return path(name);
    }
    QByteArray content(const QString& name) const { return fileBytes(path(name), "missing"); }
    /// The names of all entries, sorted.
    QStringList files() const
    {
        const auto all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
        return QDir(folder.path()).entryList(all, QDir::Name);
    }
};

} // namespace velara
