#include "ui/SliderAccessible.h"

namespace ui {

namespace {

QAccessibleInterface* create(const QString&, QObject* object) {
    auto* slider = qobject_cast<SteppedSlider*>(object);
    return slider != nullptr ? new SliderAccessible(*slider) : nullptr;
}

} // namespace

SliderAccessible::SliderAccessible(SteppedSlider& slider)
    : QAccessibleWidget(&slider, QAccessible::Slider)
    , slider_(slider) {}

void SliderAccessible::install() {
    static const bool installed = [] {
        QAccessible::installFactory(create);
        return true;
    }();
    Q_UNUSED(installed)
}

void SliderAccessible::tellValue(SteppedSlider& slider) {
    QAccessibleValueChangeEvent event(&slider, slider.value());
    QAccessible::updateAccessibility(&event);
}

void* SliderAccessible::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                               : QAccessibleWidget::interface_cast(type);
}

QString SliderAccessible::text(QAccessible::Text text) const {
    return text == QAccessible::Value ? QString::number(slider_.value())
                                      : QAccessibleWidget::text(text);
}

QVariant SliderAccessible::currentValue() const {
    return slider_.value();
}

void SliderAccessible::setCurrentValue(const QVariant& value) {
    slider_.choose(value.toDouble());
}

QVariant SliderAccessible::maximumValue() const {
    return slider_.options().maximum;
}

QVariant SliderAccessible::minimumValue() const {
    return slider_.options().minimum;
}

QVariant SliderAccessible::minimumStepSize() const {
    return slider_.options().step;
}

} // namespace ui
