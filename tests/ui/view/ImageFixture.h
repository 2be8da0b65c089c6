// A document window in a frame that records its requests.
#pragma once
#include "support/RecordingFrame.h"
#include "support/pictures.h"
#include "support/ui/controls.h"
#include "ui/view/fImage.h"
#include <QTest>
#include <gtest/gtest.h>

namespace velara {

struct ImageFixture : ::testing::Test {
    RecordingFrame frame;
    std::unique_ptr<fImage> image;

    /// Shows a document with the picture in a client area of the given size.
    fImage& open(const Bits& bits, int width = 200, int height = 150)
    {
        image = std::make_unique<fImage>(frame, frame.open(bits).handle());
        image->setBarsWidth(20);
        image->resize(width, height);
        image->show();
        frame.onCall = [this](const std::string& line) {
            if (line == "step") image->UpdateImage();
        };
        image->activate();
        return *image;
    }
    /// Replaces the document's picture, as a change does.
    void take(const Bits& bits)
    {
        image->document().takePicture(bits);
        frame.workspace_.finish(image->document().handle());
    }
    QWidget* control(const char* name) const { return controlOf(*image, name); }
    QWidget* iDst() const { return control("iDst"); }
    void hover(QPoint at) { sendMouse(iDst(), QEvent::MouseMove, at, Qt::NoButton, Qt::NoButton); }
    /// The colour 0xRRGGBB on the screen at a position of the display.
    std::uint32_t shown(int x, int y) const { return iDst()->grab().toImage().pixel(x, y) & 0xFFFFFF; }
};

} // namespace velara
