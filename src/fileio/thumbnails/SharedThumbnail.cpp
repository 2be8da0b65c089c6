#include "fileio/thumbnails/SharedThumbnail.h"
#include "fileio/disk/nativeName.h"
#include "seams/Dialogs.h"
#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryFile>
#include <cstdio>

namespace velara {

namespace {

constexpr const char* kSizes[] = {"large", "x-large", "xx-large"}; // smaller ones are blurred at double size
constexpr const char* kOurFailures = "fail/velara-studio";
constexpr int kSettleSeconds = 2; // times are whole seconds: a change within one is not noticed

/// Accessible to the user only, like the whole cache.
bool makeFolder(const QString& path)
{
    if (QFileInfo(path).isDir()) return true;
    const QString above = QFileInfo(path).path();
    return makeFolder(above) && (QDir().mkdir(path) || QFileInfo(path).isDir()) &&
           QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

} // namespace

QString fileUri(const QString& path)
{
    return QStringLiteral("file://") + QString::fromLatin1(nativeName(path).toPercentEncoding("!$&'()*+,/:=@"));
}

SharedThumbnail::SharedThumbnail(const QString& picture)
    : cache_(QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) + "/thumbnails/")
{
    const QFileInfo file(picture);
    picture_ = QDir::cleanPath(file.absoluteFilePath());
    uri_ = fileUri(picture_);
    name_ = QCryptographicHash::hash(uri_.toLatin1(), QCryptographicHash::Md5).toHex() + ".png";
    const auto status = statusOf(picture);
    modified_ = status ? std::int64_t{status->st_mtim.tv_sec} : 0;
    bytes_ = status ? std::int64_t{status->st_size} : 0;
}

QStringList SharedThumbnail::entries() const
{
    QStringList found;
    for (const char* size : kSizes)
        if (const QString entry = cache_ + size + '/' + name_; QFileInfo::exists(entry)) found << entry;
    return found;
}

QString SharedThumbnail::failure() const { return cache_ + kOurFailures + '/' + name_; }

void SharedThumbnail::write(const QImage& image, QSize size) const
{
    QImage entry = image;
    entry.setText("Thumb::Image::Width", QString::number(size.width()));
    entry.setText("Thumb::Image::Height", QString::number(size.height()));
    write(cache_ + kSizes[0], entry);
}

void SharedThumbnail::writeFailure() const
{
    QImage entry(1, 1, QImage::Format_RGB32);
    entry.fill(0);
    write(cache_ + kOurFailures, entry);
}

void SharedThumbnail::write(const QString& folder, QImage image) const
{
    const bool settled = modified_ + kSettleSeconds <= QDateTime::currentSecsSinceEpoch();
    if (!settled || picture_.startsWith(cache_) || !makeFolder(folder)) return;
    image.setText("Thumb::URI", uri_);
    image.setText("Thumb::MTime", QString::number(modified_));
    image.setText("Thumb::Size", QString::number(bytes_));
    image.setText("Software", kProgramName);
    QTemporaryFile file(folder + "/velara-XXXXXX.tmp"); // readable to the user alone
    if (!file.open() || !image.save(&file, "PNG") || !file.flush()) return;
    if (std::rename(QFile::encodeName(file.fileName()).constData(),
                    QFile::encodeName(folder + '/' + name_).constData()) == 0)
        file.setAutoRemove(false);
}

} // namespace velara
