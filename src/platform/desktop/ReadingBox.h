// ReadingBox: shown while the picture of a paste takes long to arrive.
#pragma once
#include <QPointer>
#include <QProgressDialog>
#include <chrono>

namespace velara {

/// Shows itself over the parent after half a second, and is modal then: nothing else in the program can be used.
class ReadingBox {
  public:
    ReadingBox(const QString& name, QWidget* parent) : name_(name), parent_(parent) {}
    ~ReadingBox() { delete box_; }
    ReadingBox(const ReadingBox&) = delete;
    ReadingBox& operator=(const ReadingBox&) = delete;

    /// To be called while waiting: false once the user gave up, by Esc, the button or closing the box.
    bool goOn(std::chrono::milliseconds waited);

  private:
    QString name_;
    QPointer<QWidget> parent_;
    QPointer<QProgressDialog> box_;
    bool shown_ = false;
};

} // namespace velara
