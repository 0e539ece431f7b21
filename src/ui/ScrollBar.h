#pragma once

#include <QScrollBar>

namespace ui {

/// A thin vertical indicator of what part of a page is visible; it can be dragged.
class ScrollBar final : public QScrollBar {
    Q_OBJECT

public:
    enum class Width { Normal, Narrow };

    explicit ScrollBar(Width width = Width::Normal);

    QSize sizeHint() const override;

protected:
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    int width_;
};

} // namespace ui
