#include "slash/SlashCommand.h"

#include <algorithm>

namespace slash {

namespace {

struct Entry {
    SlashCommand command;
    QStringView title;
    QStringView icon;
    QStringView shortcut;
    QStringView description;
};

constexpr std::array catalogue{
    Entry{SlashCommand::heading1, u"Heading 1", u"textformat.size.larger", u"#", u"Large title"},
    Entry{SlashCommand::heading2, u"Heading 2", u"textformat.size", u"##", u"Medium heading"},
    Entry{SlashCommand::heading3, u"Heading 3", u"textformat.size.smaller", u"###",
          u"Small heading"},
    Entry{SlashCommand::bulletList, u"Bullet List", u"list.bullet", u"-", u"Unordered list"},
    Entry{SlashCommand::numberedList, u"Numbered List", u"list.number", u"1.", u"Ordered list"},
    Entry{SlashCommand::checklist, u"Checklist", u"checklist", u"[]", u"Todo items"},
    Entry{SlashCommand::codeBlock, u"Code Block", u"chevron.left.forwardslash.chevron.right",
          u"```", u"Monospaced text"},
    Entry{SlashCommand::divider, u"Divider", u"minus", u"---", u"Horizontal line"},
    Entry{SlashCommand::table, u"Table", u"tablecells", u"", u"Insert table"},
    Entry{SlashCommand::template_, u"Template", u"doc.text", u"", u"Note templates"},
    Entry{SlashCommand::aiAssist, u"AI Assist", u"sparkles", u"", u"AI assistance"},
};

// entry() finds a row by the command's ordinal.
static_assert(std::ranges::equal(catalogue, allSlashCommands, {}, &Entry::command));

const Entry& entry(SlashCommand command) {
    return catalogue.at(static_cast<std::size_t>(command));
}

} // namespace

QString rawValue(SlashCommand command) {
    return entry(command).title.toString();
}

QString id(SlashCommand command) {
    return rawValue(command);
}

std::optional<SlashCommand> slashCommand(QStringView rawValue) {
    const auto found = std::ranges::find(catalogue, rawValue, &Entry::title);
    return found == catalogue.end() ? std::nullopt : std::optional(found->command);
}

QString icon(SlashCommand command) {
    return entry(command).icon.toString();
}

QString shortcut(SlashCommand command) {
    return entry(command).shortcut.toString();
}

QString description(SlashCommand command) {
    return entry(command).description.toString();
}

} // namespace slash
