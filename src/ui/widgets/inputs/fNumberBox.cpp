#include "ui/widgets/inputs/fNumberBox.h"
#include <QKeyEvent>
#include <QLineEdit>
#include <QSlider>

namespace velara {

fNumberBox::fNumberBox(QSlider& slider, const QString& objectName, const Measure& measure)
    : QSpinBox(slider.parentWidget()), measure_(measure)
{
    setObjectName(objectName);
    setAccessibleName(slider.accessibleName());
    lineEdit()->setAccessibleName(slider.accessibleName());
    setSuffix(QString::fromUtf8(measure.unit));
    setAlignment(Qt::AlignRight);
    setRange(slider.minimum(), slider.maximum());
    setValue(slider.value());
    connect(&slider, &QSlider::rangeChanged, this, &QSpinBox::setRange);
    connect(this, &QSpinBox::valueChanged, &slider, &QSlider::setValue);
    connect(&slider, &QSlider::valueChanged, this, [this](int now) {
        if (now != value()) setValue(now); // otherwise the text being typed would be rewritten
    });
}

QString fNumberBox::textFromValue(int value) const
{
    const QString number = QString::number(value * measure_.step, 'f', measure_.decimals);
    return locale().decimalPoint() == QStringLiteral(",") ? QString(number).replace(u'.', u',') : number;
}

std::optional<double> fNumberBox::numberOf(QString text) const
{
    if (const QString unit = suffix(); !unit.isEmpty() && text.endsWith(unit)) text.chop(unit.size());
    bool isNumber = false;
    const double number = text.trimmed().replace(u',', u'.').toDouble(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

int fNumberBox::valueFromText(const QString& text) const
{
    return qRound(numberOf(text).value_or(value() * measure_.step) / measure_.step);
}

QValidator::State fNumberBox::validate(QString& text, int& place) const
{
    if (measure_.decimals == 0) return QSpinBox::validate(text, place);
    for (const QChar c : text)
        if (!c.isDigit() && c != u'.' && c != u',' && c != u'-') return QValidator::Invalid;
    const auto number = numberOf(text);
    const auto least = minimum() * measure_.step, most = maximum() * measure_.step;
    return number && *number >= least && *number <= most ? QValidator::Acceptable : QValidator::Intermediate;
}

bool fNumberBox::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const QString text = static_cast<QKeyEvent*>(event)->text();
        if (!text.isEmpty() && text.front().isLetter()) return false;
    }
    return QSpinBox::event(event);
}

} // namespace velara
