#include "fileio/decode/readers.h"
namespace velara::decode {
Decoded readWmf(FileBytes&) { return {}; }
Decoded readEmf(FileBytes&) { return {}; }
} // namespace velara::decode
