#include "ui/Button.h"

#include <QAbstractButton>

namespace ui {

namespace {

/// The button that draws nothing; its label is a child.
class PlainButton final : public QAbstractButton {
public:
    PlainButton(Element label, ButtonFocus focus) {
        setFocusPolicy(focus == ButtonFocus::Keyboard ? Qt::TabFocus : Qt::NoFocus);
        setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
        label.widget().setAttribute(Qt::WA_TransparentForMouseEvents);
        embed(*this, std::move(label));
    }

protected:
    void paintEvent(QPaintEvent*) override {}
};

} // namespace

Element button(Element label, std::function<void()> action, ButtonFocus focus) {
    auto widget = std::make_unique<PlainButton>(std::move(label), focus);
    QObject::connect(widget.get(), &QAbstractButton::clicked, widget.get(), std::move(action));
    return Element(std::move(widget));
}

} // namespace ui
