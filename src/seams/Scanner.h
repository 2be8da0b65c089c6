// Scanner: the scanners of this machine. All answers arrive later, from the message loop, each once and none after
// cancel(). One call at a time: a new one cancels the one before.
#pragma once
#include <QList>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <functional>

namespace velara {

struct ScanSource {
    QString device; // the system's name
    QString title;  // maker, model and kind, for the user
};

/// The choices that a source offers.
struct ScanRange {
    QStringList modes;      // in the source's own words ("Gray", "Color"); may be empty
    QString mode;           // the current one
    QList<int> resolutions; // dots per inch, ascending; each a choice, or the ends of a range
    bool anyBetween = false;
    int resolution = 0; // the current one; 0: it has none
    QSizeF bed;         // millimetres; empty: the area can't be chosen
};

struct ScanJob {
    QString device, mode; // mode empty: the current one
    int resolution = 0;   // 0: the current one
    QRectF area;          // millimetres; empty: the whole bed
};

class Scanner {
  public:
    virtual ~Scanner() = default;
    /// reason, here and below: for the user; empty on success.
    virtual void list(std::function<void(const QList<ScanSource>&, const QString& reason)> done) = 0;
    virtual void describe(const QString& device, std::function<void(const ScanRange&, const QString& reason)> done) = 0;
    /// Scans one picture into a bmp file. progress is not called while it is unknown. Nothing is written on failure.
    virtual void acquire(const ScanJob& job, const QString& path, std::function<void(int percent)> progress,
                         std::function<void(const QString& reason)> done) = 0;
    virtual void cancel() = 0;
};

} // namespace velara
