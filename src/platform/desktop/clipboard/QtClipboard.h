// QtClipboard: the real Clipboard. Our own pictures go out and come back as they are; what other programs offer comes
// as bytes (ClipboardOffer) and is read where files are.
#pragma once
#include "seams/Clipboard.h"
#include <QMimeData>
#include <QPointer>
#include <functional>

class QImage;

namespace velara {

class QtClipboard final : public Clipboard {
  public:
    /// Makes a picture of bytes by the reader of an extension; name is what the reason calls them.
    using Read = std::function<LoadedPicture(const QByteArray& bytes, const QString& name, const QString& extension,
                                             const GoOn& goOn)>;
    /// What stands before the person while the picture comes and is read; name is what it is called.
    using Waiting = std::function<GoOn(const QString& name)>;
    QtClipboard(Read read, Waiting waiting) : read_(std::move(read)), waiting_(std::move(waiting)) {}

    LoadedPicture bitmap() override;
    bool setBitmap(const Bits& bits) override;
    bool setPart(const Bits& part) override;
    void clear() override;

  private:
    bool offer(const Bits& bits, QImage (*make)(const Bits&));
    LoadedPicture received();

    Read read_;
    Waiting waiting_;
    QPointer<QMimeData> ours_; // what this program last put there, while it is there
};

} // namespace velara
