// What the coordinator and its workers say to each other, in messages of a socket (SOCK_SEQPACKET) that no other
// program reads. The plan and the steps are in the memory of both.
#pragma once
#include <cstdint>

namespace velara {

/// To a worker. Read: begin to read the picture, while the one before is worked on. GoOn: work on the one that was told
/// as Ready and write it. The end of the connection ends the worker. Answers to Named: Write, with the number that the
/// name gets (1: none); Leave what is there; Refuse, since another picture or an input (-1) has the name.
struct WorkOrder {
    enum Kind : std::int32_t { Read, GoOn, Write, Leave, Refuse } kind;
    std::int32_t picture = -1; // its place in the plan
    std::int32_t number = 0;
};

/// Of a worker. Ready: the picture is read and waits for GoOn, since it may be too large for the memory left. Named:
/// the output has this size, which its name has in it; it waits for an answer.
struct Told {
    enum Kind : std::int32_t { Ready, Written, Skipped, Failed, Named } kind = Ready;
    std::int32_t picture = -1;
    std::int32_t diskIsFull = 0;
    std::int32_t reasonBytes = 0; // UTF-8, at the end of the message
    std::int32_t width = 0, height = 0;
    std::int64_t pixels = 0;
    std::int64_t bytes = 0;  // of the file written
    double milliseconds = 0; // from the begin of reading on, without waiting
};

constexpr std::size_t kMostReason = 4000;

} // namespace velara
