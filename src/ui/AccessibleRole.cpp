#include "ui/AccessibleRole.h"

#include <QAccessibleWidget>
#include <QVariant>

namespace ui {

namespace {

constexpr const char* roleProperty = "quilletAccessibleRole";
constexpr const char* selectedProperty = "quilletAccessiblySelected";

class RoleAccessible final : public QAccessibleWidget {
public:
    RoleAccessible(QWidget& widget, QAccessible::Role role)
        : QAccessibleWidget(&widget, role) {}

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        const QVariant selected = widget()->property(selectedProperty);
        state.selectable = selected.isValid();
        state.selected = selected.toBool();
        return state;
    }
};

QAccessibleInterface* create(const QString&, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    const QVariant role = object->property(roleProperty);
    return widget != nullptr && role.isValid()
               ? new RoleAccessible(*widget, static_cast<QAccessible::Role>(role.toInt()))
               : nullptr;
}

void installOnce() {
    static const bool installed = [] {
        QAccessible::installFactory(create);
        return true;
    }();
    Q_UNUSED(installed)
}

} // namespace

void setAccessibleRole(QWidget& widget, QAccessible::Role role) {
    installOnce();
    widget.setProperty(roleProperty, static_cast<int>(role));
}

void setAccessiblySelected(QWidget& item, bool selected) {
    item.setProperty(selectedProperty, selected);
    QAccessible::State changed;
    changed.selected = true;
    QAccessibleStateChangeEvent event(&item, changed);
    QAccessible::updateAccessibility(&event);
}

Modifier accessibilityRole(QAccessible::Role role) {
    return [role](Element element) {
        setAccessibleRole(element.widget(), role);
        return element;
    };
}

} // namespace ui
