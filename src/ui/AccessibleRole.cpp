#include "ui/AccessibleRole.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QVariant>

namespace ui {

namespace {

constexpr const char* roleProperty = "quilletAccessibleRole";
constexpr const char* selectedProperty = "quilletAccessiblySelected";

class RoleAccessible final : public QAccessibleWidget {
public:
    explicit RoleAccessible(QWidget& widget)
        : QAccessibleWidget(&widget) {}

    QAccessible::Role role() const override {
        return static_cast<QAccessible::Role>(widget()->property(roleProperty).toInt());
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        const QVariant selected = widget()->property(selectedProperty);
        state.selectable = selected.isValid();
        state.selected = selected.toBool();
        return state;
    }

    // Rows that are hidden are not among a list's children.
    int childCount() const override { return static_cast<int>(shownChildren().size()); }
    QAccessibleInterface* child(int index) const override {
        return QAccessible::queryAccessibleInterface(shownChildren().value(index));
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return static_cast<int>(shownChildren().indexOf(child->object()));
    }

    QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (button() != nullptr && widget()->isEnabled()) {
            names.prepend(pressAction());
        }
        return names;
    }
    void doAction(const QString& name) override {
        if (button() != nullptr && name == pressAction()) {
            button()->click();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

private:
    QAbstractButton* button() const { return qobject_cast<QAbstractButton*>(object()); }

    QObjectList shownChildren() const {
        QObjectList shown;
        for (int index = 0; index < QAccessibleWidget::childCount(); ++index) {
            QObject* object = QAccessibleWidget::child(index)->object();
            const auto* child = qobject_cast<QWidget*>(object);
            if (child == nullptr || !child->isHidden()) {
                shown.append(object);
            }
        }
        return shown;
    }
};

QAccessibleInterface* create(const QString&, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    return widget != nullptr && object->property(roleProperty).isValid()
               ? new RoleAccessible(*widget)
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
    // A change of the state alone is not passed on everywhere.
    QAccessibleEvent event(&item,
                           selected ? QAccessible::SelectionAdd : QAccessible::SelectionRemove);
    QAccessible::updateAccessibility(&event);
}

Modifier accessibilityRole(QAccessible::Role role) {
    return [role](Element element) {
        setAccessibleRole(element.widget(), role);
        return element;
    };
}

} // namespace ui
