// PreviewPane: shows a file beside the tree or list in which it is selected: its picture, name, kind and size. The
// picture is read in the background; selecting another file cancels the reading.
#pragma once
#include "seams/Previews.h"
#include <QTimer>
#include <QWidget>

class QLabel;

namespace velara {

class fPathLabel;

class PreviewPane final : public QWidget {
    Q_OBJECT
  public:
    explicit PreviewPane(Previews& previews, QWidget* parent = nullptr);

    /// Empty: nothing is selected.
    void showFile(const QString& path);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override; // of the surface

  private:
    void ask();
    void answered(const Preview& preview);
    void say(const QString& instead); // shown in place of a picture
    void paintSurface();

    Previews& previews_;
    QWidget* surface_;
    fPathLabel* name_;
    QLabel *kind_, *size_, *file_;
    QString path_, instead_;
    QImage image_;
    QSize pictureSize_;
    Previews::Request request_;
    QTimer slow_;    // until the message that the picture is being read
    QTimer resized_; // until a picture of another size is requested
};

} // namespace velara
