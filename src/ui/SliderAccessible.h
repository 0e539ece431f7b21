#pragma once

#include "ui/SteppedSlider.h"

#include <QAccessibleWidget>

namespace ui {

/// A slider as assistive technology sees it, in the slider's own unit.
class SliderAccessible final : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit SliderAccessible(SteppedSlider& slider);

    /// Once for the process; further calls do nothing.
    static void install();
    static void tellValue(SteppedSlider& slider);

    void* interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text text) const override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant& value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override;

private:
    SteppedSlider& slider_;
};

} // namespace ui
