#pragma once

#include <QCheckBox>

namespace ui {

/// A switch without a label: a knob in a track that has the accent colour while it is on.
class Switch final : public QCheckBox {
public:
    Switch();

    QSize sizeHint() const override;

protected:
    bool hitButton(const QPoint& position) const override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

} // namespace ui
