#include "tools/monkey/Journal.h"
#include <QFile>
#include <fcntl.h>
#include <unistd.h>

namespace velara::monkey {

Journal::Journal(const QString& path)
    : file_(open(path.toUtf8().constData(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600))
{
}

Journal::~Journal() { close(file_); }

void Journal::begin(std::uint64_t action, int depth)
{
    add(QStringLiteral("\n%1 %2").arg(action).arg(QString(2 * (depth - 1), '.')));
}

void Journal::add(const QString& text)
{
    QByteArray bytes = text.toUtf8();
    if (!bytes.startsWith('\n')) bytes.prepend(' ');
    [[maybe_unused]] const auto written = write(file_, bytes.constData(), static_cast<std::size_t>(bytes.size()));
}

QString Journal::tail(const QString& path, int lines)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return {};
    file.seek(qMax<qint64>(0, file.size() - 200 * lines));
    return QString::fromUtf8(file.readAll()).split('\n').last(lines).join('\n');
}

} // namespace velara::monkey
