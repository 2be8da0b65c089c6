#include "ui/widgets/inputs/Spoken.h"
#include <QAccessibleWidget>
#include <QTabWidget>

namespace velara {

namespace {

constexpr const char* kRole = "spokenRole";

class SpokenWidget final : public QAccessibleWidget, public QAccessibleValueInterface {
  public:
    SpokenWidget(QWidget* widget, Spoken& spoken) : QAccessibleWidget(widget), spoken_(spoken) {}

    QAccessible::Role role() const override { return spoken_.spokenRole(); }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? spoken_.spokenValue() : QAccessibleWidget::text(kind);
    }
    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface && spoken_.spokenRange())
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QVariant currentValue() const override { return of(&Spoken::Range::now); }
    QVariant minimumValue() const override { return of(&Spoken::Range::least); }
    QVariant maximumValue() const override { return of(&Spoken::Range::most); }
    QVariant minimumStepSize() const override { return 1; }
    void setCurrentValue(const QVariant& value) override
    {
        if (const auto range = spoken_.spokenRange())
            spoken_.setSpoken(std::clamp(value.toInt(), range->least, range->most));
    }

    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (spoken_.isPressable()) names.prepend(pressAction());
        return names;
    }
    void doAction(const QString& name) override
    {
        if (name != pressAction() || !spoken_.isPressable()) return QAccessibleWidget::doAction(name);
        if (widget()->isEnabled()) spoken_.press();
    }

  private:
    QVariant of(int Spoken::Range::*part) const
    {
        const auto range = spoken_.spokenRange();
        return range ? QVariant(*range.*part) : QVariant();
    }

    Spoken& spoken_;
};

QAccessibleInterface* spokenInterface(const QString&, QObject* object)
{
    auto* spoken = dynamic_cast<Spoken*>(object);
    auto* widget = qobject_cast<QWidget*>(object);
    if (spoken && widget) return new SpokenWidget(widget, *spoken);
    if (qobject_cast<QTabWidget*>(widget))
        return new QAccessibleWidget(widget, QAccessible::Pane); // Qt has no role for it
    const QVariant role = widget ? widget->property(kRole) : QVariant();
    return role.isValid() ? new QAccessibleWidget(widget, static_cast<QAccessible::Role>(role.toInt())) : nullptr;
}

} // namespace

void setSpokenRole(QWidget& widget, QAccessible::Role role) { widget.setProperty(kRole, static_cast<int>(role)); }

void useSpoken()
{
    QAccessible::removeFactory(spokenInterface); // it may have been called before
    QAccessible::installFactory(spokenInterface);
}

void sayValue(QWidget& widget)
{
    const auto* spoken = dynamic_cast<Spoken*>(&widget);
    if (!QAccessible::isActive() || !spoken) return;
    QAccessibleValueChangeEvent event(&widget, spoken->spokenValue());
    QAccessible::updateAccessibility(&event);
}

} // namespace velara
