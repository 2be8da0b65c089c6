// ClipboardOffer: what another program offers on the clipboard, as raw bytes. They are not interpreted here: foreign
// pictures are decoded like files. One object per paste: all its answers have nine tenths of a second together.
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

    /// The offered types, by MIME name, at most 256 and without duplicates; empty when there are none.
    virtual QStringList types() = 0;
    /// Nothing when the owner doesn't deliver it. An owner whose time is up is not asked again. goOn is called while
    /// the bytes arrive, which may take as long as they keep coming; false cancels.
    virtual std::optional<QByteArray> bytes(const QString& type, const GoOn& goOn) = 0;
};

/// The current contents of the clipboard.
std::unique_ptr<ClipboardOffer> clipboardOffer();

/// Through a connection of its own to the X server: Qt's waits five seconds for each answer. Null without an X server.
std::unique_ptr<ClipboardOffer> xClipboardOffer();

} // namespace velara
