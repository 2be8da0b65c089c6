// InputFiles: very many files in little memory, some 40 bytes each beside its name.
#pragma once
#include <QString>
#include <cstdint>
#include <deque>
#include <string>
#include <sys/types.h>
#include <vector>

namespace velara {

/// A file by what it is, whatever names it has.
struct FileIdentity {
    dev_t device = 0;
    ino_t inode = 0;
    auto operator<=>(const FileIdentity&) const = default;
};

struct InputFile {
    QString path;
    QString dir = {};                          // the folders between the INPUT and the file
    FileIdentity identity = {};                // zeros: there is no such file
    std::int64_t seconds = 0, nanoseconds = 0; // when it was last changed
};

class InputFiles {
  public:
    void add(const InputFile& file);
    int size() const { return static_cast<int>(entries_.size()); }
    bool isEmpty() const { return entries_.empty(); }

    // 0 <= at < size()
    InputFile operator[](int at) const;
    QString path(int at) const;
    FileIdentity identity(int at) const;

  private:
    struct Folder {
        QString path, dir; // the path with the slash at its end, as it stands before the names
        dev_t device;
    };
    struct Entry {
        ino_t inode;
        std::int64_t seconds;
        std::uint32_t nanoseconds, folder;
        std::size_t name; // where it begins
    };
    std::vector<Folder> folders_; // each of consecutive files
    std::deque<Entry> entries_;
    std::string names_; // in the system's bytes, each with a zero at its end
};

} // namespace velara
