// XXH3 by the best vectors of the processor in use: the library chooses among them on x86 only.
#pragma once

#if defined(__x86_64__) && __has_include(<xxh_x86dispatch.h>)
#include <xxh_x86dispatch.h>
#else
#define XXH_INLINE_ALL // many short pieces: calls would take half of the time
#include <xxhash.h>
#endif
