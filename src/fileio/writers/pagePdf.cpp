#include "fileio/writers/pagePdf.h"
#include "fileio/disk/OutputFile.h"
#include "pixels/images.h"
#include "seams/Dialogs.h"
#include <QIODevice>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>

namespace velara {

namespace {

constexpr double kMillimetresAnInch = 25.4;
constexpr int kResolution = 1200; // of the page's own coordinates, dots per inch

/// The maximum resolution at which a picture is stored, in dots per inch.
double finest(PrintQuality quality)
{
    constexpr double kFinest[] = {150, 300, 600, 1200};
    return kFinest[-static_cast<int>(quality) - 1];
}

/// The device that QPdfWriter writes to.
class IntoFile final : public QIODevice {
  public:
    explicit IntoFile(OutputFile& file) : file_(file) { open(WriteOnly); }
    bool isSequential() const override { return true; }
    bool failed() const { return failed_; }

  protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char* bytes, qint64 count) override
    {
        failed_ = failed_ || !file_.write(bytes, static_cast<std::size_t>(count));
        return failed_ ? -1 : count;
    }

  private:
    OutputFile& file_;
    bool failed_ = false;
};

/// The picture in its colours, downsampled to the resolution of its quality at that size.
QImage fineEnough(const PrintPage& page)
{
    QImage image = imageOver(page.picture);
    const QSizeF dots = page.place.size() * (finest(page.quality) / kMillimetresAnInch);
    if (image.width() > dots.width() || image.height() > dots.height())
        image = image.scaled(dots.toSize().expandedTo({1, 1}), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return page.gray ? image.convertToFormat(QImage::Format_Grayscale8) : image;
}

bool draw(QIODevice& device, const PrintPage& page, PageTurn turn)
{
    QPdfWriter writer(&device);
    writer.setCreator(kProgramName);
    writer.setTitle(page.title);
    writer.setResolution(kResolution);
    const QPageSize sheet(page.paper.size, QPageSize::Millimeter, {}, QPageSize::ExactMatch);
    const bool turned = page.paper.turned(page.orientation), wide = turned && turn == PageTurn::AsViewed;
    if (!writer.setPageLayout({sheet, wide ? QPageLayout::Landscape : QPageLayout::Portrait, {}})) return false;
    QPainter painter;
    if (!painter.begin(&writer)) return false;
    painter.setRenderHint(QPainter::LosslessImageRendering, page.quality != PrintQuality::Draft);
    constexpr double kDots = kResolution / kMillimetresAnInch;
    if (turned && !wide) {
        painter.translate(0, page.paper.size.height() * kDots);
        painter.rotate(-90);
    }
    painter.drawImage(QRectF(page.place.topLeft() * kDots, page.place.size() * kDots), fineEnough(page));
    return painter.end();
}

} // namespace

QString writePagePdf(const QString& path, const PrintPage& page, const std::function<bool()>& goOn, PageTurn turn)
{
    OutputFile file(path);
    if (!file.isOpen()) return "the file can't be written";
    file.setGoOn(goOn);
    IntoFile device(file);
    if (!draw(device, page, turn) || device.failed() || !file.commit()) return "the page can't be written";
    return {};
}

} // namespace velara
