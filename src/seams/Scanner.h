// Scanner: the scanners of this machine. All answers arrive later, from the message loop, each once and none after
// cancel(). One call at a time: a new one cancels the one before.
#pragma once
#include <QList>
#include <QRectF>
#include <QString>
#include <algorithm>
#include <cstdlib>
#include <functional>

namespace velara {

struct ScanSource {
    QString device; // the system's name
    QString title;  // maker, model and kind, for the user; of several alike with the device
};

/// What a scanner can do with one of its feeds in one mode.
struct ScanChoice {
    QString feed = {}, mode = {}; // in the device's own words ("Flatbed", "Gray"); empty: there is no choice
    bool isFeeder = false;        // it gives page after page until it is empty
    QList<int> resolutions = {};  // dots per inch, ascending: each a choice, or the ends of a range; empty: no choice
    int step = 0;                 // between the resolutions of a range; 0: they are no range
    int resolution = 0;           // the usual one; 0: unknown
    QSizeF bed = {};              // millimetres; empty: the area can't be chosen

    /// The resolution that the scanner takes for one.
    int nearest(int dpi) const;
};

struct ScanRange {
    QList<ScanChoice> choices; // ordered by feed
    int current = 0;           // one of them
};

struct ScanJob {
    QString device, feed, mode;                // empty: the current one
    int resolution = 0;                        // 0: the current one
    QRectF area = {};                          // millimetres; empty: the whole bed
    enum { Page, Pages, Preview } what = Page; // pages: all that are in the feeder
};

struct ScanCalls {
    std::function<void(int percent)> progress; // not called while it is unknown
    std::function<void()> page;                // the file contains a page; nothing more happens until next()
    std::function<void(const QString& reason)> done;
};

class Scanner {
  public:
    virtual ~Scanner() = default;
    /// reason, here and below: for the user; empty on success.
    virtual void list(std::function<void(const QList<ScanSource>&, const QString& reason)> done) = 0;
    virtual void describe(const QString& device, std::function<void(const ScanRange&, const QString& reason)> done) = 0;
    /// Scans pages into a bmp file, one after the other. The file is removed in the end.
    virtual void acquire(const ScanJob& job, const QString& path, ScanCalls calls) = 0;
    /// The page in the file is no longer needed: goes on with the next one.
    virtual void next() = 0;
    virtual void cancel() = 0;
};

inline int ScanChoice::nearest(int dpi) const
{
    if (resolutions.isEmpty()) return dpi;
    const int least = resolutions.front(), most = resolutions.back();
    if (step > 0) return std::clamp(least + (dpi - least + step / 2) / step * step, least, most);
    return *std::ranges::min_element(resolutions, {}, [dpi](int each) { return std::abs(each - dpi); });
}

} // namespace velara
