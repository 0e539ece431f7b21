#pragma once

#include <QRegularExpression>

namespace markdown {

/// What a typing pattern turns the typed text into.
struct MarkdownAction {
    enum class Kind {
        heading,
        bulletList,
        numberedList,
        checklist,
        checkedChecklist,
        codeBlock,
        divider,
        bold,
        italic,
        strikethrough,
        inlineCode,
        link,
    };

    Kind kind = Kind::heading;
    /// Of a heading only.
    int level = 0;
};

/// A Markdown prefix or span, what it stands for, and which key completes it.
struct MarkdownPattern {
    QRegularExpression pattern;
    MarkdownAction action;
    bool triggerOnSpace = false;
    bool triggerOnNewline = false;
};

} // namespace markdown
