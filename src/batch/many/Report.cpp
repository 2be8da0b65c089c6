#include "batch/many/Report.h"
#include "batch/BatchPlatform.h"
#include "batch/Failure.h"
#include "fileio/disk/nativeName.h"
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace velara {

namespace {

QByteArray quoted(const QString& text)
{
    QByteArray json = "\"";
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        const bool isPair = c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        if (c == u'"' || c == u'\\')
            json += QByteArray("\\") + static_cast<char>(c.unicode());
        else if (c.unicode() < 0x20 || c.unicode() == 0x7f || (c.isSurrogate() && !isPair))
            json += "\\u" + QByteArray::number(c.unicode(), 16).rightJustified(4, '0');
        else
            json += text.mid(i, isPair ? 2 : 1).toUtf8();
        if (isPair) ++i;
    }
    return json + '"';
}

} // namespace

QByteArray jsonOf(const ReportLine& line)
{
    return "{\"input\":" + quoted(line.input) + ",\"output\":" + quoted(line.output) + ",\"result\":\"" + line.result +
           "\",\"bytes\":" + QByteArray::number(qint64(line.bytes)) +
           ",\"milliseconds\":" + QByteArray::number(line.milliseconds, 'f', 1) + ",\"reason\":" + quoted(line.reason) +
           "}\n";
}

Report::Report(const QString& path)
{
    if (path.isEmpty()) return;
    file_ = Descriptor(path == QStringLiteral("-") ? fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 3)
                                                   : open(nativeName(path).constData(),
                                                          O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOCTTY, 0666));
    if (!file_.isOpen())
        throw fileFault(QStringLiteral("%1 can't be written: %2").arg(path, QString::fromUtf8(std::strerror(errno))));
}

void Report::add(const ReportLine& line)
{
    if (!file_.isOpen() || !isWhole_) return;
    const QByteArray json = jsonOf(line);
    for (qsizetype at = 0; at < json.size();) { // all at once but on a disk that is full
        const ssize_t written = write(file_.get(), json.constData() + at, std::size_t(json.size() - at));
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) {
            complain(QStringLiteral("the report can't be written any more: ") +
                     QString::fromUtf8(std::strerror(errno)));
            isWhole_ = false;
            return;
        }
        at += written;
    }
}

} // namespace velara
