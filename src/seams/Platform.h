// Platform: what the program asks of the windowing system and of the machine, as one interface. QtPlatform is the real
// one of the editor, WindowlessPlatform that of the others, RecordingPlatform (tests/support) the scripted one.
//
// To add an operation: one pure virtual here with its meaning, one body in each of the three.
#pragma once
#include "pixels/Bits.h"
#include <QString>
#include <QStringList>
#include <cstdint>
#include <functional>
#include <optional>

namespace velara {

class Fonts;
class Previews;
class Scanner;
class Screen;
class Wallpaper;

enum class Icon { None, Information, Exclamation, Critical };
enum class Answer { Yes, No, Cancel };

/// What a file dialog shows. filter is "caption|patterns|caption|patterns|...", patterns split by semicolons.
struct FileDialog {
    QString title;
    QString filter;
    QString folder;
    QString defaultPattern = {};
    /// For a save dialog: the extension of a name without one, where the chosen filter stands for several.
    QString extension = {};
    /// The file that a save under this name makes: whether that one may be replaced is asked.
    std::function<QString(const QString&)> writtenAs = {};
};

/// A picture read from a file, or the reason why it can't be read, in words for a person. A picture may have a reason
/// too: why it is not all there.
struct LoadedPicture {
    Bits bits;
    QString reason;
    bool ok() const { return !bits.isNull(); }
};

class Platform {
  public:
    virtual ~Platform() = default;

    // --- Machine
    /// Milliseconds of a clock that wraps.
    virtual std::uint32_t milliseconds() = 0;
    /// Uniform in [0, 1).
    virtual double random() = 0;
    /// The folder that all program paths start from, without a trailing separator: the executable's where it can be
    /// written to, else $XDG_DATA_HOME/velara-studio.
    virtual QString programFolder() = 0;
    /// True when an earlier instance of the editor runs in this session.
    virtual bool previousInstance() = 0;
    /// Per-user value under (executable name, section, key).
    virtual QString setting(const QString& section, const QString& key, const QString& otherwise) = 0;
    virtual void setSetting(const QString& section, const QString& key, const QString& value) = 0;

    // --- Message loop
    /// Handles what waits in the message loop. Re-entry is legal: any command may run inside.
    virtual void yield() = 0;

    // --- Messages and common dialogs
    virtual void message(const QString& title, const QString& text, Icon icon) = 0;
    virtual Answer askYesNoCancel(const QString& title, const QString& text, Icon icon) = 0;
    /// No value: the user cancelled.
    virtual std::optional<QString> openFileName(const FileDialog& dialog) = 0;
    virtual std::optional<QString> saveFileName(const FileDialog& dialog) = 0;
    virtual std::optional<QString> pickFolder(const QString& title, const QString& start) = 0;
    /// path shortened with an ellipsis so that it takes at most so many pixels in the menu font.
    virtual QString compactPath(const QString& path, int pixels) = 0;

    // --- Picture files
    /// Reads a picture with the reader of the extension (lower case, no dot), in a child process under limits.
    virtual LoadedPicture loadPicture(const QString& path, const QString& extension) = 0;

    // --- Clipboard bitmaps
    /// Whether a picture is offered; asks its owner, for a second at most.
    virtual bool clipboardHasBitmap() = 0;
    /// What another program put there is read as a file would be. Neither picture nor reason: there is none.
    virtual LoadedPicture clipboardBitmap() = 0;
    virtual bool setClipboardBitmap(const Bits& bits) = 0;
    /// A part of a picture, by alpha: pixels with a fourth byte of 255 are transparent, all others opaque.
    virtual bool setClipboardPart(const Bits& part) = 0;
    virtual void clearClipboard() = 0;

    // --- Services with an interface of their own
    virtual Fonts& fonts() = 0;
    virtual Previews& previews() = 0;
    virtual Screen& screen() = 0;
    virtual Wallpaper& wallpaper() = 0;
    virtual Scanner& scanner() = 0;
};

} // namespace velara
