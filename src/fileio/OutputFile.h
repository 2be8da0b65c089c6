// A file that is being written and takes its name only when it is whole.
#pragma once
#include <QByteArray>
#include <QString>
#include <cstdint>
#include <functional>
#include <sys/types.h>
#include <vector>

namespace velara {

/// The file behind symbolic links, whether it exists or not. Empty: they go round in a circle, or somebody else has set
/// one where anybody may.
QString behindLinks(const QString& path);

/// Writes go to a new file in the target's folder, which is given the old one's owner, group, mode and access lists and
/// replaces it on commit(), once it is on the disk. Symbolic links are followed (behindLinks), or replaced where
/// somebody else may have put them. What a program that died left of that is removed from the folder.
///
/// A file that has several names, or something that the new one can't be given, is written over on commit(): once the
/// whole copy beside it is on the disk, and the disk has kept the space. If that fails midway all the same, the copy
/// stays as "name.rescued.ext". Out of memory where no copy can be made (a device, a folder that takes no files).
/// Without commit() nothing has changed.
class OutputFile {
  public:
    enum class Links {
        Follow,
        Replace, // for work files of the program, which are the user's alone and need not outlive a power cut
    };
    explicit OutputFile(const QString& path, Links links = Links::Follow);
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    bool isOpen() const { return file_ >= 0; }
    /// The system's number of what went wrong first, as errno has it; 0: nothing, or nothing of the system.
    int error() const { return error_; }
    /// Whether something had the target's name when this began.
    bool replacesAFile() const { return replaces_; }

    /// Is asked now and then while it is being written; when it says no, the write fails.
    void setGoOn(std::function<bool()> goOn) { goOn_ = std::move(goOn); }

    bool write(const void* bytes, std::size_t size);
    /// Fewer than size at the end or on an error.
    std::size_t read(void* bytes, std::size_t size);
    /// whence as for lseek.
    bool seek(std::int64_t offset, int whence);
    std::int64_t tell();

    /// True when all writes so far succeeded and the target has the new contents.
    bool commit();
    /// Like commit(), whatever the writes made of it, where no file had the name.
    void keepRemains();

  private:
    void openBeside(mode_t mode);
    bool fail();
    bool flush();
    bool publish();
    bool copyOver();
    void keepBeside();

    QByteArray target_, temporary_; // temporary_ empty: written in memory
    std::function<bool()> goOn_;
    std::vector<std::uint8_t> buffer_;
    std::size_t used_ = 0;
    int file_ = -1, error_ = 0;
    bool replaces_ = false, inPlace_ = false, failed_ = false, lasting_ = true;
};

} // namespace velara
