#pragma once

#include "platform/KeyPresses.h"

#include <functional>

namespace platform {

/// Key events as the toolkit delivers them. The toolkit calls Command and Control of every system by
/// the same names that this program does; only how it tells a key's position is the system's.
class QtKeyPresses final : public KeyPresses {
public:
    using Position = std::function<std::optional<KeyCode>(const QKeyEvent&)>;

    explicit QtKeyPresses(Position position);

    std::optional<KeyCode> keyCode(const QKeyEvent& event) override;
    std::uint64_t modifierFlags(const QKeyEvent& event) override;

private:
    Position position_;
};

} // namespace platform
