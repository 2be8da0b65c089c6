// fPathLabel: a path in one line, elided in its middle when it doesn't fit.
#pragma once
#include <QLabel>

namespace velara {

class fPathLabel final : public QLabel {
    Q_OBJECT
  public:
    explicit fPathLabel(const QString& objectName, QWidget* parent = nullptr);
    /// The tool tip has the full path.
    void setPath(const QString& path);
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace velara
