// FilePreviews: the real Previews. Every file, the shared thumbnails too, is parsed by velara-decode.
#pragma once
#include "platform/BackgroundQueue.h"
#include "seams/Previews.h"

namespace velara {

class FilePreviews final : public Previews {
  public:
    Request picture(const QString& path, QSize box, Done done) override;
    Request thumbnail(const QString& path, Done done) override;

  private:
    BackgroundQueue pictures_, thumbnails_; // a picture doesn't wait for rows of thumbnails
};

} // namespace velara
