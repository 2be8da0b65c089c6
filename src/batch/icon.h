// --icon: OUTPUT is one Windows icon.
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

/// Of "WIDTHxHEIGHT" or "WIDTHxHEIGHT,mask:0x00BBGGRR"; throws Failure that says what may be given.
IconOrder iconOrder(const QString& text);
/// Throws Failure; what stood under the name is whole then.
void writeIcon(const Bits& picture, const IconOrder& order, const QString& output);

} // namespace velara
