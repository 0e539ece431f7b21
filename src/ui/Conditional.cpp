#include "ui/Conditional.h"

namespace ui {

void setPresent(QWidget& widget, bool present) {
    if (!present) {
        widget.hide();
    } else if (widget.parentWidget() != nullptr) {
        widget.show();
    } else {
        // To show what has not been placed yet would make a window of it; its parent shows it.
        widget.setAttribute(Qt::WA_WState_ExplicitShowHide, false);
    }
}

} // namespace ui
