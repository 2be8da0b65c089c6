// The machine side of Platform, common to programs with and without windows: clock, random source, program folder,
// settings, picture files. QtPlatform and WindowlessPlatform add the rest.
#pragma once
#include "platform/BackgroundQueue.h"
#include "seams/Platform.h"
#include <random>

namespace velara {

class CorePlatform : public Platform {
  public:
    CorePlatform();
    ~CorePlatform() override;

    std::uint32_t milliseconds() override;
    double random() override;
    /// Determined at the first call; the folder exists then, unless it can't be made.
    QString programFolder() override;
    /// The first call registers this process as the session's editor.
    bool previousInstance() override;
    QString setting(const QString& section, const QString& key, const QString& otherwise) override;
    void setSetting(const QString& section, const QString& key, const QString& value) override;
    Request inBackground(std::function<void(const GoOn&)> work, std::function<void()> done) override
    {
        return background_.add(std::move(work), std::move(done));
    }
    LoadedPicture loadPicture(const QString& path, const QString& extension, const GoOn& goOn = {},
                              int page = 1) override;

  protected:
    /// The same for bytes that aren't a file; name is used in the reason.
    LoadedPicture decodeBytes(const QByteArray& bytes, const QString& name, const QString& extension, const GoOn& goOn);

  private:
    std::mt19937_64 random_;
    QString programFolder_;
    int instance_ = -1;          // the locked file of the session
    BackgroundQueue background_; // last: its work may read pictures until it has ended
};

/// executableFolder if there is a file called "portable" and others can be made, else the folder of an installed
/// program ($XDG_DATA_HOME/velara-studio), which is created.
QString chooseProgramFolder(const QString& executableFolder);

} // namespace velara
