#include "ui/Modifiers.h"

#include "ui/Decoration.h"
#include "ui/DevicePixels.h"
#include "ui/FocusRing.h"

#include <QLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QPen>

namespace ui {

namespace {

using Stage = Element::Stage;

/// Whether a widget keeps what is in it in the middle when it gets more room: a label does, and
/// whatever holds one child; a stack does not.
bool centresContents(const QWidget& widget) {
    return widget.layout() == nullptr || widget.layout()->count() == 1;
}

/// Keeps a widget in the middle of the one around it.
class Centred final : public QObject {
public:
    Centred(QWidget& around, QWidget& widget)
        : QObject(&widget)
        , widget_(widget) {
        around.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Resize) {
            QRect place({}, naturalSize(widget_));
            place.moveCenter(static_cast<QWidget*>(watched)->rect().center());
            widget_.setGeometry(place);
        }
        return false;
    }

private:
    QWidget& widget_;
};

void strokeInside(QPainter& painter, const QRectF& rect, const RoundedRectangle& shape,
                  const QColor& color, double lineWidth) {
    const double half = lineWidth / 2;
    const RoundedRectangle line{shape.cornerRadius - half, shape.corners};
    painter.strokePath(line.path(rect.adjusted(half, half, -half, -half)), QPen(color, lineWidth));
}

/// A line around a widget, over all that is in it.
class Outline final : public QWidget {
public:
    Outline(QWidget& around, RoundedRectangle shape, Tint tint, double lineWidth)
        : QWidget(&around)
        , shape_(shape)
        , tint_(tint)
        , lineWidth_(lineWidth) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        around.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Resize) {
            setGeometry(static_cast<QWidget*>(watched)->rect());
        }
        return false;
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        strokeInside(painter, wholeDevicePixels(painter, rect()), shape_, color(tint_, palette()),
                     lineWidth_);
    }

private:
    RoundedRectangle shape_;
    Tint tint_;
    double lineWidth_;
};

/// Tells when a widget is shown; that its window was minimised and is back does not count.
class Appearance final : public QObject {
public:
    Appearance(QWidget& widget, std::function<void()> action)
        : QObject(&widget)
        , action_(std::move(action)) {
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Show && !event->spontaneous()) {
            action_();
        }
        return false;
    }

private:
    std::function<void()> action_;
};

/// Tells of a click that no control in the widget took.
class Tap final : public QObject {
public:
    Tap(QWidget& widget, std::function<void()> action)
        : QObject(&widget)
        , action_(std::move(action)) {
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::MouseButtonPress &&
            event->type() != QEvent::MouseButtonRelease) {
            return false;
        }
        const auto& click = *static_cast<QMouseEvent*>(event);
        const bool inside = static_cast<QWidget*>(watched)->rect().contains(click.pos());
        if (click.button() != Qt::LeftButton) {
            return false;
        }
        if (event->type() == QEvent::MouseButtonRelease && inside) {
            action_();
        }
        return true;
    }

private:
    std::function<void()> action_;
};

} // namespace

Modifier padding(Padding padding) {
    return [padding](Element element) {
        if (element.stage() > Stage::Padded || element.widget().layout() == nullptr) {
            element = wrapped(std::move(element));
        }
        QLayout& layout = *element.widget().layout();
        layout.setContentsMargins(layout.contentsMargins() +
                                  QMargins(padding.horizontal + padding.leading, padding.vertical,
                                           padding.horizontal, padding.vertical));
        element.setStage(Stage::Padded);
        return element;
    };
}

Modifier frame(Frame frame) {
    return [frame](Element element) {
        if (element.stage() >= Stage::Framed || !centresContents(element.widget())) {
            element = wrapped(std::move(element));
        }
        QWidget& widget = element.widget();
        QSizePolicy policy = widget.sizePolicy();
        if (frame.width) {
            widget.setFixedWidth(*frame.width);
            policy.setHorizontalPolicy(QSizePolicy::Fixed);
        }
        if (frame.height) {
            widget.setFixedHeight(*frame.height);
            policy.setVerticalPolicy(QSizePolicy::Fixed);
        }
        if (frame.minimumWidth) {
            widget.setMinimumWidth(*frame.minimumWidth);
        }
        widget.setSizePolicy(policy);
        element.setStage(Stage::Framed);
        return element;
    };
}

Fill fill(std::function<Tint()> tint) {
    return [tint = std::move(tint)](const QPalette& palette) { return color(tint(), palette); };
}

Modifier background(RoundedRectangle shape, Fill fill) {
    return [shape, fill = std::move(fill)](Element element) {
        Decoration::of(element.widget())
            .addBehind([=](QPainter& painter, const QRectF& rect, const QPalette& palette) {
                if (const QColor colour = fill(palette); colour.alpha() > 0) {
                    painter.fillPath(shape.path(rect), colour);
                }
            });
        element.setStage(Stage::Decorated);
        return element;
    };
}

Modifier border(RoundedRectangle shape, Tint tint, double lineWidth) {
    return border(
        shape, [tint] { return tint; }, lineWidth);
}

Modifier border(RoundedRectangle shape, std::function<Tint()> tint, double lineWidth) {
    return [=, tint = std::move(tint)](Element element) {
        Decoration::of(element.widget())
            .addInFront([=](QPainter& painter, const QRectF& rect, const QPalette& palette) {
                strokeInside(painter, rect, shape, color(tint(), palette), lineWidth);
            });
        element.setStage(Stage::Decorated);
        return element;
    };
}

Modifier outline(RoundedRectangle shape, Tint tint, double lineWidth) {
    return [=](Element element) {
        // Whatever is put around the element stays outside its outline.
        element.setStage(Stage::Decorated);
        new Outline(element.widget(), shape, tint, lineWidth);
        return element;
    };
}

Modifier behind(const std::function<Element()>& backdrop) {
    return [backdrop](Element element) {
        auto owned = backdrop().take();
        QWidget& widget = *owned;
        owned.release()->setParent(&element.widget());
        widget.lower();
        new Centred(element.widget(), widget);
        return element;
    };
}

Modifier focusRing(double cornerRadius) {
    return [cornerRadius](Element element) {
        QWidget& widget = element.widget();
        FocusRing::attach(widget, [&widget, cornerRadius] {
            return FocusRing::Shape{QRectF(widget.rect()), cornerRadius};
        });
        return element;
    };
}

Modifier onAppear(std::function<void()> action) {
    return [action = std::move(action)](Element element) {
        new Appearance(element.widget(), action);
        return element;
    };
}

Modifier tooltip(const QString& text) {
    return [text](Element element) {
        element.widget().setToolTip(text);
        element.widget().setAccessibleName(text);
        return element;
    };
}

Modifier onHover(Binding<bool> isHovered) {
    return [isHovered = std::move(isHovered)](Element element) {
        Decoration::of(element.widget()).addHoverHandler([isHovered](bool hovered) {
            isHovered->set(hovered);
        });
        return redrawOn(isHovered)(std::move(element));
    };
}

Modifier onTap(std::function<void()> action) {
    return [action = std::move(action)](Element element) {
        new Tap(element.widget(), action);
        return element;
    };
}

Modifier accessibilityLabel(const QString& label) {
    return [label](Element element) {
        element.widget().setAccessibleName(label);
        return element;
    };
}

Modifier accessibilityValue(Binding<QString> value) {
    return [value = std::move(value)](Element element) {
        QWidget& widget = element.widget();
        widget.setAccessibleDescription(value->get());
        keep(widget, std::pair(value, value->observe([&widget](const QString& next) {
                 widget.setAccessibleDescription(next);
             })));
        return element;
    };
}

Modifier identifier(const QString& name) {
    return [name](Element element) {
        element.widget().setObjectName(name);
        return element;
    };
}

} // namespace ui
