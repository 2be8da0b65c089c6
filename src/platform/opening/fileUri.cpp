#include "platform/opening/fileUri.h"
#include "fileio/disk/nativeName.h"

namespace velara {

QString uriOf(const QString& path)
{
    return QStringLiteral("file://") + QLatin1String(nativeName(path).toPercentEncoding("/"));
}

std::optional<QString> pathOf(const QString& uri)
{
    constexpr auto kScheme = u"file:";
    if (uri.startsWith(u'/')) return uri;
    QString rest = uri.startsWith(QStringView(kScheme), Qt::CaseInsensitive) ? uri.mid(5) : QString();
    if (rest.startsWith(u"//")) { // a host, or none, stands before the path
        const QString host = rest.mid(2, rest.indexOf(u'/', 2) - 2);
        if (!host.isEmpty() && host.compare(u"localhost", Qt::CaseInsensitive) != 0) return std::nullopt;
        rest.remove(0, 2 + host.size());
    }
    const QByteArray bytes = QByteArray::fromPercentEncoding(rest.toUtf8());
    if (!bytes.startsWith('/') || bytes.contains('\0')) return std::nullopt;
    return nameFrom(bytes);
}

} // namespace velara
