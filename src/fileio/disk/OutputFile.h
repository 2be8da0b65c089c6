// A file that is being written and takes its name only when it is complete.
#pragma once
#include "fileio/disk/ByteSink.h"
#include <QByteArray>
#include <QString>
#include <cstdint>
#include <functional>
#include <memory>
#include <sys/types.h>

namespace velara {

/// The target of symbolic links, whether it exists or not. Empty: the links form a cycle, or somebody else has created
/// one in a folder where anybody may.
QString behindLinks(const QString& path);

/// Removes the files that programs of this user left in the folder when they died while saving.
void removeStrays(const QString& folder);

/// Writes go to a new file in the target's folder, which has no name there until it is complete, where the file system
/// can do that. It gets the owner, group, mode and access lists of the old one and replaces it on commit(), once it is
/// on the disk. Symbolic links are followed (behindLinks), or replaced where somebody else may have created them.
/// Leftovers of a program that died while saving are removed from the folder.
///
/// A file that has several names, or something that can't be transferred to the new one, is overwritten in place by
/// commit(): once the complete copy beside it is on the disk and disk space is reserved. If that still fails midway,
/// the copy stays as "name.rescued.ext". Where no copy can be made (a device, a folder that takes no files) it is
/// overwritten in place from a memory buffer. Without commit() nothing has changed.
class OutputFile final : public ByteSink {
  public:
    enum class Links {
        Follow,
        Replace, // for work files of the program, which are private to the user and need not survive a power cut
    };
    explicit OutputFile(const QString& path, Links links = Links::Follow);
    ~OutputFile() override;

    bool isOpen() const { return file_ >= 0; }
    /// The errno of the first failure; 0: none, or none of the system.
    int error() const { return error_; }
    /// Whether something had the target's name at the beginning.
    bool replacesAFile() const { return replaces_; }

    /// Whether leftovers are looked for at every file, true at first. A program that writes very many files into a
    /// folder looks for them once, by removeStrays.
    static void lookForStrays(bool each);

    /// Called now and then while the file is written; when it returns false, the write fails.
    void setGoOn(std::function<bool()> goOn) { goOn_ = std::move(goOn); }

    /// Called before rows of a picture are read that may not be there yet; see ByteSink::awaitRow.
    void setAwaitRow(std::function<bool(int)> awaitRow) { awaitRow_ = std::move(awaitRow); }

    bool write(const void* bytes, std::size_t size) override;
    void expect(std::int64_t bytes) override;
    bool goesOn() override;
    bool awaitRow(int row) override { return !awaitRow_ || awaitRow_(row); }
    /// Returns less than size at the end or on an error.
    std::size_t read(void* bytes, std::size_t size);
    /// whence as for lseek.
    bool seek(std::int64_t offset, int whence);
    std::int64_t tell();

    /// True when all writes so far succeeded and the target has the new contents.
    bool commit();
    /// Like commit(), even after failed writes, but only if no file had the name.
    void keepRemains();

  private:
    void openBeside(mode_t mode);
    void openNamed(mode_t mode);
    bool giveName();
    bool fail();
    bool flush();
    bool publish();
    bool copyOver();
    void keepBeside();

    QByteArray target_, temporary_; // temporary_ empty: it has no name
    std::function<bool()> goOn_;
    std::function<bool(int)> awaitRow_;
    std::unique_ptr<std::uint8_t[]> buffer_;
    std::size_t used_ = 0, unasked_ = 0;
    int file_ = -1, error_ = 0;
    bool replaces_ = false, isUnnamed_ = false, inPlace_ = false, failed_ = false, lasting_ = true;
};

} // namespace velara
