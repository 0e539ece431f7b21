#include "ui/AccessibleRole.h"
#include "ui/Label.h"
#include "ui/LabelOpacity.h"

#include <QAccessible>
#include <QPainter>
#include <QTextLayout>

#include <cmath>

namespace ui {

namespace {

/// The text layout breaks lines at separators only.
QString withLineSeparators(QString text) {
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    return text.replace(u'\n', QChar::LineSeparator);
}

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
        if (wraps_) {
            // Rounded up: where there is less room than it needs, the last word has its own line.
            QTextLayout lines(withLineSeparators(text_), font());
            layOut(lines, QWIDGETSIZE_MAX);
            return {static_cast<int>(std::ceil(lines.maximumWidth())), metrics.height()};
        }
        return {metrics.horizontalAdvance(text_), metrics.height()};
    }

    QSize minimumSizeHint() const override {
        return {wraps_ || truncates_ ? 0 : sizeHint().width(), wraps_ ? 0 : sizeHint().height()};
    }

    bool hasHeightForWidth() const override { return wraps_; }
    int heightForWidth(int width) const override {
        QTextLayout lines(withLineSeparators(text_), font());
        return static_cast<int>(std::ceil(layOut(lines, width)));
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setOpacity(labelOpacity(*this));
        painter.setPen(color(color_(), palette()));
        if (wraps_) {
            QTextLayout lines(withLineSeparators(text_), font());
            layOut(lines, width());
            lines.draw(&painter, {0, 0});
            return;
        }
        const QFontMetrics metrics = fontMetrics();
        if (truncates_ && metrics.horizontalAdvance(text_) > width()) {
            painter.drawText(rect(), Qt::AlignLeading | Qt::AlignVCenter | Qt::TextSingleLine,
                             metrics.elidedText(text_, Qt::ElideRight, width()));
            return;
        }
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine | Qt::TextDontClip, text_);
    }

private:
    /// Breaks a word only where it is longer than a line. Answers the height of all lines.
    double layOut(QTextLayout& lines, int width) const {
        QTextOption option;
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        option.setTextDirection(layoutDirection());
        lines.setTextOption(option);
        const double leading = QFontMetricsF(font()).leading();
        double height = -leading;
        lines.beginLayout();
        for (QTextLine line = lines.createLine(); line.isValid(); line = lines.createLine()) {
            height += leading;
            line.setLineWidth(width);
            line.setPosition({0, height});
            height += line.height();
        }
        lines.endLayout();
        return height;
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
