// BatchPlatform: sends the messages of a program without a window to standard error.
#pragma once
#include "batch/drawing.h"
#include "platform/WindowlessPlatform.h"

namespace velara {

class BatchPlatform : public WindowlessPlatform {
  public:
    void message(const QString& title, const QString& text, Icon icon) override;
    /// For a process whose application object has them.
    Fonts& fonts() override { return *fonts_; }
    /// The picture that comes by standard input, read by the reader of the extension, or by its mark where that is
    /// empty.
    LoadedPicture fromStandardInput(const QString& extension);

  private:
    std::unique_ptr<Fonts> fonts_ = systemFonts();
};

/// A line on standard error, after the program's name.
void complain(const QString& text);

} // namespace velara
