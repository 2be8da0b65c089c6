// A subject of fuzzing makes an input from a number and tries it. The same number gives the same input on every
// machine, so that a fault is reproduced by its subject and its number.
#pragma once
#include "fileio/formats.h"
#include "seams/text.h"
#include "tools/reference/Dice.h"
#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <array>
#include <cstdint>

namespace velara::fuzz {

/// The outcomes for damaged pictures, counted per format in the order of kFormats.
enum PictureOutcome { Read, CutOff, Refused, ReaderDied, TookTooLong, Caged, Outcomes };
constexpr const char* kOutcomeNames[Outcomes] = {"read", "in part", "refused", "reader died", "too long", "caged"};
constexpr std::size_t kMostFormats = 64;
using Tally = std::array<std::array<std::uint32_t, Outcomes>, kMostFormats>;

/// The folders of a trial. Files that it leaves outside of input are a fault.
struct Place {
    QString input;            // folder for the input as a file, kept when the trial fails
    QString samples;          // folder of sample pictures by format; may be missing
    Tally* tally;             // shared with the watching process
    QStringList formats = {}; // of pictures; empty: all
    bool noDeaths = false;    // a reader that dies or takes too long is a fault, too
};

struct Subject {
    const char* name;
    int share; // percent of the time
    int brief; // trials in the short run of the tests
    /// Makes the input of the number and tries it. Returns the fault as text; empty when there is none.
    QString (*run)(const Place& place, std::uint64_t number);
};

inline Dice diceOf(const char* subject, std::uint64_t number)
{
    return Dice(std::string(subject) + ' ' + std::to_string(number));
}

QString tryPicture(const Place& place, std::uint64_t number);
/// The same for the formats that can be damaged inside (inside.h), in turn.
QString tryInside(const Place& place, std::uint64_t number);
QString tryOperations(const Place& place, std::uint64_t number);
QString tryConfiguration(const Place& place, std::uint64_t number);
QString tryRegion(const Place& place, std::uint64_t number);

inline QString nameOf(const Format& format) { return text(format.extension); }
/// Intact pictures of a format (an index of kFormats) to start from: small ones made here, and those of the sample
/// folder.
const QList<QByteArray>& seedsOf(std::size_t format, const QString& samples);
/// Makes one to eight changes: bits, bytes, numbers set to special values, parts removed, duplicated, or exchanged with
/// other.
void mutate(QByteArray& bytes, const QByteArray& other, Dice& dice);

/// Writes bytes to folder/name; returns the path.
QString writeInput(const QString& folder, const QString& name, const QByteArray& bytes);

} // namespace velara::fuzz
