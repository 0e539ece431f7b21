#include "platform/linux/freedesktop/DesktopColorScheme.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QGuiApplication>
#include <QPalette>

namespace platform {

namespace {

constexpr int answerLimitMilliseconds = 2000;
constexpr uint preferDark = 1;

QString path() {
    return QStringLiteral("/org/freedesktop/portal/desktop");
}

QString interface() {
    return QStringLiteral("org.freedesktop.portal.Settings");
}

QString appearance() {
    return QStringLiteral("org.freedesktop.appearance");
}

QString colorScheme() {
    return QStringLiteral("color-scheme");
}

bool isDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightnessF() <
           palette.color(QPalette::WindowText).lightnessF();
}

/// The accent stays what it is.
QPalette darkened(QPalette palette) {
    const QColor text(0xf2, 0xf2, 0xf4);
    const QColor window(0x2b, 0x2b, 0x2e);
    const QColor button(0x3a, 0x3a, 0x3e);
    const QColor base(0x1e, 0x1e, 0x20);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::ToolTipText, QPalette::BrightText}) {
        palette.setColor(role, text);
    }
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::Button, button);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::AlternateBase, window);
    palette.setColor(QPalette::ToolTipBase, button);
    palette.setColor(QPalette::PlaceholderText, QColor(0xa5, 0xa5, 0xaa));
    palette.setColor(QPalette::Link, QColor(0x6c, 0xb4, 0xf5));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, QColor(0x80, 0x80, 0x84));
    }
    palette.setColor(QPalette::Light, button.lighter(130));
    palette.setColor(QPalette::Midlight, button.lighter(115));
    palette.setColor(QPalette::Mid, base.lighter(115));
    palette.setColor(QPalette::Dark, base);
    // Menus draw the words of a disabled entry a second time, in this colour, as an engraved edge.
    palette.setColor(QPalette::Disabled, QPalette::Light, base);
    palette.setColor(QPalette::Shadow, Qt::black);
    return palette;
}

} // namespace

DesktopColorScheme::DesktopColorScheme(const QDBusConnection& bus) {
    if (!bus.isConnected()) {
        return;
    }
    QDBusConnection connection = bus;
    // From whomever it comes: for a named sender the library would ask the bus for its owner,
    // without a limit of ours.
    connection.connect(QString(), path(), interface(), QStringLiteral("SettingChanged"), this,
                       SLOT(settingChanged(QDBusMessage)));
    QDBusMessage read =
        QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.portal.Desktop"), path(),
                                       interface(), QStringLiteral("Read"));
    read << appearance() << colorScheme();
    auto* answer =
        new QDBusPendingCallWatcher(connection.asyncCall(read, answerLimitMilliseconds), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this,
            [this](QDBusPendingCallWatcher* call) {
                call->deleteLater();
                const QDBusPendingReply<QDBusVariant> reply = *call;
                if (reply.isValid()) {
                    take(QVariant::fromValue(reply.value()));
                }
            });
}

void DesktopColorScheme::settingChanged(const QDBusMessage& signal) {
    const QVariantList arguments = signal.arguments();
    if (arguments.size() == 3 && arguments[0] == appearance() && arguments[1] == colorScheme()) {
        take(arguments[2]);
    }
}

void DesktopColorScheme::take(QVariant preference) {
    // The answer to a question has one wrapping more than the signal.
    while (preference.metaType() == QMetaType::fromType<QDBusVariant>()) {
        preference = preference.value<QDBusVariant>().variant();
    }
    const bool dark = preference == QVariant(preferDark);
    if (dark && !isOurPalette_ && !isDark(QGuiApplication::palette())) {
        isOurPalette_ = true;
        QGuiApplication::setPalette(darkened(QGuiApplication::palette()));
    } else if (!dark && isOurPalette_) {
        isOurPalette_ = false;
        // A palette in which nothing is set, so that all of it is the toolkit's again. A default
        // one would be a copy of the present one, and change nothing.
        QPalette unset(Qt::white);
        unset.setResolveMask(0);
        QGuiApplication::setPalette(unset);
    }
}

} // namespace platform
