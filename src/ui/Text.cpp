#include "ui/AccessibleRole.h"
#include "ui/Label.h"
#include "ui/LabelOpacity.h"

#include <QAccessible>
#include <QPainter>

namespace ui {

namespace {

/// Draws a text: one line in the middle of itself, or as many lines as it needs.
class Text final : public QWidget {
public:
    Text(QString text, TextOptions options)
        : text_(std::move(text))
        , color_(std::move(options.color))
        , wraps_(options.wraps)
        , truncates_(options.truncates) {
        QFont font = ui::font(options.pointSize, options.weight);
        if (options.isMonospaced) {
            font.setFamily(QStringLiteral("monospace"));
            font.setStyleHint(QFont::Monospace);
        }
        setFont(font);
        QSizePolicy policy(QSizePolicy::Fixed, wraps_ ? QSizePolicy::Minimum : QSizePolicy::Fixed);
        if (wraps_ || truncates_) {
            policy.setHorizontalPolicy(wraps_ ? QSizePolicy::Preferred : QSizePolicy::Maximum);
        }
        policy.setHeightForWidth(wraps_);
        setSizePolicy(policy);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAccessibleRole(*this, QAccessible::StaticText);
        setAccessibleName(text_);
    }

    void setText(const QString& text) {
        if (text == text_) {
            return;
        }
        text_ = text;
        setAccessibleName(text_);
        updateGeometry();
        update();
    }

    QSize sizeHint() const override {
        const QFontMetrics metrics = fontMetrics();
        // Broken into lines, a text needs a fraction of a point more than it advances.
        return {metrics.horizontalAdvance(text_) + (wraps_ ? 1 : 0), metrics.height()};
    }

    QSize minimumSizeHint() const override {
        return {wraps_ || truncates_ ? 0 : sizeHint().width(), wraps_ ? 0 : sizeHint().height()};
    }

    bool hasHeightForWidth() const override { return wraps_; }
    int heightForWidth(int width) const override {
        return fontMetrics().boundingRect(0, 0, width, 100000, flags(), text_).height();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setOpacity(labelOpacity(*this));
        painter.setPen(color(color_(), palette()));
        const QFontMetrics metrics = fontMetrics();
        if (truncates_ && metrics.horizontalAdvance(text_) > width()) {
            painter.drawText(rect(), Qt::AlignLeading | Qt::AlignVCenter | Qt::TextSingleLine,
                             metrics.elidedText(text_, Qt::ElideRight, width()));
            return;
        }
        painter.drawText(rect(), flags() | Qt::TextDontClip, text_);
    }

private:
    int flags() const {
        return wraps_ ? int(Qt::AlignLeading | Qt::AlignTop) | Qt::TextWordWrap
                      : int(Qt::AlignCenter) | Qt::TextSingleLine;
    }

    QString text_;
    Ink color_;
    bool wraps_;
    bool truncates_;
};

} // namespace

TextOptions textOptions(TextStyle style, Color color) {
    switch (style) {
    case TextStyle::Title2:
        return {.pointSize = 17, .color = color};
    case TextStyle::Headline:
        return {.pointSize = 13, .weight = Weight::Bold, .color = color};
    case TextStyle::Body:
        return {.pointSize = 13, .color = color};
    case TextStyle::Callout:
        return {.pointSize = 12, .color = color};
    case TextStyle::Caption:
        return {.pointSize = 11, .color = color};
    case TextStyle::Caption2:
        return {.pointSize = 10, .color = color};
    }
    Q_UNREACHABLE();
}

Element text(const QString& text, TextOptions options) {
    return Element(std::make_unique<Text>(text, options));
}

void setText(QWidget& widget, const QString& text) {
    dynamic_cast<Text&>(widget).setText(text);
}

} // namespace ui
