// BatchPlatform: sends the messages of a program without a window to standard error.
#pragma once
#include "platform/WindowlessPlatform.h"

namespace velara {

class BatchPlatform : public WindowlessPlatform {
  public:
    void message(const QString& title, const QString& text, Icon icon) override;
};

/// A line on standard error, after the program's name.
void complain(const QString& text);

} // namespace velara
