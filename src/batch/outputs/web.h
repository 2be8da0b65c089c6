// --web: OUTPUT is written as "Save for Web" does.
#pragma once
#include "batch/Failure.h"
#include "fileio/web/WebSettings.h"
#include <QStringList>

namespace velara {

struct WebOrder {
    WebSettings settings;
    std::optional<std::int64_t> maxBytes;
};

/// The options of a web file as given on the command line, each with its value (empty if it takes none).
using WebOptions = std::vector<std::pair<QString, QString>>;

/// Whether an option is one of a web file, and whether it takes a value.
std::optional<bool> webOptionTakesValue(const QString& name);
/// Nothing when there is no --web among them; throws a Failure that names the unusable one and lists the choices.
std::optional<WebOrder> webOrder(const WebOptions& options);
/// Writes the file, with the camera's data where the format can hold it; returns "TYPE, DEPTH, SIZE". Throws Failure;
/// an existing file is intact then.
QString writeWeb(const Bits& picture, const WebOrder& order, const CameraData& camera, const QString& output);

} // namespace velara
