#include "ui/Toggle.h"

#include "ui/Label.h"
#include "ui/Stack.h"
#include "ui/Switch.h"

#include <QMouseEvent>

namespace ui {

namespace {

/// Passes a click on the label's row to the switch.
class ToggleRow final : public QWidget {
public:
    ToggleRow(Element contents, Switch& control)
        : control_(control) {
        embed(*this, std::move(contents));
    }

protected:
    void mousePressEvent(QMouseEvent* event) override { setDown(event, true); }
    void mouseMoveEvent(QMouseEvent* event) override {
        control_.setDown(rect().contains(event->pos()));
    }
    void mouseReleaseEvent(QMouseEvent* event) override {
        setDown(event, false);
        if (event->button() == Qt::LeftButton && rect().contains(event->pos())) {
            control_.click();
        }
    }

private:
    void setDown(const QMouseEvent* event, bool down) {
        if (event->button() == Qt::LeftButton && control_.isEnabled()) {
            control_.setDown(down);
        }
    }

    Switch& control_;
};

} // namespace

Element switchControl(const QString& accessibilityLabel, Binding<bool> isOn,
                      std::function<void()> flip) {
    auto control = std::make_unique<Switch>();
    Switch& widget = *control;
    widget.setAccessibleName(accessibilityLabel);
    const auto show = [&widget](bool on) {
        const QSignalBlocker quiet(widget);
        widget.setChecked(on);
    };
    show(isOn->get());
    keep(widget, std::pair(isOn, isOn->observe(show)));
    // Assistive technology flips it without a click.
    QObject::connect(&widget, &QAbstractButton::toggled, &widget,
                     [show, isOn, flip = std::move(flip)] {
                         flip();
                         // Whoever decides may have decided otherwise.
                         show(isOn->get());
                     });
    return Element(std::move(control));
}

Element toggle(const QString& label, Binding<bool> isOn) {
    Element control = switchControl(label, isOn, [isOn] { isOn->set(!isOn->get()); });
    auto& widget = static_cast<Switch&>(control.widget());
    return Element(
        std::make_unique<ToggleRow>(hstack({}, text(label), spacer(), std::move(control)), widget));
}

} // namespace ui
