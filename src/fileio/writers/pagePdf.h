// A page with a picture as a PDF document.
#pragma once
#include "seams/Printers.h"

namespace velara {

/// Writes it to the file at path, which is whole afterwards or as it was; reads nothing but its arguments, so that any
/// thread may call it. goOn is asked now and then. A picture that is finer on paper than its quality asks for is
/// resampled to that; a draft is stored with loss, the others as they are. The reason why not, in words for a person;
/// empty when it is written.
QString writePagePdf(const QString& path, const PrintPage& page, const std::function<bool()>& goOn);

} // namespace velara
