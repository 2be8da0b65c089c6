// RecordingFrame: the frame of tests of tools, views and dialogs. Changes go the real road of a workspace; everything
// else is written down.
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
    /// One line a call: "step" at the end of a change, "word: WORD", "report: WHAT: REASON", "adopted: PATH",
    /// "colours".
    std::vector<std::string> log;
    std::map<Panel, std::string> status;
    std::vector<int> progress;
    Document* document = nullptr; // the active one
    std::optional<Colour> colour; // that the user picks
    int snapshots = 0;
    std::function<void(const std::string& line)> onCall; // after each line of the log

    RecordingFrame();
    int logged(const std::string& line) const { return int(std::count(log.begin(), log.end(), line)); }
    /// A document with the picture, the active one; its number is the count of those before.
    Document& open(const Bits& picture);
    /// The word of a test for the end of all that is under way.
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
