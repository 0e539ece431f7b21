#pragma once

#include "app/AppDelegate.h"

#include <QObject>

namespace app {

/// The application's description: it has its delegate, and nothing opens at launch.
class CorvaneQuilletApp : public QObject {
public:
    /// Installs the delegate with the application object.
    explicit CorvaneQuilletApp(std::unique_ptr<AppDelegate> appDelegate);

    /// Launches and runs until the application quits; answers its exit status.
    int run();

private:
    std::unique_ptr<AppDelegate> appDelegate_;
};

} // namespace app
