// NamePattern: the name of an output made from that of its input, such as "{name}-web.{ext}".
#pragma once
#include <QString>
#include <string_view>
#include <vector>

namespace velara {

/// What the fields of a pattern are filled with.
struct NameFacts {
    QString input;  // its path
    QString dir;    // the folder below the INPUT folder that it was found in; empty: right in it, or given itself
    QString ext;    // of the output, lower case
    int number = 0; // its place in the list, from 1
    std::int64_t time = 0;     // when it was last changed, in seconds as the system counts
    int width = 0, height = 0; // of the output; 0: not known yet
};

class NamePattern {
  public:
    /// Throws a Failure that names what is unusable: a field that there is not, a bracket without its partner, a way
    /// out of the folder.
    explicit NamePattern(const QString& pattern);

    /// A path below the target folder, without a slash at its beginning.
    QString nameOf(const NameFacts& facts) const;

    /// It has the size of the output, which is known when the picture is done; until then "{width}" stands in the name.
    bool isLate() const;

    /// Of --help: a line a field.
    static QString help();

  private:
    struct Piece {
        QString literal = {};
        int field = -1; // of kFields; -1: the literal
        int digits = 0;
    };
    Piece fieldOf(const QString& text) const;
    bool endsInAFormat() const;

    std::vector<Piece> pieces_;
};

} // namespace velara
