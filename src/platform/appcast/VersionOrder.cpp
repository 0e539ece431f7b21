#include "platform/appcast/VersionOrder.h"

#include <algorithm>
#include <vector>

namespace platform {

namespace {

/// A number without leading zeros, so that 0 is empty; or a word.
struct Component {
    bool isWord = false;
    QString text;
};

std::weak_ordering ofNumber(int comparison) {
    return comparison <=> 0;
}

std::weak_ordering compare(const Component& left, const Component& right) {
    if (left.isWord != right.isWord) {
        return left.isWord ? std::weak_ordering::less : std::weak_ordering::greater;
    }
    if (!left.isWord && left.text.size() != right.text.size()) {
        return left.text.size() <=> right.text.size();
    }
    return ofNumber(QString::compare(left.text, right.text));
}

using Components = std::vector<Component>;

/// What is missing counts as the number 0.
std::weak_ordering compare(const Components& left, const Components& right) {
    const Component zero;
    for (std::size_t i = 0; i < std::max(left.size(), right.size()); ++i) {
        const auto order =
            compare(i < left.size() ? left[i] : zero, i < right.size() ? right[i] : zero);
        if (order != 0) {
            return order;
        }
    }
    return std::weak_ordering::equivalent;
}

enum class Kind { Digit, Letter, Other };

Kind kindOf(QChar character) {
    if (character >= u'0' && character <= u'9') {
        return Kind::Digit;
    }
    return character.isLetter() ? Kind::Letter : Kind::Other;
}

/// The numbers in front, and everything from the first word on: 1.0b2 and 1.0.0b2 are the same.
struct Parts {
    Components release;
    Components rest;
};

Parts split(QStringView version) {
    Parts parts;
    qsizetype at = 0;
    while (at < version.size() && version[at] != u'-') {
        const Kind kind = kindOf(version[at]);
        const qsizetype start = at;
        while (at < version.size() && kindOf(version[at]) == kind && version[at] != u'-') {
            ++at;
        }
        QStringView run = version.sliced(start, at - start);
        if (kind == Kind::Letter) {
            parts.rest.push_back({true, run.toString().toCaseFolded()});
        } else if (kind == Kind::Digit) {
            while (run.startsWith(u'0')) {
                run = run.sliced(1);
            }
            (parts.rest.empty() ? parts.release : parts.rest).push_back({false, run.toString()});
        }
    }
    return parts;
}

} // namespace

std::weak_ordering compareVersions(QStringView left, QStringView right) {
    const Parts leftParts = split(left);
    const Parts rightParts = split(right);
    const auto order = compare(leftParts.release, rightParts.release);
    return order != 0 ? order : compare(leftParts.rest, rightParts.rest);
}

std::weak_ordering compareVersions(const ProgramVersion& left, const ProgramVersion& right) {
    const auto order = compareVersions(left.marketing, right.marketing);
    if (order != 0 || left.build.isEmpty() || right.build.isEmpty()) {
        return order;
    }
    return compareVersions(left.build, right.build);
}

} // namespace platform
