#pragma once

#include "ui/RoundedRectangle.h"

#include <QWidget>

namespace ui {

/// Lies over everything else in a translucent window and cuts its corners away.
class CornerClip final : public QWidget {
public:
    CornerClip(RoundedRectangle shape, QWidget& window);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    RoundedRectangle shape_;
};

} // namespace ui
