// What is fuzzed: a subject makes an input of a number and tries it. The same number gives the same input on every
// machine, so that a fault is reproduced by its subject and its number.
#pragma once
#include "fileio/formats.h"
#include "seams/text.h"
#include "tools/reference/Dice.h"
#include <QByteArray>
#include <QList>
#include <QString>
#include <array>
#include <cstdint>

namespace velara::fuzz {

/// What became of damaged pictures, in the order of kFormats.
enum PictureOutcome { Read, CutOff, Refused, ReaderDied, TookTooLong, Caged, Outcomes };
constexpr const char* kOutcomeNames[Outcomes] = {"read", "in part", "refused", "reader died", "too long", "caged"};
constexpr std::size_t kMostFormats = 32;
using Tally = std::array<std::array<std::uint32_t, Outcomes>, kMostFormats>;

/// Where a trial works. Whatever it leaves outside of input is a fault.
struct Place {
    QString input;   // folder for the input as a file, kept when the trial ends badly
    QString samples; // folder of sample pictures by format; may be missing
    Tally* tally;    // shared with the program that watches
};

struct Subject {
    const char* name;
    int share; // of the time, in hundredths
    int brief; // trials of the short run that the tests make
    /// Makes the input of the number and tries it. The fault in words; empty when there is none.
    QString (*run)(const Place& place, std::uint64_t number);
};

inline Dice diceOf(const char* subject, std::uint64_t number)
{
    return Dice(std::string(subject) + ' ' + std::to_string(number));
}

QString tryPicture(const Place& place, std::uint64_t number);
/// The same for the kinds that can be damaged inside (inside.h), in turn.
QString tryInside(const Place& place, std::uint64_t number);
QString tryOperations(const Place& place, std::uint64_t number);
QString tryConfiguration(const Place& place, std::uint64_t number);
QString tryRegion(const Place& place, std::uint64_t number);

inline QString nameOf(const Format& format) { return text(format.extension); }
/// Whole pictures of a format, a row of kFormats, to begin from: small ones that are made here, and those of the sample
/// folder.
const QList<QByteArray>& seedsOf(std::size_t format, const QString& samples);
/// One to eight changes: bits, bytes and numbers set to telling values, parts cut out, doubled, swapped with other.
void mutate(QByteArray& bytes, const QByteArray& other, Dice& dice);

/// Writes bytes to folder/name; the path.
QString writeInput(const QString& folder, const QString& name, const QByteArray& bytes);

} // namespace velara::fuzz
