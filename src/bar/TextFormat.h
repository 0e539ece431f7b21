#pragma once

#include <QString>

#include <array>
#include <cstdint>
#include <optional>

namespace bar {

/// One of the sixteen formatting actions. Its raw value is its title and its identity at once.
enum class TextFormat {
    bold,
    italic,
    underline,
    strikethrough,
    monospaced,
    heading,
    link,
    bulletList,
    dashedList,
    numberedList,
    checklist,
    increaseIndent,
    decreaseIndent,
    decreaseTextSize,
    increaseTextSize,
    removeFormatting,
};

/// Every format in the order of declaration, which is not the order on the bar.
inline constexpr std::array allTextFormats{
    TextFormat::bold,
    TextFormat::italic,
    TextFormat::underline,
    TextFormat::strikethrough,
    TextFormat::monospaced,
    TextFormat::heading,
    TextFormat::link,
    TextFormat::bulletList,
    TextFormat::dashedList,
    TextFormat::numberedList,
    TextFormat::checklist,
    TextFormat::increaseIndent,
    TextFormat::decreaseIndent,
    TextFormat::decreaseTextSize,
    TextFormat::increaseTextSize,
    TextFormat::removeFormatting,
};

/// The title, also shown as the tooltip.
QString rawValue(TextFormat format);

/// The stable identifier; the same as the raw value.
QString id(TextFormat format);

/// The format of exactly that title, letter case included.
std::optional<TextFormat> textFormat(QStringView rawValue);

/// The system symbol on the format's button.
QString symbolName(TextFormat format);

/// 1, 2 and 3 are headings; everything else stands for body text.
using HeadingLevel = std::int64_t;

struct HeadingChoice {
    HeadingLevel level = 0;
    QStringView label;
};

/// What the heading picker offers, from top to bottom, with a divider before the last.
inline constexpr std::array headingChoices{
    HeadingChoice{1, u"Title"},
    HeadingChoice{2, u"Heading"},
    HeadingChoice{3, u"Subheading"},
    HeadingChoice{0, u"Body"},
};

enum class HeadingWeight { Regular, Semibold, Bold };

/// The system font in which a level is written in the heading picker; the size in points.
struct HeadingFont {
    double pointSize = 13;
    HeadingWeight weight = HeadingWeight::Regular;

    bool operator==(const HeadingFont&) const = default;
};

HeadingFont headingFont(HeadingLevel level);

} // namespace bar
