// What runs on the engine: presets and the commands that rebuild a picture.
#include "app/frame/fDocumentWindow.h"
#include "app/frame/fMain.h"
#include "app/frame/fStatus.h"
#include "commands/sizeWords.h"
#include "document/resizing.h"
#include "engine/operations.h"
#include "pixels/RuntimeError.h"
#include "seams/Platform.h"
#include "ui/filter/fFilter.h"

namespace velara {

/// The engine at work for one document. While it yields anything may happen: the document or the frame may be closed,
/// another document activated, another command run.
class fMain::EngineRun {
  public:
    EngineRun(fMain& frame, fImage* image)
        : frame_(frame), image_(image), bits_(frame.cFilter_.bits()), region_(frame.cFilter_.BitsRegion()),
          width_(image->PictureWidth()), height_(image->PictureHeight())
    {
        frame_.runs_.push_back(this);
    }
    EngineRun(const EngineRun&) = delete;
    ~EngineRun()
    {
        std::erase(frame_.runs_, this);
        if (frame_.runs_.empty()) frame_.buryDead();
    }

    /// False when the work has nothing left to go to.
    bool wanted() const
    {
        return !frame_.closing_ && image_ && frame_.documents().contains(image_.data()) &&
               image_->PictureWidth() == width_ && image_->PictureHeight() == height_;
    }
    /// The engine as it was.
    void restore()
    {
        frame_.cFilter_.setBits(bits_);
        frame_.cFilter_.setBitsRegion(region_);
    }

  private:
    fMain& frame_;
    QPointer<fImage> image_;
    Bits bits_;
    Region region_;
    int width_, height_;
};

void fMain::engineProgress(int percent)
{
    cFilter_Progress(percent);
    ++yieldDepth_;
    platform_.yield();
    --yieldDepth_;
    if (closing_ || (!runs_.empty() && !runs_.back()->wanted())) throw Cancelled();
}

void fMain::runOnEngine(const QString& what, const std::function<void(cBitFilter&)>& work)
{
    const QPointer<fImage> image = GetActiveImage();
    if (!image || !image->document().PictureExists()) return;
    handOver(*image);
    EngineRun run(*this, image);
    try {
        work(cFilter_);
        if (!run.wanted()) throw Cancelled();
    } catch (const std::exception& failure) {
        run.restore();
        if (fImage* active = closing_ ? nullptr : GetActiveImage(); active && active != image) handOver(*active);
        if (!closing_) showFailure(what, failure);
        return;
    }
    image->document().setBits(cFilter_.bits());
    finish(*image, false, true);
    // The user went on to another document meanwhile: the engine always holds the active one's picture.
    if (fImage* active = GetActiveImage(); active && active != image) handOver(*active);
}

void fMain::runPreset(std::string_view word)
{
    const Preset* preset = findPreset(word);
    const Operation* operation = preset ? findOperation(preset->operation) : nullptr;
    if (!operation) return;
    if (preset->yields) platform_.yield(); // the menu closes before the long work
    runOnEngine(QString::fromUtf8(word.data(), qsizetype(word.size())),
                [&](cBitFilter& filter) { operation->call(filter, preset->arguments); });
}

void fMain::showFilter(const FilterRow& row)
{
    const QPointer<fImage> image = GetActiveImage();
    if (!image || !image->document().PictureExists()) return;
    handOver(*image);
    const auto take = [this, image](const Bits& bits) {
        if (closing_ || !image || image != GetActiveImage() || image->PictureWidth() != bits.width() ||
            image->PictureHeight() != bits.height())
            return false;
        image->setBits(bits);
        cFilter_.setBits(bits);
        return true;
    };
    const QPointer<fFilter> dialog = new fFilter(*this, row, take, this);
    dialog->exec();
    delete dialog; // unless the frame went, and it with it
}

void fMain::stepUndo(bool back)
{
    fImage* image = GetActiveImage();
    if (back)
        image->UndoBits();
    else
        image->RedoBits();
    refreshUndoState();
}

void fMain::setZoom(int factor)
{
    fImage* image = GetActiveImage();
    if (!image) return;
    image->setZoomFactor(factor);
    setStatus(Panel::Zoom, QString::number(image->ZoomFactor()) + " : 1");
}

namespace {

QString sizeText(const fImage& image)
{
    return QString::number(image.PictureWidth()) + "x" + QString::number(image.PictureHeight());
}

} // namespace

void fMain::ZoomImage(int factor, bool enlarge, bool quality)
{
    fImage* image = GetActiveImage();
    if (!image || !image->PictureExists()) return;
    setZoom(1);
    zoomImage(image->document(), cFilter_, factor, enlarge, quality);
    image->pictureChanged();
    setStatus(Panel::Size, sizeText(*image));
    refreshUndoState();
}

void fMain::reshape(const std::function<void(Document&, cBitFilter&)>& job)
{
    platform_.yield();
    fImage* image = GetActiveImage();
    if (!image || !image->PictureExists()) return;
    job(image->document(), cFilter_);
    image->pictureChanged();
    setStatus(Panel::Size, sizeText(*image));
    Update(true, true);
}

void fMain::RotateImage(int degrees, bool quality)
{
    reshape([=](Document& document, cBitFilter& filter) { rotateImage(document, filter, degrees, quality); });
}

void fMain::runSizeWord(const SizeWord& size)
{
    if (size.kind == SizeWord::Rotate)
        RotateImage(size.value, size.quality);
    else
        ZoomImage(size.value, size.kind == SizeWord::Enlarge, size.quality);
}

void fMain::crop()
{
    fImage* image = GetActiveImage();
    if (!image->PictureExists()) return;
    switch (cropImage(image->document(), cFilter_)) {
    case CropAnswer::NothingSelected:
        return platform_.message("Crop", "Nothing selected", Icon::Information);
    case CropAnswer::TooSmall:
        return platform_.message("Crop", "Minimum size: 2 x 2", Icon::Information);
    case CropAnswer::Done:
        break;
    }
    image->pictureChanged();
    setStatus(Panel::Size, sizeText(*image));
    Update(false, true);
}

} // namespace velara
