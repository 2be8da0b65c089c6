// The machine side of Platform, the same with and without a window: clock, random source, program folder, settings,
// picture files. QtPlatform and WindowlessPlatform add the rest.
#pragma once
#include "fileio/load/PictureLoader.h"
#include "seams/Platform.h"
#include <random>

namespace velara {

class CorePlatform : public Platform {
  public:
    CorePlatform();
    ~CorePlatform() override;

    std::uint32_t milliseconds() override;
    double random() override;
    /// Decided at the first call; the folder exists then, unless it can't be made.
    QString programFolder() override;
    /// The first call claims the name of the session's editor.
    bool previousInstance() override;
    QString setting(const QString& section, const QString& key, const QString& otherwise) override;
    void setSetting(const QString& section, const QString& key, const QString& value) override;
    /// For any thread, with a goOn.
    LoadedPicture loadPicture(const QString& path, const QString& extension, const GoOn& goOn = {}) override;

  protected:
    /// Asked while the picture of that name is read, see PictureLoader.h.
    virtual GoOn whileReading(const QString& /*name*/) { return {}; }
    /// The same for bytes that are no file; name is what the reason calls them.
    LoadedPicture decodeBytes(const QByteArray& bytes, const QString& name, const QString& extension, const GoOn& goOn);

  private:
    std::mt19937_64 random_;
    QString programFolder_;
    int instance_ = -1; // the locked file of the session
};

/// executableFolder where files can be made in it and it isn't the system's (/usr), else dataHome/velara-studio
/// (dataHome empty: ~/.local/share), which is made.
QString chooseProgramFolder(const QString& executableFolder, const QString& dataHome);

} // namespace velara
