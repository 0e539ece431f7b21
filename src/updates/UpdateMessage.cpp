#include "updates/UpdateMessage.h"

namespace updates {

namespace {

struct Words {
    UpdateMessage operator()(const platform::CheckingForUpdates&) const {
        return {QStringLiteral("Looking for a newer version…"), {}};
    }

    UpdateMessage operator()(const platform::ProgramIsUpToDate& answer) const {
        return {QStringLiteral("Corvane Quillet is up to date"),
                QStringLiteral("Version %1 is the newest one.").arg(answer.installedVersion)};
    }

    UpdateMessage operator()(const platform::UpdateAvailable& answer) const {
        QString details = QStringLiteral("You have version %1.").arg(answer.installedVersion);
        if (answer.isCritical) {
            details += QStringLiteral(" This update is critical: install it soon.");
        }
        if (!answer.hasDownloadPage) {
            details += QStringLiteral(" Get it where you got this one.");
        }
        return {QStringLiteral("Corvane Quillet %1 is available").arg(answer.version), details};
    }

    UpdateMessage operator()(const platform::UpdateCheckFailed& answer) const {
        constexpr qsizetype longest = 150; // what the window has room for
        const QString reason = answer.reason.size() <= longest
                                   ? answer.reason
                                   : answer.reason.left(longest) + QChar(0x2026);
        return {QStringLiteral("Looking for a newer version failed"),
                QStringLiteral("The update feed could not be read: %1").arg(reason)};
    }

    UpdateMessage operator()(const platform::UpdatesComeWithPackages&) const {
        return {QStringLiteral("Updates come with the system's packages"),
                QStringLiteral("This build of Corvane Quillet looks for none itself.")};
    }
};

} // namespace

UpdateMessage messageOf(const platform::UpdateAnswer& answer) {
    return std::visit(Words{}, answer);
}

} // namespace updates
