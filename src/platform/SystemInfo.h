#pragma once

#include <QString>

#include <optional>

namespace platform {

/// Numbers that the system does not give are 0.
struct OperatingSystemVersion {
    int majorVersion = 0;
    int minorVersion = 0;
    int patchVersion = 0;

    bool operator==(const OperatingSystemVersion&) const = default;
};

/// Who this program is, on which system and for whom it runs. Any thread.
class SystemInfo {
public:
    virtual ~SystemInfo() = default;

    virtual std::optional<QString> bundleIdentifier() = 0;

    /// The version that users read ("CFBundleShortVersionString").
    virtual std::optional<QString> marketingVersion() = 0;

    /// Which build of that version it is ("CFBundleVersion").
    virtual std::optional<QString> buildNumber() = 0;

    virtual OperatingSystemVersion operatingSystemVersion() = 0;

    /// The login name of the user's account; empty when the account has none.
    virtual QString userName() = 0;
};

} // namespace platform
