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

constexpr int kMostCopies = 9999; // the limit of print servers

/// A sheet as it comes out of the tray, usually tall; millimetres.
struct Paper {
    QString name; // the printer's name for it; empty: the printer's default
    QSizeF size{210, 297};
    QMarginsF margins{5, 5, 5, 5}; // the unprintable margins

    /// Whether the sheet is viewed turned to the right: landscape on a tall sheet, portrait on a wide one.
    bool turned(PageOrientation orientation) const;
    QSizeF sheet(PageOrientation orientation) const;
    /// The printable area, from the upper left corner of the sheet as viewed.
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
    bool gray = false; // printed in shades of gray
    QString title;
};

/// What became of a page; both texts are for the user.
struct PrintResult {
    QString fault;       // why it isn't printed; empty on success
    QString notice = {}; // why it isn't printed yet, although the server has taken it; usually empty
};

/// What the pages of a printer are made by.
struct PrinterFacts {
    Paper paper; // in the tray or chosen; the usual one of this country when it is unknown
    bool gray = false;
    int mostCopies = kMostCopies; // of one job
};

/// The choice for the following pages of a printer, until the program ends.
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
    using Done = std::function<void(const PrintResult& result)>;

    virtual ~Printers() = default;
    [[nodiscard]] virtual Request list(std::function<void(const List&)> done) = 0;
    /// Remembered for later sessions.
    virtual void setCurrent(const QString& name) = 0;
    [[nodiscard]] virtual Request facts(const QString& printer, std::function<void(const PrinterFacts&)> done) = 0;
    /// Those of a PDF file.
    virtual PrinterFacts fileFacts() = 0;
    /// The choices for a printer (empty: for PDF files). The usual papers when they are unknown.
    [[nodiscard]] virtual Request options(const QString& printer, std::function<void(const Options&)> done) = 0;
    virtual void choose(const PrinterChoice& choice) = 0;
    /// The answer comes when the server prints the page, keeps it waiting or has refused it. A released request cancels
    /// the print job.
    [[nodiscard]] virtual Request print(const QString& printer, const PrintPage& page, Done done) = 0;
    /// The page as a PDF; the file is written whole or left unchanged.
    [[nodiscard]] virtual Request printToFile(const QString& path, const PrintPage& page, Done done) = 0;
};

inline bool Paper::turned(PageOrientation orientation) const
{
    return orientation == PageOrientation::Landscape ? size.width() <= size.height() : size.width() > size.height();
}

inline QSizeF Paper::sheet(PageOrientation orientation) const { return turned(orientation) ? size.transposed() : size; }

inline QRectF Paper::printable(PageOrientation orientation) const
{
    const QMarginsF m =
        turned(orientation) ? QMarginsF(margins.bottom(), margins.left(), margins.top(), margins.right()) : margins;
    return QRectF({0, 0}, sheet(orientation)).marginsRemoved(m);
}

} // namespace velara
