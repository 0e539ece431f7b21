#include "ui/RadioGroup.h"

#include "ui/AccessibleRole.h"
#include "ui/FocusRing.h"
#include "ui/Label.h"
#include "ui/Stack.h"
#include "ui/Theme.h"

#include <QPainter>
#include <QRadioButton>
#include <QStyle>

namespace ui {

namespace {

constexpr int diameter = 16;
constexpr int labelGap = 7;

class RadioButton final : public QRadioButton {
public:
    explicit RadioButton(const QString& label)
        : QRadioButton(label) {
        setFont(ui::font(13, Weight::Regular));
        setFocusPolicy(Qt::StrongFocus);
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        FocusRing::attach(*this, [this] { return FocusRing::Shape{circle(), diameter / 2.0}; });
    }

    QSize sizeHint() const override {
        const QFontMetrics metrics = fontMetrics();
        return {diameter + labelGap + metrics.horizontalAdvance(text()),
                std::max(diameter, metrics.height())};
    }

protected:
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }
    void enterEvent(QEnterEvent*) override { update(); }
    void leaveEvent(QEvent*) override { update(); }

    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setOpacity(isEnabled() ? 1 : 0.4);
        paintCircle(painter);
        painter.setPen(color({Color::Label}, palette()));
        const QRect label = QStyle::visualRect(layoutDirection(), rect(),
                                               rect().adjusted(diameter + labelGap, 0, 0, 0));
        painter.drawText(label, Qt::AlignVCenter | Qt::AlignLeading, text());
    }

private:
    QRectF circle() const {
        const QRect box(0, (height() - diameter) / 2, diameter, diameter);
        return QStyle::visualRect(layoutDirection(), rect(), box);
    }

    void paintCircle(QPainter& painter) const {
        const QRectF outer = circle();
        painter.setPen(Qt::NoPen);
        painter.setBrush(color({isChecked() ? Color::Accent : Color::ControlFace}, palette()));
        painter.drawEllipse(outer);
        if (!isChecked()) {
            painter.setBrush(Qt::NoBrush);
            painter.setPen(QPen(color({Color::ControlBorder}, palette()), 1));
            painter.drawEllipse(outer.adjusted(0.5, 0.5, -0.5, -0.5));
            painter.setPen(Qt::NoPen);
        }
        if (underMouse() && isEnabled()) {
            painter.setBrush(color({Color::Label, isDown() ? 0.16 : 0.07}, palette()));
            painter.drawEllipse(outer);
        }
        if (isChecked()) {
            painter.setBrush(color({Color::OnAccent}, palette()));
            painter.drawEllipse(outer.center(), 3, 3);
        }
    }
};

} // namespace

Element radioGroup(const QString& title, Binding<bool> selection,
                   const std::vector<RadioOption>& options) {
    std::vector<Element> rows;
    for (const RadioOption& option : options) {
        auto button = std::make_unique<RadioButton>(option.label);
        RadioButton& widget = *button;
        widget.setChecked(selection->get() == option.value);
        QObject::connect(&widget, &QRadioButton::toggled, &widget,
                         [selection, value = option.value](bool checked) {
                             if (checked && selection->get() != value) {
                                 selection->set(value);
                             }
                         });
        keep(widget,
             std::pair(selection, selection->observe([&widget, value = option.value](bool next) {
                 if (next == value) {
                     const QSignalBlocker quiet(widget);
                     widget.setChecked(true);
                 }
             })));
        rows.emplace_back(std::move(button));
    }
    Element group =
        stack(Qt::Vertical, {.spacing = 8, .alignment = Alignment::Leading}, std::move(rows));
    setAccessibleRole(group.widget(), QAccessible::Grouping);
    group.widget().setAccessibleName(title);
    return vstack({.spacing = 8, .alignment = Alignment::Leading}, text(title), std::move(group));
}

} // namespace ui
