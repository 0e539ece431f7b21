#include "app/CorvaneQuilletApp.h"
#include "core/Log.h"
#include "platform/Platform.h"
#include "settings/AppSettingsManager.h"

#include <QApplication>

#include <cstdlib>

int main(int argc, char** argv) {
    if (const auto obstacle = platform::prepareProcess()) {
        core::log(*obstacle);
        return EXIT_FAILURE;
    }
    QApplication::setApplicationName(QStringLiteral("Corvane Quillet"));
    QApplication::setApplicationVersion(QStringLiteral(QUILLET_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("com.corvane.Quillet"));
    const QApplication application(argc, argv);

    const std::unique_ptr<platform::Platform> system = platform::makePlatform();
    const platform::CurrentPlatform current(*system);
    return app::CorvaneQuilletApp(
               std::make_unique<app::AppDelegate>(*system, settings::AppSettingsManager::shared()))
        .run();
}
