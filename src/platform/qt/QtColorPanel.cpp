#include "platform/qt/QtColorPanel.h"

#include <QColorDialog>

namespace platform {

QtColorPanel::QtColorPanel(WindowServer& windowServer)
    : windowServer_(windowServer) {}

QtColorPanel::~QtColorPanel() = default;

void QtColorPanel::setMode(ColorPanelMode mode) {
    dialog();
    mode_ = mode;
}

Rect QtColorPanel::frame() {
    dialog();
    return frame_;
}

void QtColorPanel::setFrameOrigin(Point origin) {
    QColorDialog& panel = dialog();
    frame_.x = origin.x;
    frame_.y = origin.y;
    windowServer_.setFrame(panel, frame_);
}

QColorDialog& QtColorPanel::dialog() {
    if (!dialog_) {
        dialog_ = std::make_unique<QColorDialog>();
        dialog_->setOptions(QColorDialog::DontUseNativeDialog | QColorDialog::NoButtons);
        const QSize size = dialog_->sizeHint();
        frame_ = {0, 0, static_cast<double>(size.width()), static_cast<double>(size.height())};
    }
    return *dialog_;
}

} // namespace platform
