// ClipboardOffer: what another program offers on the clipboard, as bytes. Nothing is made of them here: a picture from
// outside is read where files are.
#pragma once
#include <QByteArray>
#include <QStringList>
#include <memory>
#include <optional>

namespace velara {

class ClipboardOffer {
  public:
    virtual ~ClipboardOffer() = default;

    /// The types that are offered, by their MIME names; empty when there are none.
    virtual QStringList types() = 0;
    /// Nothing when the owner doesn't give it. An owner that says nothing for a second is asked no more.
    virtual std::optional<QByteArray> bytes(const QString& type) = 0;
};

/// What is on the clipboard now.
std::unique_ptr<ClipboardOffer> clipboardOffer();

/// The X server's, over a connection of its own: the one of the toolkit waits five seconds for each answer. Null where
/// there is no X server.
std::unique_ptr<ClipboardOffer> xClipboardOffer();

} // namespace velara
