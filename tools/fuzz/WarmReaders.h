// While an object lives, pictures are read by forks of one reader that has already loaded its libraries: a tenth of the
// time of a start. The loader treats its reader in the same way.
#pragma once
#include "fileio/load/Descriptor.h"
#include "fileio/load/startReader.h"

namespace velara::fuzz {

class WarmReaders {
  public:
    WarmReaders();
    ~WarmReaders();
    WarmReaders(const WarmReaders&) = delete;
    WarmReaders& operator=(const WarmReaders&) = delete;

  private:
    pid_t pid_ = -1;
};

} // namespace velara::fuzz
