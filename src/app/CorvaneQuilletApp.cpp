#include "app/CorvaneQuilletApp.h"

#include <QApplication>

#include <utility>

namespace app {

CorvaneQuilletApp::CorvaneQuilletApp(std::unique_ptr<AppDelegate> appDelegate)
    : appDelegate_(std::move(appDelegate)) {
    // An accessory outlives each of its windows.
    QApplication::setQuitOnLastWindowClosed(false);
    connect(qApp, &QCoreApplication::aboutToQuit, appDelegate_.get(),
            &AppDelegate::applicationWillTerminate);
}

int CorvaneQuilletApp::run() {
    appDelegate_->applicationDidFinishLaunching();
    return QApplication::exec();
}

} // namespace app
