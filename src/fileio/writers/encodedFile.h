// Files made by a velara-encode, which is ended when nobody wants them any more.
#pragma once
#include "fileio/disk/ByteSink.h"
#include "fileio/encode/EncodeProtocol.h"
#include "pixels/Bits.h"
#include "seams/CameraData.h"

namespace velara {

/// False when there is no memory or process for it, the encoder refuses, or the file can't be taken or isn't wanted;
/// that is asked every 20 ms. An ended process is waited for beside the caller.
bool writeEncoded(const Bits& picture, encode::Format format, int quality, ByteSink& to, const CameraData& carried);

} // namespace velara
