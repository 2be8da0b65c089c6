#include "tools/fuzz/Subject.h"
#include <algorithm>

namespace velara::fuzz {

namespace {

constexpr std::uint32_t kTelling[] = {
    0,      1,      2,      3,       8,          16,         32,         255,        256,        0x7F,  0x80,
    0x7FFF, 0x8000, 0xFFFF, 0x10000, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF, 0xFFFFFFFC, 0x40000000, 65500, 30000};

/// Headers matter more than pixels: half of the positions are there.
qsizetype somewhere(const QByteArray& bytes, Dice& dice)
{
    constexpr qsizetype kHead = 96;
    const qsizetype most = dice.oneIn(2) ? std::min(kHead, bytes.size()) : bytes.size();
    return dice.within(0, static_cast<int>(std::max<qsizetype>(most, 1)) - 1);
}

void setNumber(QByteArray& bytes, Dice& dice)
{
    std::uint32_t value = dice.oneIn(3) ? dice.next() : kTelling[dice.next() % std::size(kTelling)];
    const qsizetype at = somewhere(bytes, dice), count = 1 << dice.within(0, 2);
    const bool bigEnd = dice.oneIn(2);
    for (qsizetype i = 0; i < count; ++i, value >>= 8) {
        const qsizetype to = at + (bigEnd ? count - 1 - i : i);
        if (to < bytes.size()) bytes[to] = static_cast<char>(value);
    }
}

void mutateOnce(QByteArray& bytes, const QByteArray& other, Dice& dice)
{
    const qsizetype at = somewhere(bytes, dice), length = dice.within(1, dice.oneIn(3) ? 4000 : 16);
    switch (dice.within(0, 11)) {
    case 0:
    case 1:
        bytes[at] = static_cast<char>(bytes[at] ^ 1 << dice.within(0, 7));
        return;
    case 2:
        bytes.truncate(at + 1);
        return;
    case 3:
        bytes.remove(at, length);
        return;
    case 4:
        bytes.insert(at, bytes.mid(somewhere(bytes, dice), length));
        return;
    case 5:
        bytes.replace(at, length, other.mid(somewhere(other, dice), length));
        return;
    case 6:
        bytes.replace(at, std::min<qsizetype>(length, 64), QByteArray(length, static_cast<char>(dice.next())));
        return;
    default:
        setNumber(bytes, dice);
    }
}

} // namespace

void mutate(QByteArray& bytes, const QByteArray& other, Dice& dice)
{
    constexpr qsizetype kMost = 4 << 20;
    for (int i = dice.within(1, dice.oneIn(2) ? 2 : 8); i > 0 && !bytes.isEmpty(); --i) mutateOnce(bytes, other, dice);
    bytes.truncate(kMost);
}

} // namespace velara::fuzz
