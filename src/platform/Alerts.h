#pragma once

#include <QString>
#include <QStringList>

namespace platform {

enum class AlertStyle { Warning, Informational };

struct Alert {
    AlertStyle style = AlertStyle::Warning;
    QString messageText;
    QString informativeText;
    /// From the default button on.
    QStringList buttons;
};

class Alerts {
public:
    /// What runModal answers for the first button; the others follow.
    static constexpr int firstButtonReturn = 1000;

    virtual ~Alerts() = default;

    /// Shows the alert in front of everything and waits for a button. Closing it by other means
    /// counts as the last button. Main thread only.
    virtual int runModal(const Alert& alert) = 0;
};

} // namespace platform
