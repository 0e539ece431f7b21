#pragma once

#include "platform/UserDefaults.h"

#include <Foundation/Foundation.h>

namespace platform {

/// A stored object as the value whose type it was stored with; empty for an object of another kind.
std::optional<DefaultsValue> fromPropertyList(id object);

/// A value as an object that is stored with the value's type.
id toPropertyList(const DefaultsValue& value);

} // namespace platform
