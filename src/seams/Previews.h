// Previews: small copies of picture files, read in the background. Each answer comes once, from the message loop and
// never during the call; what is asked last is read first.
#pragma once
#include <QImage>
#include <QString>
#include <functional>
#include <memory>

namespace velara {

struct Preview {
    QImage image;   // the whole picture, 32 bits without alpha, never enlarged; null: it can't be read
    QSize size;     // of the picture itself; empty: not known
    QString reason; // why it can't be read, or is not all there, in words for a person
};

class Previews {
  public:
    static constexpr int kThumbnailSide = 128;
    using Done = std::function<void(const Preview&)>;
    /// Whoever lets go of it gives the reading up: no answer comes then.
    using Request = std::shared_ptr<void>;

    virtual ~Previews() = default;
    /// The picture at path, scaled down where it is larger than the box.
    [[nodiscard]] virtual Request picture(const QString& path, QSize box, Done done) = 0;
    /// The same in kThumbnailSide, where there is one out of the cache that the desktop's programs share; a new one
    /// goes there.
    [[nodiscard]] virtual Request thumbnail(const QString& path, Done done) = 0;
};

} // namespace velara
