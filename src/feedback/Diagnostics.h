#pragma once

#include <QDateTime>
#include <QLocale>
#include <QString>

namespace platform {
struct Platform;
class SystemInfo;
} // namespace platform

namespace settings {
class AppSettingsManager;
}

namespace feedback {

QString appVersion(platform::SystemInfo& system);
QString osVersion(platform::SystemInfo& system);

/// The report on permission and settings at a moment, its date in the style of a locale. Main
/// thread only.
QString diagnosticText(const settings::AppSettingsManager& settings, platform::Platform& platform,
                       const QDateTime& moment, const QLocale& locale);

} // namespace feedback
