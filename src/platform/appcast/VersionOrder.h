#pragma once

#include <QString>

#include <compare>

namespace platform {

/// Which of two version texts is newer, as appcasts order them: numbers count as numbers, a missing
/// one as 0; a word makes a version older than the same one without it (1.0b1 before 1.0); what
/// follows a dash does not count.
std::weak_ordering compareVersions(QStringView left, QStringView right);

/// A version as users read it, and which build of it; a feed may leave the build out.
struct ProgramVersion {
    QString marketing;
    QString build;
};

/// By the marketing version first: build numbers only tell builds of the same version apart, and
/// not where one side has none.
std::weak_ordering compareVersions(const ProgramVersion& left, const ProgramVersion& right);

} // namespace platform
