#include "platform/linux/LinuxSystemInfo.h"

#include "core/ProgramIdentity.h"

#include <QFile>
#include <QSysInfo>
#include <QVersionNumber>

#include <pwd.h>
#include <unistd.h>

#include <array>

namespace platform {

std::optional<QString> LinuxSystemInfo::bundleIdentifier() {
    return core::programIdentifier();
}

std::optional<QString> LinuxSystemInfo::marketingVersion() {
    return core::programVersion();
}

std::optional<QString> LinuxSystemInfo::buildNumber() {
    return core::programBuildNumber();
}

OperatingSystemVersion LinuxSystemInfo::operatingSystemVersion() {
    return versionNumbers(QSysInfo::productVersion(), QSysInfo::kernelVersion());
}

QString LinuxSystemInfo::userName() {
    // Whose process it is, whatever the environment says.
    std::array<char, 16384> buffer{};
    passwd entry{};
    passwd* found = nullptr;
    const int error = ::getpwuid_r(::getuid(), &entry, buffer.data(), buffer.size(), &found);
    return error == 0 && found != nullptr ? QFile::decodeName(found->pw_name) : QString();
}

OperatingSystemVersion versionNumbers(const QString& distribution, const QString& kernel) {
    auto version = QVersionNumber::fromString(distribution);
    if (version.isNull()) {
        version = QVersionNumber::fromString(kernel);
    }
    return {version.majorVersion(), version.minorVersion(), version.microVersion()};
}

} // namespace platform
