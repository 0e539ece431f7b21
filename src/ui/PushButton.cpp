#include "ui/PushButton.h"

#include "ui/FocusRing.h"
#include "ui/RoundedRectangle.h"
#include "ui/Theme.h"

#include <QPainter>
#include <QPushButton>
#include <QShortcut>

namespace ui {

namespace {

constexpr int bezelHeight = 28;
constexpr int margin = 14;
constexpr RoundedRectangle shape{6};

class BezelButton final : public QPushButton {
public:
    explicit BezelButton(ButtonStyle style)
        : style_(style) {
        setFont(ui::font(13, style == ButtonStyle::Prominent ? Weight::Medium : Weight::Regular));
        setFocusPolicy(Qt::StrongFocus);
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        FocusRing::attach(*this, [this] {
            return FocusRing::Shape{QRectF(rect()), shape.cornerRadius};
        });
    }

    QSize sizeHint() const override {
        return {fontMetrics().horizontalAdvance(text()) + 2 * margin, bezelHeight};
    }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }
    void enterEvent(QEnterEvent*) override { update(); }
    void leaveEvent(QEvent*) override { update(); }

    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setOpacity(isEnabled() ? 1 : 0.4);
        const bool prominent = style_ == ButtonStyle::Prominent && isEnabled();
        const QRectF bezel(rect());
        painter.fillPath(shape.path(bezel),
                         color({prominent ? Color::AccentBehindText : Color::ControlFace}, palette()));
        if (isEnabled() && (isDown() || underMouse())) {
            painter.fillPath(shape.path(bezel),
                             color({Color::Label, isDown() ? 0.16 : 0.06}, palette()));
        }
        if (!prominent) {
            const RoundedRectangle outline{shape.cornerRadius - 0.5};
            painter.strokePath(outline.path(bezel.adjusted(0.5, 0.5, -0.5, -0.5)),
                               QPen(color({Color::ControlBorder}, palette()), 1));
        }
        painter.setPen(color({prominent ? Color::White : Color::Label}, palette()));
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text());
    }

private:
    ButtonStyle style_;
};

void addKey(BezelButton& button, ButtonKey key) {
    const auto press = [&button](const QKeySequence& sequence) {
        auto* shortcut = new QShortcut(sequence, &button);
        shortcut->setContext(Qt::WindowShortcut);
        shortcut->setAutoRepeat(false);
        QObject::connect(shortcut, &QShortcut::activated, &button, [&button] { button.click(); });
    };
    switch (key) {
    case ButtonKey::None:
        break;
    case ButtonKey::Default:
        press(Qt::Key_Return);
        press(Qt::Key_Enter);
        break;
    case ButtonKey::Cancel:
        press(Qt::Key_Escape);
        break;
    }
}

} // namespace

Element pushButton(Binding<QString> title, PushButtonOptions options,
                   std::function<void()> action) {
    auto button = std::make_unique<BezelButton>(options.style);
    BezelButton& widget = *button;
    widget.setText(title->get());
    keep(widget, std::pair(title, title->observe(
                                      [&widget](const QString& next) { widget.setText(next); })));
    if (const auto& isEnabled = options.isEnabled) {
        widget.setEnabled(isEnabled->get());
        keep(widget, std::pair(isEnabled, isEnabled->observe(
                                              [&widget](bool next) { widget.setEnabled(next); })));
    }
    addKey(widget, options.key);
    QObject::connect(&widget, &QAbstractButton::clicked, &widget, std::move(action));
    return Element(std::move(button));
}

Element pushButton(const QString& title, PushButtonOptions options, std::function<void()> action) {
    return pushButton(state(title), std::move(options), std::move(action));
}

} // namespace ui
