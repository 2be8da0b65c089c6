// Scanner: the scanners of this machine. All answers come later, from the message loop, each once and none after
// cancel(); one call at a time, a new one cancels the one before.
#pragma once
#include <QList>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <functional>

namespace velara {

struct ScanSource {
    QString device; // how the system calls it
    QString title;  // maker, model and kind, for a person
};

/// What a source can be asked for.
struct ScanRange {
    QStringList modes;      // in the source's own words ("Gray", "Color"); may be empty
    QString mode;           // as it stands
    QList<int> resolutions; // dots an inch, ascending; one a choice, or the first and the last of a range
    bool anyBetween = false;
    int resolution = 0; // as it stands; 0: it has none
    QSizeF bed;         // millimetres; empty: the area can't be chosen
};

struct ScanJob {
    QString device, mode; // mode empty: as it stands
    int resolution = 0;   // 0: as it stands
    QRectF area;          // millimetres; empty: all of it
};

class Scanner {
  public:
    virtual ~Scanner() = default;
    /// reason, here and below: in words for a person; empty when all went well.
    virtual void list(std::function<void(const QList<ScanSource>&, const QString& reason)> done) = 0;
    virtual void describe(const QString& device, std::function<void(const ScanRange&, const QString& reason)> done) = 0;
    /// Scans one picture into a bmp file. progress is silent while it can't be told.
    /// Nothing is written when it fails.
    virtual void acquire(const ScanJob& job, const QString& path, std::function<void(int percent)> progress,
                         std::function<void(const QString& reason)> done) = 0;
    virtual void cancel() = 0;
};

} // namespace velara
