// CupsPrinters: the real Printers. Each request to the print server has a thread of its own; Qt's printing isn't used,
// as it asks the server in the window's thread.
#pragma once
#include "platform/BackgroundQueue.h"
#include "platform/desktop/printing/Talks.h"
#include "seams/Printers.h"
#include <map>

namespace velara {

class Platform;

class CupsPrinters final : public Printers {
  public:
    explicit CupsPrinters(Platform& platform) : platform_(platform) {}

    Request list(std::function<void(const List&)> done) override;
    void setCurrent(const QString& name) override;
    Request facts(const QString& printer, std::function<void(const PrinterFacts&)> done) override;
    PrinterFacts fileFacts() override;
    Request options(const QString& printer, std::function<void(const Options&)> done) override;
    void choose(const PrinterChoice& choice) override;
    Request print(const QString& printer, const PrintPage& page, Done done) override;
    Request printToFile(const QString& path, const PrintPage& page, Done done) override;

  private:
    /// The choice for a printer, if any.
    PrinterChoice chosenFor(const QString& printer) const;

    Platform& platform_;
    std::map<QString, PrinterChoice> chosen_;
    bool toFile_ = false; // chosen by the user
    Talks talks_;
    BackgroundQueue files_;
};

} // namespace velara
