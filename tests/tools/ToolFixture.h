// A document with its tools, a frame and a display that write down what the tools ask.
#pragma once
#include "engine/cBitFilter.h"
#include "seams/Frame.h"
#include "seams/Setup.h"
#include "support/RecordingPlatform.h"
#include "support/pictures.h"
#include "tools/Tools.h"
#include <QTemporaryDir>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace velara {

struct RecordingSurface final : ToolSurface {
    std::vector<std::string> log;
    std::vector<Rect> repainted;
    Pointer pointer = Pointer::Default;
    std::function<void()> onActivate;

    void note(const std::string& what) { log.push_back(what); }
    void activate() override
    {
        note("activate");
        if (onActivate) onActivate();
    }
    void ShowShape(BandShape shape, int x1, int y1, int x2, int y2, bool keep) override
    {
        note("show " + std::to_string(static_cast<int>(shape)) + ": " + std::to_string(x1) + "," + std::to_string(y1) +
             " " + std::to_string(x2) + "," + std::to_string(y2) + (keep ? " keep" : ""));
    }
    void HideShape(BandShape shape) override { note("hide " + std::to_string(static_cast<int>(shape))); }
    void setPointer(Pointer p) override { pointer = p; }
    void setWaiting(bool on) override { note(on ? "wait" : "waited"); }
    void repaint(const Rect& part) override
    {
        note("repaint");
        repainted.push_back(part);
    }
    void UpdateImage() override { note("image"); }
    void UpdateRegion() override { note("outline"); }
    void SetAutoRedraw(bool on) override { note(on ? "redraw on" : "redraw off"); }
    void StartTimer() override { note("start"); }
    void StopTimer() override { note("stop"); }
    void colourPicked() override { note("colour"); }
};

struct RecordingFrame final : Frame {
    RecordingPlatform platform_;
    Setup setup_;
    cBitFilter filter_;
    RecordingSurface* surface = nullptr;
    std::map<Panel, std::string> status;
    int snapshots = 0;

    Platform& platform() override { return platform_; }
    Setup& setup() override { return setup_; }
    cBitFilter& filter() override { return filter_; }
    void Mmenu(const QString&) override {}
    void Update(bool regionOnly, bool save) override
    {
        if (surface) surface->note(std::string("update ") + (regionOnly ? "1" : "0") + (save ? "1" : "0"));
        snapshots += save;
    }
    fImage* GetActiveImage() override { return nullptr; }
    void refreshUndoState() override {}
    void setStatus(Panel panel, const QString& text) override { status[panel] = text.toStdString(); }
    void cFilter_Progress(int) override {}
    QString UniqueCaption(const QString& text) override { return text; }
    int nextDocumentNumber() override { return 1; }
    std::optional<Colour> pickColour(Colour, const QString&, QWidget*) override { return std::nullopt; }
};

struct ToolFixture : ::testing::Test {
    QTemporaryDir folder;
    RecordingSurface surface;
    RecordingFrame frame;
    Document document{folder.path(), 1};
    std::unique_ptr<Tools> tools;

    ToolFixture() { open(randomBits(60, 50, 3)); }

    void open(const Bits& bits)
    {
        frame.surface = &surface;
        document.takePicture(bits);
        document.handTo(frame.filter_);
        tools = std::make_unique<Tools>(document, frame, surface);
    }
    void choose(const char* tool) { frame.setup_.CurrentTool = tool; }
    /// A press at the first point, moves over all points, a release at the last.
    void drag(const std::vector<Point>& points)
    {
        press(points.front());
        for (std::size_t i = 1; i < points.size(); ++i) move(points[i]);
        release(points.back());
    }
    void press(Point p) { tools->press(Tools::Left, p.x, p.y); }
    void move(Point p) { tools->move(Tools::Left, p.x, p.y); }
    void release(Point p) { tools->release(Tools::Left, p.x, p.y); }
    const Region& selection() const { return document.Region.Region(); }
    /// What the display was asked since the last call, joined by semicolons.
    std::string asked()
    {
        std::string all;
        for (const std::string& line : surface.log) all += (all.empty() ? "" : "; ") + line;
        surface.log.clear();
        return all;
    }
};

} // namespace velara
