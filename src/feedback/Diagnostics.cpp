#include "feedback/Diagnostics.h"

#include "core/DecimalText.h"
#include "platform/Platform.h"
#include "settings/AppSettingsManager.h"

#include <QStringList>
#include <QTimeZone>

#include <unicode/udat.h>

#include <array>
#include <string>

namespace feedback {

namespace {

/// An abbreviated date and a short time, such as "22.11.2026, 23:30" in German. Qt has no style
/// between the long one and the one that shortens the year.
QString localizedDateTime(const QDateTime& moment, const QLocale& locale) {
    const std::u16string zone = QString::fromLatin1(moment.timeZone().id()).toStdU16String();
    UErrorCode status = U_ZERO_ERROR;
    const icu::LocalUDateFormatPointer format(
        udat_open(UDAT_SHORT, UDAT_MEDIUM, locale.name().toLatin1().constData(), zone.data(),
                  static_cast<int32_t>(zone.size()), nullptr, 0, &status));
    std::array<char16_t, 128> text{};
    const int32_t length =
        udat_format(format.getAlias(), static_cast<UDate>(moment.toMSecsSinceEpoch()), text.data(),
                    static_cast<int32_t>(text.size()), nullptr, &status);
    return U_SUCCESS(status) ? QString::fromUtf16(text.data(), length)
                             : locale.toString(moment, QLocale::ShortFormat);
}

QString yesOrNo(bool yes) {
    return yes ? QStringLiteral("ja") : QStringLiteral("nein");
}

QString trigger(const settings::AppSettingsManager& settings) {
    if (settings.useKeyboardShortcut) {
        return QStringLiteral("Tastenkürzel (%1)").arg(settings.shortcutDisplayString());
    }
    return QStringLiteral("automatisch (Delay %1s)")
        .arg(core::decimalText(settings.appearanceDelay, 1));
}

} // namespace

QString appVersion(platform::SystemInfo& system) {
    const QString unknown = QStringLiteral("0");
    return QStringLiteral("%1 (%2)").arg(system.marketingVersion().value_or(unknown),
                                         system.buildNumber().value_or(unknown));
}

QString osVersion(platform::SystemInfo& system) {
    const auto version = system.operatingSystemVersion();
    return QStringLiteral("macOS %1.%2.%3")
        .arg(version.majorVersion)
        .arg(version.minorVersion)
        .arg(version.patchVersion);
}

QString diagnosticText(const settings::AppSettingsManager& settings, platform::Platform& platform,
                       const QDateTime& moment, const QLocale& locale) {
    const bool trusted = platform.accessibility->isProcessTrusted(platform::TrustPrompt::Hidden);
    QStringList elements{
        QStringLiteral("=== Corvane Quillet Diagnose ==="),
        QStringLiteral("Datum: ") + localizedDateTime(moment, locale),
        QStringLiteral("App: ") + appVersion(*platform.systemInfo),
        QStringLiteral("OS: ") + osVersion(*platform.systemInfo),
        // Capitals on purpose: it is the first thing to look for.
        QStringLiteral("\nAccessibility erteilt: ") +
            (trusted ? QStringLiteral("ja") : QStringLiteral("NEIN")),
        QStringLiteral("\nEinstellungen:"),
        QStringLiteral("  Für alle Apps aktiv: ") + yesOrNo(settings.useAllApps),
    };
    if (!settings.useAllApps) {
        elements << QStringLiteral("  Erlaubte Apps: %1").arg(settings.allowedApps.get().size());
    }
    elements << QStringLiteral("  Trigger: ") + trigger(settings)
             << QStringLiteral("  Bei Anmeldung starten: ") + yesOrNo(settings.startAtLogin);
    return elements.join(u'\n');
}

} // namespace feedback
