// BatchPlatform: messages of a program without a window go to the error output.
#pragma once
#include "platform/WindowlessPlatform.h"

namespace velara {

class BatchPlatform : public WindowlessPlatform {
  public:
    void message(const QString& title, const QString& text, Icon icon) override;
};

/// A line on the error output, behind the program's name.
void complain(const QString& text);

} // namespace velara
