// FilePreviews: the real Previews. Every file, shared thumbnails included, is parsed by velara-decode.
#pragma once
#include "platform/BackgroundQueue.h"
#include "seams/Previews.h"
#include <chrono>

namespace velara {

class FilePreviews final : public Previews {
  public:
    /// thumbnailTime: the total time limit of a thumbnail.
    explicit FilePreviews(std::chrono::seconds thumbnailTime = std::chrono::seconds(5)) : thumbnailTime_(thumbnailTime)
    {
    }

    Request picture(const QString& path, QSize box, Done done) override;
    Request thumbnail(const QString& path, Done done) override;

  private:
    std::chrono::seconds thumbnailTime_;
    BackgroundQueue pictures_;      // doesn't wait for rows of thumbnails
    BackgroundQueue thumbnails_{2}; // two threads: one slow thumbnail doesn't block the others
};

} // namespace velara
