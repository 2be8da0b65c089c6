// CupsPrinters: the real Printers. Each request to the print server has a thread of its own; Qt's printing isn't used,
// as it asks the server in the window's thread.
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
    /// The choice for a printer, if any.
    PrinterChoice chosenFor(const QString& printer) const;

    Platform& platform_;
    PrinterChoice chosen_;
    bool toFile_ = false; // chosen by the user
    Talks talks_;
    BackgroundQueue files_;
};

} // namespace velara
