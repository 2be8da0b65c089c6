// A document window in a frame that writes down what it is asked.
#pragma once
#include "engine/cBitFilter.h"
#include "seams/Frame.h"
#include "seams/Setup.h"
#include "support/RecordingPlatform.h"
#include "support/pictures.h"
#include "ui/view/fImage.h"
#include <QApplication>
#include <QTest>
#include <gtest/gtest.h>
#include <map>
#include <memory>

namespace velara {

struct WindowFrame final : Frame {
    RecordingPlatform platform_;
    Setup setup_;
    cBitFilter filter_;
    fImage* active = nullptr;
    std::map<Panel, std::string> status;
    std::vector<std::string> words; // of Mmenu
    std::function<void(const QString&)> onWord;
    bool scrolling = false;
    int updates = 0, number = 0;

    Platform& platform() override { return platform_; }
    Setup& setup() override { return setup_; }
    cBitFilter& filter() override { return filter_; }
    void Mmenu(const QString& word) override
    {
        words.push_back(word.toStdString());
        if (onWord) onWord(word);
    }
    void Update(bool regionOnly, bool save) override
    {
        ++updates;
        if (!active) return;
        if (!regionOnly) active->UpdateImage();
        if (save) active->SaveUndoBits(), active->document().Changed = true;
    }
    fImage* GetActiveImage() override { return active; }
    void refreshUndoState() override {}
    void setStatus(Panel panel, const QString& text) override { status[panel] = text.toStdString(); }
    void cFilter_Progress(int) override {}
    QString UniqueCaption(const QString& text) override { return text; }
    int nextDocumentNumber() override { return number++; }
    std::optional<Colour> pickColour(Colour, const QString&, QWidget*) override { return std::nullopt; }
    bool mouseScrolling() const override { return scrolling; }
};

struct ImageFixture : ::testing::Test {
    WindowFrame frame;
    std::unique_ptr<fImage> image;

    ImageFixture() { QDir(frame.platform_.folder.path()).mkpath("Temp"); }

    /// Shows a document with the picture in a client area of the given size.
    fImage& open(const Bits& bits, int width = 200, int height = 150)
    {
        image = std::make_unique<fImage>(frame);
        image->PPicture(bits);
        image->setBarsWidth(20);
        image->resize(width, height);
        image->show();
        frame.active = image.get();
        image->activate();
        image->SaveUndoBits();
        return *image;
    }
    QWidget* control(const char* name) const { return image->findChild<QWidget*>(name); }
    QWidget* iDst() const { return control("iDst"); }
    /// Colour 0xRRGGBB on the screen at a place of the display.
    std::uint32_t shown(int x, int y) const { return iDst()->grab().toImage().pixel(x, y) & 0xFFFFFF; }
    static std::uint32_t colourAt(const Bits& bits, int x, int y)
    {
        const Pixel p = bits.at(x, y);
        return std::uint32_t(p.c[2] << 16 | p.c[1] << 8 | p.c[0]);
    }
};

} // namespace velara
