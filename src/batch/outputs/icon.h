// --icon: OUTPUT is a Windows icon.
#pragma once
#include "pixels/Bits.h"
#include <QSize>
#include <QString>
#include <optional>

namespace velara {

struct IconOrder {
    QSize size;
    std::optional<Colour> mask = {};
};

/// Parses "WIDTHxHEIGHT" or "WIDTHxHEIGHT,mask:0x00BBGGRR"; throws a Failure that says what is allowed.
IconOrder iconOrder(const QString& text);

} // namespace velara
