// Report: a file of JSON lines, one a picture, written as soon as it is done.
#pragma once
#include "fileio/load/Descriptor.h"
#include <QString>

namespace velara {

struct ReportLine {
    QString input, output;
    const char* result; // "done", "skipped" or "failed"
    std::int64_t bytes = 0;
    double milliseconds = 0;
    QString reason = {};
};

/// The line with its end. A byte of a name that is no UTF-8 is the escape of a lone surrogate, "\udc80" to "\udcff".
QByteArray jsonOf(const ReportLine& line);

class Report {
  public:
    /// Empty: none. "-": standard output. Throws a Failure where the file can't be written.
    explicit Report(const QString& path);
    /// Tells the user once when it can't be written any more.
    void add(const ReportLine& line);
    bool isWhole() const { return isWhole_; }

  private:
    Descriptor file_;
    bool isWhole_ = true;
};

} // namespace velara
