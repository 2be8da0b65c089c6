// SaneScanner: scanners through velara-scan, one child per call, so that no driver can block the editor.
#pragma once
#include "seams/Scanner.h"
#include <QObject>
#include <QPointer>

class QProcess;

namespace velara {

class SaneScanner final : public QObject, public Scanner {
    Q_OBJECT
  public:
    /// helper: the path of velara-scan.
    explicit SaneScanner(const QString& helper);
    ~SaneScanner() override;

    void list(std::function<void(const QList<ScanSource>&, const QString&)> done) override;
    void describe(const QString& device, std::function<void(const ScanRange&, const QString&)> done) override;
    void acquire(const ScanJob& job, const QString& path, ScanCalls calls) override;
    void next() override;
    /// Asks the child to end its scan cleanly, and kills it if it doesn't.
    void cancel() override;

  private:
    using Line = std::function<void(const QStringList& words)>;
    /// Starts the helper; each line it prints goes to line, its end to done.
    void start(const QStringList& arguments, const Line& line, std::function<void(const QString& reason)> done);

    QString helper_;
    QPointer<QProcess> child_;
};

} // namespace velara
