// BatchPlatform: the outside world of a program without a window. Messages go to the error output, dialogs are
// cancelled, and there is no clipboard.
#pragma once
#include "platform/CorePlatform.h"

namespace velara {

class BatchPlatform : public CorePlatform {
  public:
    void yield() override {}
    void message(const QString& title, const QString& text, Icon icon) override;
    Answer askYesNoCancel(const QString&, const QString&, Icon) override { return Answer::Cancel; }
    std::optional<QString> openFileName(const FileDialog&) override { return {}; }
    std::optional<QString> saveFileName(const FileDialog&) override { return {}; }
    std::optional<QString> pickFolder(const QString&, const QString&) override { return {}; }
    QString compactPath(const QString& path, int) override { return path; }
    bool clipboardHasBitmap() override { return false; }
    Bits clipboardBitmap() override { return {}; }
    bool setClipboardBitmap(const Bits&) override { return false; }
    void clearClipboard() override {}
};

/// A line on the error output, behind the program's name.
void complain(const QString& text);

} // namespace velara
