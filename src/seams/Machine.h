// Machine: what the program asks of the computer that it runs on and of its message loop.
#pragma once
#include <QString>
#include <cstdint>

namespace velara {

class Machine {
  public:
    virtual ~Machine() = default;

    /// Milliseconds of a clock that wraps around.
    virtual std::uint32_t milliseconds() = 0;
    /// Uniform in [0, 1).
    virtual double random() = 0;
    /// The folder that all program paths start from, without a trailing separator: the executable's if it is writable,
    /// else $XDG_DATA_HOME/velara-studio.
    virtual QString programFolder() = 0;
    /// True when an earlier instance of the editor runs in this session.
    virtual bool previousInstance() = 0;
    /// A per-user value under (executable name, section, key).
    virtual QString setting(const QString& section, const QString& key, const QString& otherwise) = 0;
    virtual void setSetting(const QString& section, const QString& key, const QString& value) = 0;
    /// Handles what waits in the message loop. Re-entry is legal: any command may run inside.
    virtual void yield() = 0;
};

} // namespace velara
