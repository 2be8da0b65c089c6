// fOwnSize: the printed size of a picture as the user wants it, in millimetres or in percent of its size at 96 pixels
// per inch. Its proportions are kept. While it is off, it shows the size that comes of the other choices.
#pragma once
#include <QSize>
#include <QWidget>
#include <array>

class QCheckBox;
class QDoubleSpinBox;

namespace velara {

class fOwnSize final : public QWidget {
    Q_OBJECT
  public:
    explicit fOwnSize(QSize picture);

    /// The wanted part of the natural size; 0: off.
    double scale() const;
    void turnOff();
    /// Shows a size; most is the largest that fits. Both are parts of the natural size. A larger wish is kept for when
    /// it fits again.
    void showScale(double scale, double most);

  signals:
    void changed();

  private:
    struct Box {
        QDoubleSpinBox* field;
        double natural; // its value at the natural size
    };
    Box makeBox(const char* name, const QString& caption, const QString& unit, double natural);

    double wish_ = 1;
    QCheckBox* chkOwnSize_;
    std::array<Box, 3> boxes_; // width, height, percent
};

} // namespace velara
