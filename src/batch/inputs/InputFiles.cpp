#include "batch/inputs/InputFiles.h"
#include "fileio/disk/nativeName.h"

namespace velara {

void InputFiles::add(const InputFile& file)
{
    const QString folder = file.path.left(file.path.lastIndexOf(u'/') + 1);
    const dev_t device = file.identity.device;
    const bool isSame = !folders_.empty() && folders_.back().device == device && folders_.back().path == folder &&
                        folders_.back().dir == file.dir;
    if (!isSame) folders_.push_back({folder, file.dir, device});
    entries_.push_back({file.identity.inode, file.seconds, static_cast<std::uint32_t>(file.nanoseconds),
                        static_cast<std::uint32_t>(folders_.size() - 1), names_.size()});
    names_ += nativeName(file.path.mid(folder.size())).constData();
    names_ += '\0';
}

QString InputFiles::path(int at) const
{
    const Entry& entry = entries_[static_cast<std::size_t>(at)];
    return folders_[entry.folder].path + nameFrom(names_.c_str() + entry.name);
}

FileIdentity InputFiles::identity(int at) const
{
    const Entry& entry = entries_[static_cast<std::size_t>(at)];
    return {folders_[entry.folder].device, entry.inode};
}

InputFile InputFiles::operator[](int at) const
{
    const Entry& entry = entries_[static_cast<std::size_t>(at)];
    return {path(at), folders_[entry.folder].dir, identity(at), entry.seconds, entry.nanoseconds};
}

} // namespace velara
