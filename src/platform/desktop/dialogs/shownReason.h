// Why something failed, in the user's language.
#pragma once
#include <QString>

namespace velara {

/// Reasons are made in English, by the helper programs that parse pictures and by code that programs without windows
/// share. A text that is one of the known sentences, with any values in it, comes back translated; any other as it is.
QString shownReason(const QString& english);

} // namespace velara
