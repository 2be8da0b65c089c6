// The bytes of a file that is being written.
#include "fileio/disk/OutputFile.h"
#include "support/files.h"
#include "support/seed.h"
#include <random>

namespace velara {
namespace {

using OutputFileTest = FolderTest;

TEST_F(OutputFileTest, PiecesOfAnySizeArriveInTheirOrderWhateverWasExpected)
{
    constexpr std::size_t kSizes[] = {0, 1, 54, 1000, 300'000, (1 << 20) - 1, 1 << 20, (1 << 20) + 1, 2'500'000};
    std::mt19937 random(seedOf(5));
    const auto below = [&](std::size_t end) { return random() % end; };
    for (int round = 0; round < 20; ++round) {
        QByteArray wanted;
        OutputFile file(path("a"));
        for (int i = 0; i < 12; ++i) {
            QByteArray piece(static_cast<qsizetype>(kSizes[below(std::size(kSizes))]), Qt::Uninitialized);
            for (char& byte : piece) byte = static_cast<char>(random() >> 24);
            if (below(3) == 0) file.expect(static_cast<std::int64_t>(below(4'000'000)));
            ASSERT_TRUE(file.write(piece.constData(), static_cast<std::size_t>(piece.size())));
            wanted += piece;
            ASSERT_EQ(file.tell(), wanted.size());
        }
        ASSERT_TRUE(file.commit());
        ASSERT_EQ(content("a"), wanted) << round;
    }
}

} // namespace
} // namespace velara
