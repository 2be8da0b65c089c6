// fPathLabel: a path in one line, shortened in its middle where there is no room for it.
#pragma once
#include <QLabel>

namespace velara {

class fPathLabel final : public QLabel {
    Q_OBJECT
  public:
    explicit fPathLabel(const QString& objectName, QWidget* parent = nullptr);
    /// What is shortened is whole in the tip.
    void setPath(const QString& path);
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace velara
