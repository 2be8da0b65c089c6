// fNumberBox: the number box beside a slider; each sets the other. It takes the slider's range, and shows the slider's
// position in units of its own. It ignores letters, so that the window's shortcut keys work while it has the focus.
#pragma once
#include <QSpinBox>
#include <optional>

class QSlider;

namespace velara {

class fNumberBox final : public QSpinBox {
    Q_OBJECT
  public:
    struct Measure {
        double step = 1; // displayed value per slider position
        int decimals = 0;
        const char* unit = ""; // after the number
    };
    /// Takes the slider's present parent and accessible name.
    fNumberBox(QSlider& slider, const QString& objectName, const Measure& measure);
    fNumberBox(QSlider& slider, const QString& objectName) : fNumberBox(slider, objectName, Measure()) {}

  protected:
    QString textFromValue(int value) const override;
    int valueFromText(const QString& text) const override;
    QValidator::State validate(QString& text, int& place) const override;
    bool event(QEvent* event) override;

  private:
    /// The number in a text, with a point or a comma; no value if it isn't a number.
    std::optional<double> numberOf(QString text) const;

    Measure measure_;
};

} // namespace velara
