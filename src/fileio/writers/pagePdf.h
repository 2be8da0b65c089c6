// A page with a picture as a PDF document.
#pragma once
#include "seams/Printers.h"

namespace velara {

/// How a sheet that is viewed turned is stored: as it is viewed on a screen, or as it lies in the tray. Print servers
/// turn a wide page by the printer's preference, which may be either way; on a sheet as it is fed nothing is left to
/// turn.
enum class PageTurn { AsViewed, AsFed };

/// Writes it to the file at path, which is complete afterwards or unchanged; uses nothing but its arguments, so it may
/// be called on any thread. goOn is called now and then. A picture whose resolution on paper exceeds its quality is
/// downsampled; a draft is stored with lossy compression, the others lossless. Returns the reason of a failure, for the
/// user; empty when it is written.
QString writePagePdf(const QString& path, const PrintPage& page, const std::function<bool()>& goOn, PageTurn turn);

} // namespace velara
