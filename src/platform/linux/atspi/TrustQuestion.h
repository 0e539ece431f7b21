#pragma once

#include <QMessageBox>
#include <QPointer>

#include <functional>

namespace platform {

/// Asks the user, without blocking, whether accessibility may be switched on for the desktop.
class TrustQuestion {
public:
    ~TrustQuestion();

    /// Shows the question, or brings it forward when it is already there. `agreed` is called after
    /// a yes; any other way to close it is a no.
    void ask(std::function<void()> agreed);

private:
    QPointer<QMessageBox> question_;
};

} // namespace platform
