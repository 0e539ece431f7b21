#include "gallery/Gallery.h"

#include "fakes/FakePlatform.h"
#include "settings/views/SettingsView.h"
#include "ui/TitledWindow.h"

#include <QApplication>
#include <QLineEdit>
#include <QTabBar>
#include <QTest>

namespace gallery {

namespace {

/// The settings window and what it shows.
struct Settings {
    explicit Settings(fakes::FakePlatform& rooms)
        : manager(rooms.userDefaults, rooms.loginItem)
        , window(QStringLiteral("Corvane Quillet Settings"), QSize(500, 450)) {}

    settings::AppSettingsManager manager;
    ui::TitledWindow window;
};

enum Tab { Behavior, Apps, General };

using Arrange = std::function<void(settings::AppSettingsManager&)>;

void installApplications(fakes::FakeApplicationBundles& bundles) {
    const QString folder = QStringLiteral("/Applications");
    for (const char* name : {"Calendar", "Chess", "Dictionary", "Editor", "Mail", "Notes", "Photos",
                             "Preview", "Reminders", "Stickies", "Terminal"}) {
        const QString title = QString::fromLatin1(name);
        bundles.add(folder, title + bundles.suffix(),
                    {QStringLiteral("org.example.") + title, title, title});
    }
}

Entry tab(
    const QString& name, Tab tab, const Arrange& arrange,
    const std::function<void(QWidget& window)>& use = [](QWidget&) {}) {
    return {name, [=](fakes::FakePlatform& rooms, const QString& text) {
                installApplications(rooms.applicationBundles);
                auto settings = std::make_shared<Settings>(rooms);
                arrange(settings->manager);
                settings->window.setContent(settings::SettingsView{settings->manager});
                settings->window.findChild<QTabBar*>()->setCurrentIndex(tab);
                settings->window.show();
                rooms.runLoop.finishBackgroundWork();
                if (auto* search = settings->window.findChild<QLineEdit*>(); !text.isEmpty()) {
                    QTest::keyClicks(search, text);
                }
                use(settings->window);
                return Exhibit{settings, {&settings->window}};
            }};
}

} // namespace

std::vector<Entry> settingsEntries() {
    return {
        tab(QStringLiteral("settings-behavior"), Behavior, [](auto&) {}),
        tab(QStringLiteral("settings-behavior-shortcut"), Behavior,
            [](auto& manager) { manager.useKeyboardShortcut = true; }),
        tab(
            QStringLiteral("settings-behavior-recording"), Behavior,
            [](auto& manager) { manager.useKeyboardShortcut = true; },
            [](QWidget& window) {
                QApplication::processEvents();
                QTest::mouseClick(
                    window.findChild<QWidget*>(QStringLiteral("ShortcutRecorderButton")),
                    Qt::LeftButton);
            }),
        tab(QStringLiteral("settings-apps-all"), Apps, [](auto&) {}),
        tab(QStringLiteral("settings-apps"), Apps,
            [](auto& manager) {
                manager.useAllApps = false;
                manager.allowedApps = {QStringLiteral("org.example.Editor"),
                                       QStringLiteral("org.example.Notes")};
            }),
        tab(QStringLiteral("settings-general"), General, [](auto&) {}),
    };
}

} // namespace gallery
