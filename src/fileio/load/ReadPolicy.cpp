#include "fileio/load/ReadPolicy.h"
#include <QFile>
#include <QRegularExpression>
#include <QStandardPaths>
#include <algorithm>
#include <optional>

namespace velara {

namespace {

/// At least 1, with K, M or G for a power of 1024.
std::optional<std::uint64_t> amountOf(const QString& text)
{
    static const QRegularExpression form("^([1-9][0-9]{0,11})([KMG]?)$", QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch()) return {};
    const QString unit = match.captured(2).toUpper();
    return match.captured(1).toULongLong() << (unit == "K" ? 10 : unit == "M" ? 20 : unit == "G" ? 30 : 0);
}

template <class Number> bool lower(Number& limit, const QString& text)
{
    const auto amount = amountOf(text);
    if (amount) limit = static_cast<Number>(std::min<std::uint64_t>(static_cast<std::uint64_t>(limit), *amount));
    return amount.has_value();
}

bool turnOff(QStringList& off, const QString& text)
{
    for (QString extension : text.toLower().split(' ', Qt::SkipEmptyParts))
        off += extension.startsWith('.') ? extension.mid(1) : extension;
    return true;
}

// clang-format off
constexpr struct {
    const char* name;
    bool (*take)(ReadPolicy& policy, const QString& value);
} kSettings[] = {
    {"pixels",      [](ReadPolicy& policy, const QString& value) { return lower(policy.pixels, value); }},
    {"memory",      [](ReadPolicy& policy, const QString& value) { return lower(policy.memory, value); }},
    {"seconds",     [](ReadPolicy& policy, const QString& value) { return lower(policy.seconds, value); }},
    {"formats-off", [](ReadPolicy& policy, const QString& value) { return turnOff(policy.off, value); }},
};
// clang-format on

bool takeLine(ReadPolicy& policy, const QString& line)
{
    const qsizetype equals = line.indexOf('=');
    const QString name = line.left(equals).trimmed().toLower(), value = line.mid(equals + 1).trimmed();
    return equals > 0 && std::ranges::any_of(kSettings, [&](const auto& setting) {
               return name == QLatin1String(setting.name) && setting.take(policy, value);
           });
}

} // namespace

void ReadPolicy::take(const QString& text, const QString& file)
{
    int number = 0;
    for (const QString& whole : text.split('\n')) {
        ++number;
        const QString line = whole.left(whole.indexOf('#')).trimmed(); // -1: the whole line
        if (!line.isEmpty() && !takeLine(*this, line))
            faults += QString("%1:%2: \"%3\" is no limit").arg(file).arg(number).arg(line);
    }
}

const ReadPolicy& readPolicy()
{
    static const ReadPolicy policy = [] {
        constexpr qint64 kMostBytes = 1 << 16;
        ReadPolicy found;
        for (const QString& path :
             QStandardPaths::locateAll(QStandardPaths::GenericConfigLocation, "velara-studio/limits.conf"))
            if (QFile file(path); file.open(QIODevice::ReadOnly))
                found.take(QString::fromUtf8(file.read(kMostBytes)), path);
            else
                found.faults += path + ": it can't be read";
        for (const QString& fault : found.faults) qWarning("velara-studio: %s", qPrintable(fault));
        return found;
    }();
    return policy;
}

} // namespace velara
