#pragma once

#include <QStringList>
#include <QTabBar>

namespace ui {

/// The segments of a tab view: a symbol above a title each, the chosen one on a raised face.
class SegmentStrip final : public QTabBar {
public:
    SegmentStrip();

    void addSegment(const QString& symbol, const QString& title);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    QSize tabSizeHint(int index) const override;
    QSize minimumTabSizeHint(int index) const override { return tabSizeHint(index); }
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void paintSegment(QPainter& painter, int index) const;

    QStringList symbols_;
    int hovered_ = -1;
};

} // namespace ui
