#include "ui/TextField.h"

#include "ui/FocusRing.h"
#include "ui/RoundedRectangle.h"
#include "ui/Theme.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QScopedValueRollback>

namespace ui {

namespace {

constexpr int borderedHeight = 28;
constexpr RoundedRectangle shape{6};

class LineEdit final : public QLineEdit {
public:
    LineEdit(const QString& placeholder, Binding<QString> text, TextFieldOptions options)
        : options_(std::move(options)) {
        setFont(ui::font(options_.pointSize, Weight::Regular));
        setFrame(false);
        setAttribute(Qt::WA_MacShowFocusRect, false);
        setPlaceholderText(placeholder);
        setAccessibleName(placeholder);
        setText(text->get());
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        if (isBordered()) {
            setTextMargins(7, 0, 7, 0);
            setFixedHeight(borderedHeight);
            FocusRing::attach(*this, [this] {
                return FocusRing::Shape{QRectF(rect()), shape.cornerRadius};
            });
        }
        takeColours();
        connect(this, &QLineEdit::textEdited, this, [this, text](const QString& edited) {
            const QScopedValueRollback own(isOwnEdit_, true);
            text->set(edited);
        });
        keep(*this, std::pair(text, text->observe([this](const QString& next) {
            // To set what is being typed would move the caret.
            if (!isOwnEdit_) {
                setText(next);
            }
        })));
        if (const auto& isFocused = options_.isFocused) {
            keep(*this, std::pair(isFocused, isFocused->observe([this](bool wanted) {
                if (wanted && !hasFocus()) {
                    setFocus(Qt::OtherFocusReason);
                }
            })));
        }
    }

protected:
    bool event(QEvent* event) override {
        if (event->type() != QEvent::KeyPress) {
            return QLineEdit::event(event);
        }
        if (isComposing_) {
            // What the input method leaves over is nobody else's either.
            QLineEdit::event(event);
            event->accept();
            return true;
        }
        auto& press = static_cast<QKeyEvent&>(*event);
        if (options_.onKeyPress && options_.onKeyPress(press)) {
            return true;
        }
        const bool submits = press.key() == Qt::Key_Return || press.key() == Qt::Key_Enter;
        if (!submits || !options_.onSubmit) {
            return QLineEdit::event(event);
        }
        // Nobody around the field submits a second time. The call may end the field, and with it
        // what is called: nothing of either is touched after it.
        press.accept();
        const auto submit = options_.onSubmit;
        submit();
        return true;
    }

    void inputMethodEvent(QInputMethodEvent* event) override {
        isComposing_ = !event->preeditString().isEmpty();
        QLineEdit::inputMethodEvent(event);
    }

    void focusInEvent(QFocusEvent* event) override {
        QLineEdit::focusInEvent(event);
        tellFocus();
    }

    void focusOutEvent(QFocusEvent* event) override {
        QLineEdit::focusOutEvent(event);
        tellFocus();
    }

    void changeEvent(QEvent* event) override {
        if (event->type() == QEvent::PaletteChange) {
            takeColours();
        }
        QLineEdit::changeEvent(event);
    }

    void paintEvent(QPaintEvent* event) override {
        if (isBordered()) {
            QPainter painter(this);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setOpacity(isEnabled() ? 1 : 0.4);
            const QPalette& outer = parentWidget()->palette();
            painter.fillPath(shape.path(rect()), color({Color::TextBackground}, outer));
            const RoundedRectangle outline{shape.cornerRadius - 0.5};
            painter.strokePath(
                outline.path(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5)),
                QPen(color({hasFocus() ? Color::Accent : Color::ControlBorder}, outer), 1));
        }
        QLineEdit::paintEvent(event);
    }

private:
    bool isBordered() const { return options_.style == TextFieldStyle::RoundedBorder; }

    /// The field draws its own background, which the toolkit's would cover.
    void takeColours() {
        if (isTakingColours_) {
            return;
        }
        const QScopedValueRollback guard(isTakingColours_, true);
        QPalette own;
        own.setColor(QPalette::Base, Qt::transparent);
        own.setColor(QPalette::PlaceholderText, color({Color::SecondaryLabel}, palette()));
        setPalette(own);
    }

    void tellFocus() {
        if (options_.isFocused && options_.isFocused->get() != hasFocus()) {
            options_.isFocused->set(hasFocus());
        }
        update();
    }

    TextFieldOptions options_;
    bool isOwnEdit_ = false;
    bool isComposing_ = false;
    bool isTakingColours_ = false;
};

} // namespace

Element textField(const QString& placeholder, Binding<QString> text, TextFieldOptions options) {
    return Element(std::make_unique<LineEdit>(placeholder, std::move(text), std::move(options)));
}

} // namespace ui
