// While one lives, pictures are read by forks of a velara-decode that has its libraries loaded, not by a new one each:
// for programs that read very many pictures.
#pragma once
#include "fileio/load/startReader.h"

namespace velara {

/// One at a time in a program; made by the thread that ends last, since its readers end with that one. A reader is
/// started anew where the loaded one can't be had.
class WarmReaders {
  public:
    /// extensions: lower case, those of the pictures to come; it has fewer readers to carry where these are common
    /// ones. Empty: any.
    explicit WarmReaders(const QStringList& extensions = {});
    ~WarmReaders();
    WarmReaders(const WarmReaders&) = delete;
    WarmReaders& operator=(const WarmReaders&) = delete;

    bool started() const { return pid_ > 0; }

  private:
    pid_t pid_ = -1;
};

} // namespace velara
