// EXIF as a camera writes it.
#pragma once
#include <QByteArray>
#include <vector>

namespace velara {

/// EXIF in either byte order, from its last directory to the first.
struct ExifMaker {
    enum Type { Text = 2, Short = 3, Long = 4, Fraction = 5 };
    struct Entry {
        int tag;
        Type type;
        std::vector<quint32> values;
        QByteArray text = {};
    };

    explicit ExifMaker(bool isLittle) : little(isLittle), bytes(isLittle ? "II" : "MM")
    {
        bytes += number(42, 2) + number(0, 4);
    }
    QByteArray number(quint32 value, int count) const
    {
        QByteArray out;
        for (int i = 0; i < count; ++i) out.append(char(value >> 8 * (little ? i : count - 1 - i)));
        return out;
    }
    void put(qsizetype at, quint32 value) { bytes.replace(at, 4, number(value, 4)); }
    /// \returns its offset; its link is the last of the bytes then.
    quint32 add(const std::vector<Entry>& entries)
    {
        QByteArray directory = number(quint32(entries.size()), 2);
        for (const Entry& e : entries) {
            QByteArray value = e.text;
            for (const quint32 v : e.values) value += number(v, e.type == Short ? 2 : 4);
            const auto count =
                e.type == Text ? value.size() : qsizetype(e.values.size()) / (e.type == Fraction ? 2 : 1);
            directory += number(quint32(e.tag), 2) + number(e.type, 2) + number(quint32(count), 4);
            if (value.size() <= 4) {
                directory += value.leftJustified(4, '\0');
                continue;
            }
            directory += number(quint32(bytes.size()), 4);
            bytes += value;
        }
        const auto at = quint32(bytes.size());
        bytes += directory + number(0, 4);
        return at;
    }

    bool little;
    QByteArray bytes;
};

inline const QByteArray kSmallPicture = "a small picture";

/// As a camera writes it, of 4000 x 3000 on its side.
inline QByteArray exifOfCamera(bool little)
{
    using enum ExifMaker::Type;
    ExifMaker maker(little);
    const quint32 place = maker.add({{1, Text, {}, "N"}, {2, Fraction, {52, 1, 31, 1, 12345, 1000}}});
    const quint32 details = maker.add({{0x829a, Fraction, {1, 250}}, {0xa002, Short, {4000}}, {0xa003, Long, {3000}}});
    const quint32 first = maker.add({{0x10f, Text, {}, QByteArray("Maker\0", 6)},
                                     {0x112, Short, {6}},
                                     {0x8769, Long, {details}},
                                     {0x8825, Long, {place}}});
    const auto link = maker.bytes.size() - 4;
    const quint32 second = maker.add({{0x201, Long, {0}}, {0x202, Long, {quint32(kSmallPicture.size())}}});
    maker.put(4, first), maker.put(link, second), maker.put(second + 10, quint32(maker.bytes.size()));
    return maker.bytes + kSmallPicture;
}

} // namespace velara
