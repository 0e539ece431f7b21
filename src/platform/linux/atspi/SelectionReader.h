#pragma once

#include "platform/linux/atspi/FocusFinder.h"
#include "platform/linux/atspi/Inquiry.h"

#include <QString>

#include <optional>
#include <vector>

namespace platform {

/// A piece of the text of one object; offsets in characters.
struct TextSpan {
    ObjectReference object;
    int start = 0;
    int end = 0;
};

/// The selected text of an application and where it stands.
struct Selection {
    QString text;
    std::vector<TextSpan> spans;
};

/// Reads what is selected at the focused object: in the object itself, in the objects that are
/// embedded in its text, and in the paragraphs before and after it.
class SelectionReader {
public:
    explicit SelectionReader(Inquiry& inquiry)
        : inquiry_(inquiry) {}

    /// Empty for what holds no text, cannot be read, or holds a password. With no selection the
    /// text is empty.
    std::optional<Selection> read(const FocusedObject& focused);

private:
    std::optional<Selection> readParagraphs(const ObjectReference& paragraph);
    std::optional<Selection> readObject(const ObjectReference& object, int depth);
    /// The selected text of an object with other objects in it, each in its place.
    Selection readMixed(const TextSpan& span, const QString& text, int depth);
    std::optional<std::vector<TextSpan>> spansOf(const ObjectReference& object, int count);
    std::optional<QString> textOf(const TextSpan& span);
    std::vector<Selection> readEmbedded(const ObjectReference& object, int depth);

    Inquiry& inquiry_;
    /// How many more objects may be entered: a selected page of a thousand paragraphs is told by
    /// its first ones.
    int objectsLeft_ = 256;
};

} // namespace platform
