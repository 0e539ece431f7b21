#pragma once

#include "platform/Alerts.h"

#include <QPointer>

class QMessageBox;

namespace platform {

/// Alerts as the toolkit's message boxes.
class QtAlerts final : public Alerts {
public:
    /// While an alert is open a further one is not shown: the open one comes to the front, and the
    /// further one counts as closed.
    int runModal(const Alert& alert) override;

private:
    QPointer<QMessageBox> open_;
};

} // namespace platform
