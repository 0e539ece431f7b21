#pragma once

#include <QDBusArgument>
#include <QList>
#include <QMetaType>

#include <cstdint>

namespace platform {

/// The few of the many roles that matter here.
enum class Role : unsigned {
    List = 31,
    Menu = 33,
    MenuBar = 34,
    PasswordText = 40,
    RootPane = 46,
    Table = 55,
    Tree = 65,
    TreeTable = 66,
    Paragraph = 73,
    Application = 75,
    Heading = 83,
    Static = 116,
};

enum class State { Active = 1, Editable = 7, Focused = 12, ManagesDescendants = 31 };

/// The states of an object, one bit each.
class StateSet {
public:
    StateSet() = default;
    /// As on the wire: the low 32 states, then the high ones.
    explicit StateSet(const QList<unsigned>& words) {
        for (qsizetype word = 0; word < words.size() && word < 2; ++word) {
            bits_ |= std::uint64_t{words[word]} << (32 * word);
        }
    }

    bool has(State state) const { return ((bits_ >> static_cast<int>(state)) & 1U) != 0; }

private:
    std::uint64_t bits_ = 0;
};

/// A rectangle as applications give it, in what they count in: mostly device pixels.
struct Extents {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    /// Whether it could lie on a screen, whatever else was made up.
    bool isPlausible() const {
        constexpr int farthest = 1 << 20;
        const auto isNear = [](int value) { return value > -farthest && value < farthest; };
        return isNear(x) && isNear(y) && width >= 0 && isNear(width) && height >= 0 &&
               isNear(height);
    }
};

/// The rule of a search among the descendants of an object: those that have one state.
struct MatchRule {
    State state = State::Focused;
};

QDBusArgument& operator<<(QDBusArgument& argument, const Extents& extents);
const QDBusArgument& operator>>(const QDBusArgument& argument, Extents& extents);
QDBusArgument& operator<<(QDBusArgument& argument, const MatchRule& rule);
const QDBusArgument& operator>>(const QDBusArgument& argument, MatchRule& rule);

/// Makes the types of this layer known to D-Bus. Call before the first message; repeating it does
/// no harm.
void registerWireTypes();

} // namespace platform

Q_DECLARE_METATYPE(platform::Extents)
Q_DECLARE_METATYPE(platform::MatchRule)
