#include "platform/linux/atspi/SelectionReader.h"

#include <algorithm>
#include <utility>

namespace platform {

namespace {

constexpr char16_t embeddedObject = u'\uFFFC';
constexpr int mostSelectionsOfAnObject = 64;
constexpr int deepest = 32;
/// Of a longer text the beginning and the end are read: enough to tell it from another one.
constexpr int longestText = 100'000;

bool isParagraph(unsigned role) {
    return role == static_cast<unsigned>(Role::Paragraph) ||
           role == static_cast<unsigned>(Role::Heading);
}

void append(Selection& whole, const Selection& part) {
    whole.text += part.text;
    whole.spans.insert(whole.spans.end(), part.spans.begin(), part.spans.end());
}

void appendLine(Selection& whole, const Selection& part) {
    if (!whole.spans.empty() && !part.spans.empty()) {
        whole.text += u'\n';
    }
    append(whole, part);
}

} // namespace

std::optional<Selection> SelectionReader::read(const FocusedObject& focused) {
    if (!focused.hasText) {
        return std::nullopt;
    }
    if (isParagraph(focused.role)) {
        if (auto selection = readParagraphs(focused.object)) {
            return selection;
        }
    }
    return readObject(focused.object, 0);
}

std::optional<Selection> SelectionReader::readParagraphs(const ObjectReference& paragraph) {
    const auto parent = inquiry_.ask<ObjectReference>(requests::parent(paragraph));
    if (!parent || parent->isNull()) {
        return std::nullopt;
    }
    const auto siblings = inquiry_.ask<QList<ObjectReference>>(requests::children(*parent));
    if (!siblings || !siblings->contains(paragraph)) {
        return std::nullopt;
    }
    std::vector<Request> questions;
    for (const auto& sibling : *siblings) {
        questions.push_back(requests::selectionCount(sibling));
    }
    const auto replies = inquiry_.askAll(questions);
    Selection whole;
    for (std::size_t index = 0; index < replies.size(); ++index) {
        if (Inquiry::decode<int>(replies[index]).value_or(0) <= 0) {
            continue;
        }
        if (objectsLeft_ <= 0) {
            break;
        }
        const auto part = readObject(questions[index].object, 0);
        if (part && !part->spans.empty()) {
            appendLine(whole, *part);
        }
    }
    return whole;
}

std::optional<Selection> SelectionReader::readObject(const ObjectReference& object, int depth) {
    --objectsLeft_;
    // The role is asked anew: a field that shows what was typed can turn back into one that hides.
    const auto replies =
        inquiry_.askAll({requests::role(object), requests::selectionCount(object)});
    const auto role = Inquiry::decode<unsigned>(replies[0]);
    const auto count = Inquiry::decode<int>(replies[1]);
    if (!role || *role == static_cast<unsigned>(Role::PasswordText) || !count) {
        return std::nullopt;
    }
    const auto spans = spansOf(object, *count);
    if (!spans) {
        return std::nullopt;
    }
    Selection whole;
    for (const auto& span : *spans) {
        const auto text = textOf(span);
        if (!text) {
            return std::nullopt;
        }
        appendLine(whole, text->contains(embeddedObject) ? readMixed(span, *text, depth)
                                                         : Selection{*text, {span}});
    }
    return whole;
}

Selection SelectionReader::readMixed(const TextSpan& span, const QString& text, int depth) {
    const auto embedded =
        depth < deepest ? readEmbedded(span.object, depth + 1) : std::vector<Selection>();
    Selection whole;
    auto next = embedded.begin();
    int position = span.start;
    const auto runs = text.split(embeddedObject);
    for (qsizetype index = 0; index < runs.size(); ++index) {
        // Each run but the first follows a placeholder.
        if (index > 0 && next != embedded.end()) {
            append(whole, *next++);
            // One right after another: blocks, such as the paragraphs of a page.
            if (runs[index].isEmpty() && next != embedded.end()) {
                whole.text += u'\n';
            }
        }
        const auto length = static_cast<int>(runs[index].toUcs4().size());
        if (length > 0) {
            append(whole, {runs[index], {{span.object, position, position + length}}});
        }
        position += length + 1;
    }
    return whole;
}

std::optional<std::vector<TextSpan>> SelectionReader::spansOf(const ObjectReference& object,
                                                              int count) {
    std::vector<Request> questions;
    for (int index = 0; index < std::min(count, mostSelectionsOfAnObject); ++index) {
        questions.push_back(requests::selection(object, index));
    }
    std::vector<TextSpan> spans;
    for (const auto& reply : inquiry_.askAll(questions)) {
        const auto start = Inquiry::decode<int>(reply, 0);
        const auto end = Inquiry::decode<int>(reply, 1);
        if (!start || !end) {
            return std::nullopt;
        }
        const auto [first, last] = std::minmax(*start, *end);
        if (first >= 0 && first < last) {
            spans.push_back({object, first, last});
        }
    }
    return spans;
}

std::optional<QString> SelectionReader::textOf(const TextSpan& span) {
    if (span.end - span.start <= longestText) {
        return inquiry_.ask<QString>(requests::text(span.object, span.start, span.end));
    }
    const auto replies =
        inquiry_.askAll({requests::text(span.object, span.start, span.start + longestText / 2),
                         requests::text(span.object, span.end - longestText / 2, span.end)});
    const auto beginning = Inquiry::decode<QString>(replies[0]);
    const auto end = Inquiry::decode<QString>(replies[1]);
    return beginning && end ? std::optional(*beginning + *end) : std::nullopt;
}

std::vector<Selection> SelectionReader::readEmbedded(const ObjectReference& object, int depth) {
    const auto children = inquiry_.ask<QList<ObjectReference>>(requests::children(object));
    std::vector<Request> questions;
    for (const auto& child : children.value_or(QList<ObjectReference>())) {
        questions.push_back(requests::selectionCount(child));
        questions.push_back(requests::role(child));
    }
    const auto replies = inquiry_.askAll(questions);
    std::vector<Selection> parts;
    for (std::size_t index = 0; index + 1 < replies.size() && objectsLeft_ > 0; index += 2) {
        const auto role = Inquiry::decode<unsigned>(replies[index + 1]);
        // The text of a static child stands in its parent's text as it is.
        if (Inquiry::decode<int>(replies[index]).value_or(0) <= 0 ||
            role == static_cast<unsigned>(Role::Static)) {
            continue;
        }
        auto part = readObject(questions[index].object, depth);
        if (part && !part->spans.empty()) {
            parts.push_back(std::move(*part));
        }
    }
    return parts;
}

} // namespace platform
