// Printers: the printers of this machine, and PDF files in their place. Answers come from the message loop, each once;
// whoever lets go of a request gets none. No call waits, and what is asked of a print server is answered within ten
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

/// A sheet as it comes out of the tray, upright; millimetres.
struct Paper {
    QString name; // as the printer calls it; empty: as it stands
    QSizeF size{210, 297};
    QMarginsF margins{5, 5, 5, 5}; // what the printer can't reach

    QSizeF sheet(PageOrientation orientation) const;
    /// What can be printed on, from the upper left corner of the sheet as it is looked at: turned to the right for a
    /// landscape.
    QRectF printable(PageOrientation orientation) const;
};

/// One page with one picture.
struct PrintPage {
    Bits picture;
    QRectF place; // of the picture on the sheet as it is looked at, millimetres
    Paper paper;
    PageOrientation orientation = PageOrientation::Portrait;
    PrintQuality quality = PrintQuality::Medium;
    int copies = 1;
    QString title;
};

/// What is chosen for the pages to come, until the program ends.
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
        QString reason = {}; // why nothing is known of them, in words for a person; empty when all is
    };
    struct Options {
        std::vector<Paper> papers; // that a page gets first, at least one
        bool gray = false;         // chosen before
    };
    /// In words for a person; empty when all went well.
    using Done = std::function<void(const QString& reason)>;

    virtual ~Printers() = default;
    [[nodiscard]] virtual Request list(std::function<void(const List&)> done) = 0;
    /// Kept for the sessions to come.
    virtual void setCurrent(const QString& name) = 0;
    /// What lies in the tray of a printer, or what is usual in this country where that can't be found out.
    [[nodiscard]] virtual Request paper(const QString& printer, std::function<void(const Paper&)> done) = 0;
    /// What a PDF file takes.
    virtual Paper usualPaper() = 0;
    /// What there is to choose from for a printer, empty: for PDF files. The usual papers where it can't be found out.
    [[nodiscard]] virtual Request options(const QString& printer, std::function<void(const Options&)> done) = 0;
    virtual void choose(const PrinterChoice& choice) = 0;
    [[nodiscard]] virtual Request print(const QString& printer, const PrintPage& page, Done done) = 0;
    /// The page as a PDF; the file is whole, or as it was.
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
