#include "feedback/Diagnostics.h"

#include "fakes/FakePlatform.h"
#include "settings/AppSettingsManager.h"

#include <QTimeZone>
#include <gtest/gtest.h>

namespace feedback {

namespace {

class Diagnostics : public testing::Test {
protected:
    QString text(const QLocale& locale = QLocale(QLocale::German, QLocale::Germany)) {
        const QDateTime moment(QDate(2026, 3, 7), QTime(21, 4, 59), QTimeZone("Europe/Berlin"));
        return diagnosticText(settings, fake.platform, moment, locale);
    }

    fakes::FakePlatform fake;
    settings::AppSettingsManager settings{fake.userDefaults, fake.loginItem};
};

} // namespace

TEST_F(Diagnostics, SaysEverythingInOrder) {
    fake.accessibility.trusted = true;
    EXPECT_EQ(text(), QStringLiteral("=== Corvane Quillet Diagnose ===\n"
                                     "Datum: 07.03.2026, 21:04\n"
                                     "App: 1.0.2 (7)\n"
                                     "OS: macOS 14.5.0\n"
                                     "\n"
                                     "Accessibility erteilt: ja\n"
                                     "\n"
                                     "Einstellungen:\n"
                                     "  Für alle Apps aktiv: ja\n"
                                     "  Trigger: automatisch (Delay 0.3s)\n"
                                     "  Bei Anmeldung starten: nein"));
}

TEST_F(Diagnostics, WritesTheDelayAsCDoesAndTheDateAsTheUserDoes) {
    settings.appearanceDelay = 0.25;
    const QString american = text(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_TRUE(american.contains(u"(Delay 0.2s)"));
    // Some versions of the locale data put a narrow space before PM.
    EXPECT_TRUE(
        QString(american).replace(QChar(0x202f), u' ').contains(u"\nDatum: Mar 7, 2026, 9:04 PM\n"))
        << american.toStdString();
}

} // namespace feedback
