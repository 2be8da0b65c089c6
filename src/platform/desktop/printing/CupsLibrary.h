// The functions of the printing library that are used here. It is loaded when they are first asked for: with the
// libraries that it needs it would be a seventh of what a start of the program reads, and few starts print.
#pragma once
#include "fileio/decode/modern/LateLibrary.h"
#include <cups/cups.h>

namespace velara {

/// Call them only where late.complete(), as is so when there is a Server.
struct CupsLibrary {
    decode::LateLibrary late{VELARA_LIBCUPS};
    VELARA_LATE(cupsAddOption);
    VELARA_LATE(cupsCancelJob2);
    VELARA_LATE(cupsCopyDestInfo);
    VELARA_LATE(cupsCreateJob);
    VELARA_LATE(cupsDoRequest);
    VELARA_LATE(cupsEncryption);
    VELARA_LATE(cupsFindDestDefault);
    VELARA_LATE(cupsFindDestSupported);
    VELARA_LATE(cupsFinishDocument);
    VELARA_LATE(cupsFreeDestInfo);
    VELARA_LATE(cupsFreeDests);
    VELARA_LATE(cupsFreeOptions);
    VELARA_LATE(cupsGetDestMediaByIndex);
    VELARA_LATE(cupsGetDestMediaByName);
    VELARA_LATE(cupsGetDestMediaCount);
    VELARA_LATE(cupsGetDests2);
    VELARA_LATE(cupsGetNamedDest);
    VELARA_LATE(cupsGetOption);
    VELARA_LATE(cupsLastErrorString);
    VELARA_LATE(cupsServer);
    VELARA_LATE(cupsStartDocument);
    VELARA_LATE(cupsUser);
    VELARA_LATE(cupsWriteRequestData);
    VELARA_LATE(httpClose);
    VELARA_LATE(httpConnect2);
    VELARA_LATE(httpSetTimeout);
    VELARA_LATE(ippAddString);
    VELARA_LATE(ippDelete);
    VELARA_LATE(ippFindAttribute);
    VELARA_LATE(ippGetInteger);
    VELARA_LATE(ippGetRange);
    VELARA_LATE(ippGetString);
    VELARA_LATE(ippGetValueTag);
    VELARA_LATE(ippNewRequest);
    VELARA_LATE(ippPort);
};

inline const CupsLibrary& cups()
{
    static const CupsLibrary functions;
    return functions;
}

} // namespace velara
