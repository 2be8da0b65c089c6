// velara-decode with its libraries loaded, for programs that read very many pictures.
#pragma once

namespace velara::decode {

/// Loads what most readers need. Then each message at descriptor 3 is an extension and wishes, with the three
/// descriptors of a reader; the answer is the pid of a fork of this process, a child of the program that asks, which
/// reads the one picture as answer() does. This process looks into no picture. Ends with the program that asks.
[[noreturn]] void serveForks();

} // namespace velara::decode
