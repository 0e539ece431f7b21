#include "bar/TextFormat.h"

#include <algorithm>

namespace bar {

namespace {

struct Entry {
    TextFormat format;
    QStringView title;
    QStringView symbol;
};

constexpr std::array catalogue{
    Entry{TextFormat::Bold, u"Bold", u"bold"},
    Entry{TextFormat::Italic, u"Italic", u"italic"},
    Entry{TextFormat::Underline, u"Underline", u"underline"},
    Entry{TextFormat::Strikethrough, u"Strikethrough", u"strikethrough"},
    Entry{TextFormat::Monospaced, u"Monospaced", u"chevron.left.forwardslash.chevron.right"},
    Entry{TextFormat::Heading, u"Heading", u"textformat.size"},
    Entry{TextFormat::Link, u"Link", u"link"},
    Entry{TextFormat::BulletList, u"Bullet List", u"list.bullet"},
    Entry{TextFormat::DashedList, u"Dashed List", u"list.dash"},
    Entry{TextFormat::NumberedList, u"Numbered List", u"list.number"},
    Entry{TextFormat::Checklist, u"Checklist", u"checklist"},
    Entry{TextFormat::IncreaseIndent, u"Increase Indent", u"increase.indent"},
    Entry{TextFormat::DecreaseIndent, u"Decrease Indent", u"decrease.indent"},
    Entry{TextFormat::DecreaseTextSize, u"Decrease Text Size", u"textformat.size.smaller"},
    Entry{TextFormat::IncreaseTextSize, u"Increase Text Size", u"textformat.size.larger"},
    Entry{TextFormat::RemoveFormatting, u"Remove Formatting", u"textformat"},
};

// entry() finds a row by the format's ordinal.
static_assert(std::ranges::equal(catalogue, allTextFormats, {}, &Entry::format));

const Entry& entry(TextFormat format) {
    return catalogue.at(static_cast<std::size_t>(format));
}

} // namespace

QString rawValue(TextFormat format) {
    return entry(format).title.toString();
}

QString id(TextFormat format) {
    return rawValue(format);
}

std::optional<TextFormat> textFormat(QStringView rawValue) {
    const auto found = std::ranges::find(catalogue, rawValue, &Entry::title);
    return found == catalogue.end() ? std::nullopt : std::optional(found->format);
}

QString symbolName(TextFormat format) {
    return entry(format).symbol.toString();
}

HeadingFont headingFont(HeadingLevel level) {
    switch (level) {
    case 1:
        return {18, HeadingWeight::Bold};
    case 2:
        return {15, HeadingWeight::Bold};
    case 3:
        return {13, HeadingWeight::Semibold};
    default:
        return {13, HeadingWeight::Regular};
    }
}

} // namespace bar
