// Device: one opened scanner, through the library. Any call may take as long as the device likes.
#pragma once
#include <QList>
#include <QSizeF>
#include <QStringList>
#include <functional>
#include <sane/sane.h>
#include <stdexcept>

namespace velara {

/// The library's error, in its words.
struct ScanFailure : std::runtime_error {
    explicit ScanFailure(SANE_Status status) : std::runtime_error(sane_strstatus(status)), status(status) {}
    explicit ScanFailure(const char* reason) : std::runtime_error(reason) {}
    SANE_Status status = SANE_STATUS_INVAL;
};
inline void check(SANE_Status status)
{
    if (status != SANE_STATUS_GOOD) throw ScanFailure(status);
}

class Device {
  public:
    explicit Device(const char* name) { check(sane_open(name, &handle_)); }
    ~Device() { sane_close(handle_); }
    Device(const Device&) = delete;
    SANE_Handle handle() const { return handle_; }

    /// The option by its well-known name, if it exists and is active. 0: none.
    SANE_Int option(const char* name) const;
    const SANE_Option_Descriptor* descriptor(SANE_Int option) const;
    QString text(SANE_Int option) const;
    void setText(SANE_Int option, const QString& value) const;
    /// Of an integer or a fixed-point option.
    double number(SANE_Int option) const;
    void setNumber(SANE_Int option, double value) const;

  private:
    SANE_Handle handle_ = nullptr;
};

} // namespace velara
