#include "gallery/Gallery.h"

#include "fakes/FakePlatform.h"
#include "ui/TitledWindow.h"
#include "updates/UpdateController.h"

namespace gallery {

namespace {

Entry window(const char* name, platform::UpdateAnswer answer) {
    return {QString::fromLatin1(name),
            [answer = std::move(answer)](fakes::FakePlatform& rooms, const QString&) {
                auto controller = std::make_shared<updates::UpdateController>(rooms.platform);
                controller->present(answer, {});
                return Exhibit{controller, {controller->window()}};
            }};
}

platform::UpdateAvailable available() {
    return {.version = QStringLiteral("1.1"),
            .installedVersion = QStringLiteral("1.0.2"),
            .notes = QStringLiteral(
                "New\n\n• The bar finds its place on several screens of different scales.\n"
                "• Headings can be chosen with the keyboard, from the title down to the body, and "
                "the picker closes as soon as one is chosen.\n• Übersetzungen der Menüs.\n\n"
                "Mended\n\n• A selection that is scrolled out of sight no longer moves the bar.\n"
                "• The shortcut recorder accepts the keys of the number block.\n"
                "• The update check no longer counts a release of another channel.\n"
                "• Feedback with a large picture is sent on slow lines, too.\n"
                "• Less memory after a long day of work.\n"
                "• The settings remember which tab was open."),
            .hasNotesPage = true,
            .hasDownloadPage = true};
}

} // namespace

std::vector<Entry> updateEntries() {
    platform::UpdateAvailable critical = available();
    critical.isCritical = true;
    critical.hasNotesPage = false;
    critical.hasDownloadPage = false;
    critical.notes.clear();
    return {
        window("updates-checking", platform::CheckingForUpdates{}),
        window("updates-none", platform::ProgramIsUpToDate{QStringLiteral("1.0.2")}),
        window("updates-packages", platform::UpdatesComeWithPackages{}),
        window("updates-failed", platform::UpdateCheckFailed{QStringLiteral(
                                     "SSL handshake failed: The issuer certificate of a locally "
                                     "looked up certificate could not be found")}),
        window("updates-available", available()),
        window("updates-critical", critical),
    };
}

} // namespace gallery
