// CupsPrinters: the real Printers. The print server is spoken with in a thread of its own, and a silent one is given up
// after ten seconds.
#pragma once
#include "platform/BackgroundQueue.h"
#include "seams/Printers.h"
#include <QPrinter>

namespace velara {

class Platform;

class CupsPrinters final : public Printers {
  public:
    explicit CupsPrinters(Platform& platform) : platform_(platform) {}

    Request list(std::function<void(const List&)> done) override;
    void setCurrent(const QString& name) override;
    Request paper(const QString& printer, std::function<void(const Paper&)> done) override;
    Paper usualPaper() override;
    Request print(const QString& printer, const PrintPage& page, Done done) override;
    Request printToFile(const QString& path, const PrintPage& page, Done done) override;
    void setUp(QWidget* over) override;

  private:
    Platform& platform_;
    std::unique_ptr<QPrinter> chosen_; // in the system's dialog, for one printer
    BackgroundQueue work_;
};

} // namespace velara
