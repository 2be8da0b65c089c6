// CupsPrinters: the real Printers. Each question to the print server has a thread of its own; nothing of the toolkit's
// printing is used, as it asks the server in the window's thread.
#pragma once
#include "platform/BackgroundQueue.h"
#include "platform/desktop/printing/Talks.h"
#include "seams/Printers.h"

namespace velara {

class Platform;

class CupsPrinters final : public Printers {
  public:
    explicit CupsPrinters(Platform& platform) : platform_(platform) {}

    Request list(std::function<void(const List&)> done) override;
    void setCurrent(const QString& name) override;
    Request paper(const QString& printer, std::function<void(const Paper&)> done) override;
    Paper usualPaper() override;
    Request options(const QString& printer, std::function<void(const Options&)> done) override;
    void choose(const PrinterChoice& choice) override;
    Request print(const QString& printer, const PrintPage& page, Done done) override;
    Request printToFile(const QString& path, const PrintPage& page, Done done) override;

  private:
    /// What is chosen for a printer, which may be nothing.
    PrinterChoice chosenFor(const QString& printer) const;

    Platform& platform_;
    PrinterChoice chosen_;
    bool toFile_ = false; // by choice
    Talks talks_;
    BackgroundQueue files_;
};

} // namespace velara
