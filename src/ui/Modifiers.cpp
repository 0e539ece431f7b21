#include "ui/Modifiers.h"

#include "ui/Decoration.h"

#include <QLayout>
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

} // namespace

Modifier padding(Padding padding) {
    return [padding](Element element) {
        if (element.stage() > Stage::Padded || element.widget().layout() == nullptr) {
            element = wrapped(std::move(element));
        }
        QLayout& layout = *element.widget().layout();
        layout.setContentsMargins(
            layout.contentsMargins() +
            QMargins(padding.horizontal, padding.vertical, padding.horizontal, padding.vertical));
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
    return [=](Element element) {
        Decoration::of(element.widget())
            .addInFront([=](QPainter& painter, const QRectF& rect, const QPalette& palette) {
                const double half = lineWidth / 2;
                const RoundedRectangle line{shape.cornerRadius - half};
                painter.strokePath(line.path(rect.adjusted(half, half, -half, -half)),
                                   QPen(color(tint, palette), lineWidth));
            });
        element.setStage(Stage::Decorated);
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

Modifier accessibilityLabel(const QString& label) {
    return [label](Element element) {
        element.widget().setAccessibleName(label);
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
