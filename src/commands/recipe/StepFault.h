// Why a step can't be read or taken.
#pragma once
#include <QByteArray>
#include <QString>
#include <exception>

namespace velara {

class StepFault final : public std::exception {
  public:
    enum Kind {
        Unusable, // its text, or for this picture: the argument is named
        Failed,   // the work itself, or a picture that it needs
    };
    StepFault(Kind why, const QString& forUser) : kind(why), text(forUser), utf8_(forUser.toUtf8()) {}
    const char* what() const noexcept override { return utf8_.constData(); }

    Kind kind;
    QString text; // for the user

  private:
    QByteArray utf8_;
};

inline StepFault unusable(const QString& text) { return {StepFault::Unusable, text}; }

/// Runs work; prefixes a fault's text with what.
template <class Work> auto namingStep(const QString& what, Work work)
{
    try {
        return work();
    } catch (const StepFault& fault) {
        throw StepFault(fault.kind, what + QStringLiteral(": ") + fault.text);
    }
}

} // namespace velara
