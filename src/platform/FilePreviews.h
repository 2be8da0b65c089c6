// FilePreviews: the real Previews. Every file, the shared thumbnails too, is parsed by velara-decode.
#pragma once
#include "platform/BackgroundQueue.h"
#include "seams/Previews.h"
#include <chrono>

namespace velara {

class FilePreviews final : public Previews {
  public:
    /// A thumbnail may take so long in all.
    explicit FilePreviews(std::chrono::seconds thumbnailTime = std::chrono::seconds(5)) : thumbnailTime_(thumbnailTime)
    {
    }

    Request picture(const QString& path, QSize box, Done done) override;
    Request thumbnail(const QString& path, Done done) override;

  private:
    std::chrono::seconds thumbnailTime_;
    BackgroundQueue pictures_;      // one doesn't wait for rows of thumbnails
    BackgroundQueue thumbnails_{2}; // nor those for one that takes all its time
};

} // namespace velara
