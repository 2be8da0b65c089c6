// Manual: F1 in any window opens the manual at that window's page.
#pragma once
#include <QObject>
#include <QPointer>
#include <functional>

class QWidget;

namespace velara {

class fManual;

class Manual final : public QObject {
    Q_OBJECT
  public:
    /// The viewer belongs to the frame. toolPage gives the page of what the frame itself is used for.
    Manual(QWidget& frame, std::function<QString()> toolPage);

    /// Opens the page of the place that has the keys, or of the frame.
    void open();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void openAt(const QWidget* place);

    QWidget& frame_;
    std::function<QString()> toolPage_;
    QPointer<fManual> window_;
};

} // namespace velara
