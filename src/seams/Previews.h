// Previews: small copies of picture files, read in the background. Each answer arrives once, from the message loop and
// never during the call; the last request is read first.
#pragma once
#include <QImage>
#include <QString>
#include <functional>
#include <memory>

namespace velara {

struct Preview {
    QImage image;   // the whole picture, 32 bits without alpha, never enlarged; null: it can't be read
    QSize size;     // of the picture itself; empty: unknown
    QString reason; // why it can't be read or is incomplete, for the user
};

class Previews {
  public:
    static constexpr int kThumbnailSide = 256;
    using Done = std::function<void(const Preview&)>;
    /// Releasing it cancels the reading: no answer comes then.
    using Request = std::shared_ptr<void>;

    virtual ~Previews() = default;
    /// The picture at path, scaled down if it is larger than the box.
    [[nodiscard]] virtual Request picture(const QString& path, QSize box, Done done) = 0;
    /// The same at kThumbnailSide, from the desktop's shared thumbnail cache if it is there; a new one is stored there.
    [[nodiscard]] virtual Request thumbnail(const QString& path, Done done) = 0;
};

} // namespace velara
