#include "fileio/readInBackground.h"
#include "fileio/formats.h"
#include <QObject>

namespace velara {

void inBackground(Platform& platform, QObject* owner, std::function<void(const GoOn&)> work, std::function<void()> done)
{
    const auto request = std::make_shared<Machine::Request>();
    const auto gone = QObject::connect(owner, &QObject::destroyed, [request] { request->reset(); });
    *request = platform.inBackground(std::move(work), [request, gone, done = std::move(done)] {
        QObject::disconnect(gone);
        const Machine::Request kept = std::exchange(*request, nullptr); // has this function
        done();
    });
}

void readInBackground(Platform& platform, QObject* owner, const QString& path,
                      std::function<void(const LoadedPicture&)> then)
{
    const auto loaded = std::make_shared<LoadedPicture>();
    const auto read = [&platform, path, loaded](const GoOn& goOn) {
        *loaded = platform.loadPicture(path, extensionOf(path), goOn);
    };
    inBackground(platform, owner, read, [loaded, then = std::move(then)] { then(*loaded); });
}

} // namespace velara
