#include "macos/fakes/c/Objects.h"

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <unordered_map>

namespace appleFake {

namespace {

std::unordered_map<const void*, std::unique_ptr<Object>>& everyObject() {
    static std::unordered_map<const void*, std::unique_ptr<Object>> objects;
    return objects;
}

} // namespace

void crash(const char* caller, const char* what) {
    std::fprintf(stderr, "%s: %s\n", caller, what);
    std::abort();
}

const void* keep(Object* object) {
    everyObject().emplace(object, object);
    return object;
}

Object& checked(const void* reference, const char* caller) {
    if (reference == nullptr) {
        crash(caller, "null");
    }
    const auto found = everyObject().find(reference);
    if (found == everyObject().end()) {
        crash(caller, "no object");
    }
    if (found->second->references <= 0) {
        crash(caller, "used after its release");
    }
    return *found->second;
}

long liveObjects() {
    long live = 0;
    for (const auto& [reference, object] : everyObject()) {
        live += !object->isConstant && object->references > 0 ? 1 : 0;
    }
    return live;
}

} // namespace appleFake
