// The placement of pictures on pages.
#include "commands/printing.h"
#include "pixels/RuntimeError.h"
#include "support/pictures.h"

namespace velara {

TEST(Printing, APictureKeepsItsSizeWhereItFitsAndElseTakesThePage)
{
    struct Row {
        const char* what;
        QSize picture;
        QSizeF printable;
        bool center, fit;
        QRectF wanted;
    };
    constexpr double kInch = 25.4;
    const Row rows[] = {
        {"small, in the corner", {96, 192}, {200, 280}, false, false, {0, 0, kInch, 2 * kInch}},
        {"small, centred in whole twips", {96, 192}, {200, 280}, true, false, {87.295, 114.600, kInch, 2 * kInch}},
        {"wide, fit: the page's width", {200, 100}, {100, 300}, false, true, {0, 0, 100, 50}},
        {"tall, fit: the page's height", {100, 200}, {300, 100}, false, true, {0, 0, 50, 100}},
        {"tall, fit, centred", {100, 200}, {300, 100}, true, true, {125, 0, 50, 100}},
        {"only one side too large: fit all the same", {96, 960}, {100, 100}, false, false, {0, 0, 10, 100}},
        {"just as wide as the page is not below it", {96, 48}, {kInch, 100}, false, false, {0, 0, kInch, kInch / 2}},
        {"one pixel", {1, 1}, {200, 280}, false, false, {0, 0, kInch / 96, kInch / 96}},
        {"a strip", {32767, 1}, {200, 280}, false, false, {0, 0, 200, 200.0 / 32767}},
    };
    for (const Row& row : rows) {
        const QRectF got = printPlace(row.picture, row.printable, row.center, row.fit);
        for (const auto& [wanted, value] :
             {std::pair(row.wanted.x(), got.x()), std::pair(row.wanted.y(), got.y()),
              std::pair(row.wanted.width(), got.width()), std::pair(row.wanted.height(), got.height())})
            EXPECT_NEAR(value, wanted, 0.018) << row.what; // a twip
    }
    EXPECT_THROW(printPlace({0, 5}, {100, 100}, true, true), RuntimeError);
    EXPECT_THROW(printPlace({5, 5}, {0, 100}, true, true), RuntimeError);
}

TEST(Printing, ALandscapeTurnsTheSheetAndWhatThePrinterCantReach)
{
    PrintPage page;
    page.picture = flatBits(300, 100, 1, 2, 3);
    page.paper = {{}, {210, 297}, {1, 2, 3, 4}}; // left, top, right, bottom
    PrintPictureToFitPage(page, PageOrientation::Landscape, false, true);
    EXPECT_EQ(page.paper.printable(PageOrientation::Landscape), QRectF(4, 1, 291, 206));
    EXPECT_EQ(page.place, QRectF(4, 1, 291, 97));
    PrintPictureToFitPage(page, PageOrientation::Portrait, false, true);
    EXPECT_EQ(page.place, QRectF(1, 2, 206, 206.0 / 3));
    page.paper.size = {90, 40}; // a label
    PrintPictureToFitPage(page, PageOrientation::Landscape, false, true);
    EXPECT_EQ(page.place, QRectF(1, 2, 86, 86.0 / 3));
}

} // namespace velara
