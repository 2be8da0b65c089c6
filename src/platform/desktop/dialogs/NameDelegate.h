// Shows file names in lists in printable form, while the items keep the real ones, and pictures by thumbnails.
#pragma once
#include "fileio/formats.h"
#include "platform/desktop/dialogs/ThumbnailIcons.h"
#include "seams/printable.h"
#include <QFileInfo>
#include <QFileSystemModel>
#include <QStyledItemDelegate>

namespace velara {

class NameDelegate final : public QStyledItemDelegate {
  public:
    /// icons: of the pictures in a model of files; null in other lists.
    explicit NameDelegate(QObject* parent, ThumbnailIcons* icons = nullptr) : QStyledItemDelegate(parent), icons_(icons)
    {
    }
    QString displayText(const QVariant& value, const QLocale& locale) const override
    {
        return printable(QStyledItemDelegate::displayText(value, locale));
    }

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        if (!icons_ || index.column() != 0) return;
        const QString path = index.data(QFileSystemModel::FilePathRole).toString();
        if (familyOf(path) && !QFileInfo(path).isDir()) option->icon = icons_->icon(path);
    }

  private:
    ThumbnailIcons* icons_;
};

} // namespace velara
