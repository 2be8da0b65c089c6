// fProperties: what is known of a picture and of its file, as a list to read and to copy.
#pragma once
#include <QDialog>
#include <QList>

class QTreeWidget;

namespace velara {

class Document;

/// A name and its value, for the user.
struct Property {
    QString name, value;
};

/// File, kind, size of an open picture, then what its file told when it was read.
QList<Property> propertiesOf(const Document& document);

class fProperties final : public QDialog {
    Q_OBJECT
  public:
    explicit fProperties(const QList<Property>& properties, QWidget* parent = nullptr);

  private:
    void copy() const;

    QTreeWidget* list_;
};

} // namespace velara
