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
    Entry{TextFormat::bold, u"Bold", u"bold"},
    Entry{TextFormat::italic, u"Italic", u"italic"},
    Entry{TextFormat::underline, u"Underline", u"underline"},
    Entry{TextFormat::strikethrough, u"Strikethrough", u"strikethrough"},
    Entry{TextFormat::monospaced, u"Monospaced", u"chevron.left.forwardslash.chevron.right"},
    Entry{TextFormat::heading, u"Heading", u"textformat.size"},
    Entry{TextFormat::link, u"Link", u"link"},
    Entry{TextFormat::bulletList, u"Bullet List", u"list.bullet"},
    Entry{TextFormat::dashedList, u"Dashed List", u"list.dash"},
    Entry{TextFormat::numberedList, u"Numbered List", u"list.number"},
    Entry{TextFormat::checklist, u"Checklist", u"checklist"},
    Entry{TextFormat::increaseIndent, u"Increase Indent", u"increase.indent"},
    Entry{TextFormat::decreaseIndent, u"Decrease Indent", u"decrease.indent"},
    Entry{TextFormat::decreaseTextSize, u"Decrease Text Size", u"textformat.size.smaller"},
    Entry{TextFormat::increaseTextSize, u"Increase Text Size", u"textformat.size.larger"},
    Entry{TextFormat::removeFormatting, u"Remove Formatting", u"textformat"},
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
