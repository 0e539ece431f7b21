#pragma once

#include <QString>

#include <array>
#include <cstdint>
#include <optional>

namespace bar {

/// One of the sixteen formatting actions. Its raw value is its title and its identity at once.
enum class TextFormat {
    Bold,
    Italic,
    Underline,
    Strikethrough,
    Monospaced,
    Heading,
    Link,
    BulletList,
    DashedList,
    NumberedList,
    Checklist,
    IncreaseIndent,
    DecreaseIndent,
    DecreaseTextSize,
    IncreaseTextSize,
    RemoveFormatting,
};

/// Every format in the order of declaration, which is not the order on the bar.
inline constexpr std::array allTextFormats{
    TextFormat::Bold,
    TextFormat::Italic,
    TextFormat::Underline,
    TextFormat::Strikethrough,
    TextFormat::Monospaced,
    TextFormat::Heading,
    TextFormat::Link,
    TextFormat::BulletList,
    TextFormat::DashedList,
    TextFormat::NumberedList,
    TextFormat::Checklist,
    TextFormat::IncreaseIndent,
    TextFormat::DecreaseIndent,
    TextFormat::DecreaseTextSize,
    TextFormat::IncreaseTextSize,
    TextFormat::RemoveFormatting,
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
