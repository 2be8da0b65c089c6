// ClipboardOffer: what another program offers on the clipboard, as bytes. Nothing is made of them here: a picture from
// outside is read where files are. One object a paste: all its answers have nine tenths of a second together.
#pragma once
#include "seams/PictureReader.h"
#include <QByteArray>
#include <QStringList>
#include <memory>
#include <optional>

namespace velara {

class ClipboardOffer {
  public:
    virtual ~ClipboardOffer() = default;

    /// The types that are offered, by their MIME names, at most 256 and none twice; empty when there are none.
    virtual QStringList types() = 0;
    /// Nothing when the owner doesn't give it. An owner whose time is over is asked no more. goOn is asked while the
    /// bytes come, which may take as long as they keep coming; false gives them up.
    virtual std::optional<QByteArray> bytes(const QString& type, const GoOn& goOn) = 0;
};

/// What is on the clipboard now.
std::unique_ptr<ClipboardOffer> clipboardOffer();

/// The X server's, over a connection of its own: the one of the toolkit waits five seconds for each answer. Null where
/// there is no X server.
std::unique_ptr<ClipboardOffer> xClipboardOffer();

} // namespace velara
