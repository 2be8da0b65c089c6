// From the program with the readers of common formats to the one with all.
#pragma once
#include <string_view>

namespace velara::decode {

/// Whether this program has the readers for a file of that extension (lower case) with these first bytes at
/// descriptor 5.
bool readsFileHere(std::string_view extension);
/// Goes on as velara-decode-all with the same arguments and descriptors; returns when there is no such program.
void becomeAllReaders(char** argv);

} // namespace velara::decode
