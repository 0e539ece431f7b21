#pragma once

#include "ui/Element.h"

namespace ui {

/// Shows an element at its own size in the middle of itself, whatever its own size is: an element
/// that is larger is cut off evenly at both ends and never makes its host larger.
class HostingView final : public QWidget {
public:
    explicit HostingView(Element root);

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

private:
    void centre();

    QWidget& root_;
};

} // namespace ui
