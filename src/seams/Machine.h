// Machine: what the program asks of the computer that it runs on.
#pragma once
#include "seams/GoOn.h"
#include <QString>
#include <cstdint>
#include <memory>

namespace velara {

class Machine {
  public:
    virtual ~Machine() = default;

    /// Milliseconds of a clock that wraps around.
    virtual std::uint32_t milliseconds() = 0;
    /// Uniform in [0, 1).
    virtual double random() = 0;
    /// The folder that program paths start from, without a trailing separator: the executable's if it is portable, else
    /// $XDG_DATA_HOME/velara-studio; then some have another place (fileio/disk/userFolders.h).
    virtual QString programFolder() = 0;
    /// True when an earlier instance of the editor runs in this session.
    virtual bool previousInstance() = 0;
    /// A per-user value under (executable name, section, key).
    virtual QString setting(const QString& section, const QString& key, const QString& otherwise) = 0;
    virtual void setSetting(const QString& section, const QString& key, const QString& value) = 0;

    /// Whoever lets go of it gives the work up: goOn says no, and no answer comes.
    using Request = std::shared_ptr<void>;
    /// Does work in a thread beside the window's, one after the other; then done comes from the event loop, never
    /// during the call. work knows no window, and is to end soon once goOn says no.
    virtual Request inBackground(std::function<void(const GoOn& goOn)> work, std::function<void()> done) = 0;
};

} // namespace velara
