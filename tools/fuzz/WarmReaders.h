// While one lives, pictures are read by copies of one reader that has its libraries loaded already: a tenth of the time
// of a start. All that the loader does to its reader is the same.
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
