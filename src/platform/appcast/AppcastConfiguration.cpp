#include "platform/appcast/AppcastConfiguration.h"

#include "platform/appcast/AppcastDefaults.h"
#include "platform/appcast/UpdateRecord.h"

#include <QLocale>

namespace platform {

AppcastConfiguration appcastConfiguration(SystemInfo& system) {
    QStringList languages;
    for (const QString& language : QLocale::system().uiLanguages()) {
        languages << language.section(u'-', 0, 0).toLower();
    }
    languages.removeDuplicates();
    return {.address = appcastAddress(),
            .installation = {{system.marketingVersion().value_or(QString()),
                              system.buildNumber().value_or(QString())},
                             system.operatingSystemVersion()},
            .audience = {QStringLiteral("linux"), languages},
            .recordPath = UpdateRecord::defaultPath(),
            .now = [] { return QDateTime::currentDateTimeUtc(); }};
}

} // namespace platform
