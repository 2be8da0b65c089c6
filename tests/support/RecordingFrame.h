// RecordingFrame: the frame of tests of tools, documents and dialogs. Changes go the real road on a draft; everything
// else is written down.
#pragma once
#include "document/Draft.h"
#include "document/road/Frame.h"
#include "seams/Setup.h"
#include "support/RecordingPlatform.h"
#include <map>

namespace velara {

struct RecordingFrame final : Frame {
    RecordingPlatform platform_;
    Setup setup_;
    cBitFilter filter_;
    ToolStores toolStores_;
    /// One line a call: "step" at the end of a change, "handed", "word: WORD", "report: WHAT: REASON",
    /// "adopted: PATH", "colours".
    std::vector<std::string> log;
    std::map<Panel, std::string> status;
    std::vector<int> progress;
    Document* document = nullptr; // the active one
    std::optional<Colour> colour; // that the user picks
    int snapshots = 0, number = 0;
    std::function<void(const std::string& line)> onCall; // after each line of the log

    int logged(const std::string& line) const { return int(std::count(log.begin(), log.end(), line)); }

    Platform& platform() override { return platform_; }
    Setup& setup() override { return setup_; }
    cBitFilter& filter() override { return filter_; }
    ToolStores& toolStores() override { return toolStores_; }
    DocumentHandle active() override { return document ? document->handle() : DocumentHandle(); }
    std::vector<DocumentHandle> openDocuments() override;
    DocumentHandle adopt(const Bits& bits, const QString& path, Arrival arrival) override;
    Outcome change(const DocumentHandle& document, const Job& job, After after) override;
    void finish(const DocumentHandle& document) override;
    void report(const QString& what, const Outcome& outcome) override;
    bool engineHolds(const Document& document) const override { return held_ == document.handle(); }
    void handOver(const Document& document) override;
    void Mmenu(const QString& word) override { note("word: " + word.toStdString()); }
    void setStatus(Panel panel, const QString& text) override { status[panel] = text.toStdString(); }
    int nextDocumentNumber() override { return number++; }
    void EnableMouseScrolling() override {}
    bool mouseScrolling() const override { return false; }
    void showColors() override { note("colours"); }
    std::optional<Colour> pickColour(Colour, const QString& what, QWidget*) override
    {
        note("colour: " + what.toStdString());
        return colour;
    }

  private:
    void note(const std::string& line);

    DocumentHandle held_;
};

} // namespace velara
