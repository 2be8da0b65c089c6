// --web: OUTPUT is what "Save for Web" writes.
#pragma once
#include "batch/Failure.h"
#include "fileio/web/WebSettings.h"
#include <QStringList>

namespace velara {

struct WebOrder {
    WebSettings settings;
    std::optional<std::int64_t> maxBytes;
};

/// The options of a web file as they came on the command line, each with its value (empty where it takes none).
using WebOptions = std::vector<std::pair<QString, QString>>;

/// Whether an option is one of a web file, and whether a value has to follow.
std::optional<bool> webOptionTakesValue(const QString& name);
/// Nothing when there is no --web among them; throws Failure that names what is of no use and lists what there is.
std::optional<WebOrder> webOrder(const WebOptions& options);
/// Writes the file; "TYPE, DEPTH, SIZE". Throws Failure; what stood under the name is whole then.
QString writeWeb(const Bits& picture, const WebOrder& order, const QString& output);

} // namespace velara
