#include "platform/Platform.h"

#include "core/Fatal.h"

#include <utility>

namespace platform {

namespace {
Platform* installed = nullptr;
}

Platform& current() {
    if (installed == nullptr) {
        core::fatal(u"the platform was used before it was installed");
    }
    return *installed;
}

CurrentPlatform::CurrentPlatform(Platform& platform)
    : previous_(std::exchange(installed, &platform)) {}

CurrentPlatform::~CurrentPlatform() {
    installed = previous_;
}

} // namespace platform
