// Printers: the printers of this machine, and PDF files as an alternative. Answers arrive from the message loop, each
// once; a released request gets none. No call blocks, and every question to a print server is answered within ten
// seconds, whatever the server does.
#pragma once
#include "pixels/Bits.h"
#include <QMarginsF>
#include <QRectF>
#include <QStringList>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace velara {

enum class PageOrientation { Portrait = 1, Landscape = 2 };

enum class PrintQuality { Draft = -1, Low = -2, Medium = -3, High = -4 };

/// A sheet as it comes out of the tray, in portrait; millimetres.
struct Paper {
    QString name; // the printer's name for it; empty: the printer's default
    QSizeF size{210, 297};
    QMarginsF margins{5, 5, 5, 5}; // the unprintable margins

    QSizeF sheet(PageOrientation orientation) const;
    /// The printable area, from the upper left corner of the sheet as viewed: turned to the right for landscape.
    QRectF printable(PageOrientation orientation) const;
};

/// One page with one picture.
struct PrintPage {
    Bits picture;
    QRectF place; // of the picture on the sheet as viewed, millimetres
    Paper paper;
    PageOrientation orientation = PageOrientation::Portrait;
    PrintQuality quality = PrintQuality::Medium;
    int copies = 1;
    QString title;
};

/// The choice for the following pages, until the program ends.
struct PrinterChoice {
    QString printer; // empty: PDF files
    std::optional<Paper> paper;
    bool gray = false;
};

class Printers {
  public:
    using Request = std::shared_ptr<void>;
    struct List {
        QStringList names;
        QString current;     // one of them; empty when there is none, or when PDF files were chosen
        QString reason = {}; // why the printers aren't known, for the user; empty when they are
    };
    struct Options {
        std::vector<Paper> papers; // the default first; at least one
        bool gray = false;         // chosen before
    };
    /// For the user; empty on success.
    using Done = std::function<void(const QString& reason)>;

    virtual ~Printers() = default;
    [[nodiscard]] virtual Request list(std::function<void(const List&)> done) = 0;
    /// Remembered for later sessions.
    virtual void setCurrent(const QString& name) = 0;
    /// The paper in a printer's tray, or the usual one of this country when that is unknown.
    [[nodiscard]] virtual Request paper(const QString& printer, std::function<void(const Paper&)> done) = 0;
    /// The paper of a PDF file.
    virtual Paper usualPaper() = 0;
    /// The choices for a printer (empty: for PDF files). The usual papers when they are unknown.
    [[nodiscard]] virtual Request options(const QString& printer, std::function<void(const Options&)> done) = 0;
    virtual void choose(const PrinterChoice& choice) = 0;
    [[nodiscard]] virtual Request print(const QString& printer, const PrintPage& page, Done done) = 0;
    /// The page as a PDF; the file is written whole or left unchanged.
    [[nodiscard]] virtual Request printToFile(const QString& path, const PrintPage& page, Done done) = 0;
};

inline QSizeF Paper::sheet(PageOrientation orientation) const
{
    return orientation == PageOrientation::Portrait ? size : size.transposed();
}

inline QRectF Paper::printable(PageOrientation orientation) const
{
    const QMarginsF m = orientation == PageOrientation::Portrait
                            ? margins
                            : QMarginsF(margins.bottom(), margins.left(), margins.top(), margins.right());
    return QRectF({0, 0}, sheet(orientation)).marginsRemoved(m);
}

} // namespace velara
