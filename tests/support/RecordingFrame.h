// RecordingFrame: the frame in tests of tools, views and dialogs. Changes go through a real workspace; everything else
// is recorded.
#pragma once
#include "document/Workspace.h"
#include "document/road/Frame.h"
#include "seams/Setup.h"
#include "support/RecordingPlatform.h"
#include <map>

namespace velara {

struct RecordingFrame final : Frame {
    RecordingPlatform platform_;
    Setup setup_;
    Workspace workspace_{platform_.programFolder() + "/Temp", platform_};
    cBitFilter& filter_ = workspace_.engine();
    ToolStores toolStores_;
    /// One line per call: "step" at the end of a change, "word: WORD", "report: WHAT: REASON", "adopted: PATH",
    /// "colours".
    std::vector<std::string> log;
    std::map<Panel, std::string> status;
    std::vector<int> progress;
    Document* document = nullptr; // the active one
    std::optional<Colour> colour; // the user's choice
    int snapshots = 0;
    std::function<void(const std::string& line)> onCall; // after each line of the log

    RecordingFrame();
    int logged(const std::string& line) const { return int(std::count(log.begin(), log.end(), line)); }
    /// Makes a document with the picture, and makes it active; its number is the count of those before.
    Document& open(const Bits& picture);
    /// Tests wait by it for the end of everything under way.
    void settle() { workspace_.wait(); }

    Platform& platform() override { return platform_; }
    Setup& setup() override { return setup_; }
    Workspace& workspace() override { return workspace_; }
    ToolStores& toolStores() override { return toolStores_; }
    DocumentHandle active() override { return document ? document->handle() : DocumentHandle(); }
    DocumentHandle adopt(const Bits& bits, const QString& path, Arrival arrival) override;
    void report(const QString& what, const Outcome& outcome) override;
    void Mmenu(const QString& word) override { note("word: " + word.toStdString()); }
    void setStatus(Panel panel, const QString& text) override { status[panel] = text.toStdString(); }
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
};

} // namespace velara
