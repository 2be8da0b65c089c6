// QtClipboard: the real Clipboard. Our own pictures are exchanged unchanged; what other programs offer comes as bytes
// (ClipboardOffer) and is decoded like a file.
#pragma once
#include "seams/Clipboard.h"
#include <QMimeData>
#include <QObject>
#include <QPointer>
#include <functional>

class QImage;

namespace velara {

class QtClipboard final : public Clipboard {
  public:
    /// Decodes bytes with the reader of an extension; name is used in the reason.
    using Read = std::function<LoadedPicture(const QByteArray& bytes, const QString& name, const QString& extension,
                                             const GoOn& goOn)>;
    /// Shown to the user while the picture arrives and is decoded; name is the picture's.
    using Waiting = std::function<GoOn(const QString& name)>;
    QtClipboard(Read read, Waiting waiting);

    LoadedPicture bitmap() override;
    int changesByOthers() const override { return others_; }
    bool setBitmap(const Bits& bits) override;
    bool setPart(const Bits& part) override;
    void clear() override;

  private:
    bool offer(const Bits& bits, QImage (*make)(const Bits&));
    LoadedPicture received();

    Read read_;
    Waiting waiting_;
    QObject watch_; // of the desktop's clipboard
    int others_ = 0;
    QPointer<QMimeData> ours_; // what this program last put there, while it is there
};

} // namespace velara
