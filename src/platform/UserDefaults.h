#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>
#include <variant>

namespace platform {

/// A stored value with the type in which it was stored. A whole number that fits is signed; only
/// one above the signed range is unsigned.
using DefaultsValue = std::variant<bool, std::int64_t, std::uint64_t, double, QString, QStringList>;

/// The program's persisted values. Main thread only.
class UserDefaults {
public:
    virtual ~UserDefaults() = default;

    /// Empty when nothing, or nothing of these types, is stored under `key`.
    virtual std::optional<DefaultsValue> object(const QString& key) const = 0;

    /// Stores at once. A failure to write is the store's own matter and logged there.
    virtual void set(const QString& key, const DefaultsValue& value) = 0;
};

} // namespace platform
