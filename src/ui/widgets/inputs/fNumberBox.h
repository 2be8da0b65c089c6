// fNumberBox: the number beside a slider, which each sets in the other. It takes the slider's range, and shows the
// slider's position in a measure of its own. Letters go past it, so that keys of the window act while it has the focus.
#pragma once
#include <QSpinBox>
#include <optional>

class QSlider;

namespace velara {

class fNumberBox final : public QSpinBox {
    Q_OBJECT
  public:
    struct Measure {
        double step = 1; // what is shown is position * step
        int decimals = 0;
        const char* unit = ""; // behind the number
    };
    /// Takes the place in the slider's parent and its accessible name, both as they are now.
    fNumberBox(QSlider& slider, const QString& objectName, const Measure& measure);
    fNumberBox(QSlider& slider, const QString& objectName) : fNumberBox(slider, objectName, Measure()) {}

  protected:
    QString textFromValue(int value) const override;
    int valueFromText(const QString& text) const override;
    QValidator::State validate(QString& text, int& place) const override;
    bool event(QEvent* event) override;

  private:
    /// The number in a text, with a point or a comma; none for what is no number.
    std::optional<double> numberOf(QString text) const;

    Measure measure_;
};

} // namespace velara
