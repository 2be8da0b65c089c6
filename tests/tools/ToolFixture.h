// A document with its tools, a frame and a display that record the tools' calls.
#pragma once
#include "support/RecordingFrame.h"
#include "support/pictures.h"
#include "tools/Tools.h"
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

struct ToolFixture : ::testing::Test {
    RecordingSurface surface;
    RecordingFrame frame;
    Document& document = frame.open({});
    std::unique_ptr<Tools> tools;

    ToolFixture() { open(randomBits(60, 50, 3)); }

    void open(const Bits& bits)
    {
        frame.onCall = [this](const std::string& line) {
            if (line == "step") surface.note(line);
        };
        frame.settle();
        document.takePicture(bits);
        frame.workspace_.handOver(document);
        tools = std::make_unique<Tools>(document, frame, surface);
    }
    void choose(const char* tool) { frame.setup_.CurrentTool = tool; }
    /// Presses at the first point, moves over all points, releases at the last.
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
    /// The calls to the display since the last call of this, separated by semicolons.
    std::string asked()
    {
        std::string all;
        for (const std::string& line : surface.log) all += (all.empty() ? "" : "; ") + line;
        surface.log.clear();
        return all;
    }
};

} // namespace velara
