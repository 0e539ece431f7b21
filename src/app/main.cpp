#include "app/CorvaneQuilletApp.h"
#include "app/LaunchArguments.h"
#include "core/Log.h"
#include "core/ProgramIdentity.h"
#include "platform/Platform.h"
#include "settings/AppSettingsManager.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <cstdio>
#include <cstdlib>
#include <utility>

using platform::InstanceRequest;
using platform::ProgramInstance;

int main(int argc, char** argv) {
    const auto launch = app::launchOf({argv + 1, argv + argc});
    if (const auto* answer = std::get_if<app::LaunchAnswer>(&launch)) {
        std::fputs(answer->words.c_str(), answer->status == EXIT_SUCCESS ? stdout : stderr);
        return answer->status;
    }
    const auto asked = std::get<InstanceRequest::Kind>(launch);
    auto instance = platform::makeProgramInstance();
    switch (instance->claim(asked)) {
    case ProgramInstance::Claim::First:
        if (asked == InstanceRequest::Kind::Quit) {
            return EXIT_SUCCESS;
        }
        break;
    case ProgramInstance::Claim::HandedOver:
        return EXIT_SUCCESS;
    case ProgramInstance::Claim::Unanswered:
        return EXIT_FAILURE;
    }
    if (const auto obstacle = platform::prepareProcess()) {
        core::log(*obstacle);
        return EXIT_FAILURE;
    }
    QApplication::setApplicationName(QStringLiteral("Corvane Quillet"));
    QApplication::setApplicationVersion(core::programVersion());
    QApplication::setDesktopFileName(core::programIdentifier());
    const QApplication application(argc, argv);
    // Why something could not be sent, and the editors' menus, are the toolkit's own words. They
    // must not turn our windows around.
    QApplication::setLayoutDirection(Qt::LeftToRight);
    QTranslator toolkitTexts;
    if (toolkitTexts.load(QLocale(), QStringLiteral("qtbase"), QStringLiteral("_"),
                          QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QApplication::installTranslator(&toolkitTexts);
    }

    const std::unique_ptr<platform::Platform> system = platform::makePlatform(std::move(instance));
    const platform::CurrentPlatform current(*system);
    return app::CorvaneQuilletApp(
               std::make_unique<app::AppDelegate>(*system, settings::AppSettingsManager::shared()))
        .run();
}
