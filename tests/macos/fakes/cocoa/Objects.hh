#pragma once

#include "macos/fakes/cocoa/AppKitFake.h"
#include "platform/macos/CocoaValues.hh"

#include <Foundation/Foundation.h>

#include <map>

/// The oldest runtime has no room for the fields of a class whose declaration names none, so each
/// fake object keeps its state beside itself.
namespace cocoaFake {

void born();
void died();

/// The state of one class's objects by address.
template <typename State>
std::map<const void*, State>& states() {
    static std::map<const void*, State> all;
    return all;
}

template <typename State>
State& stateOf(id object) {
    return states<State>()[object];
}

inline NSRect toNSRect(const platform::Rect& rect) {
    return NSMakeRect(rect.x, rect.y, rect.width, rect.height);
}

} // namespace cocoaFake

/// The first and the last method of a fake whose objects are counted and have a state.
#define COUNTED(State)                                                                             \
    -(id)init {                                                                                    \
        cocoaFake::born();                                                                         \
        return [super init];                                                                       \
    }                                                                                              \
    -(void)dealloc {                                                                               \
        cocoaFake::states<State>().erase(self);                                                    \
        cocoaFake::died();                                                                         \
        [super dealloc];                                                                           \
    }
/// A method that answers a field of the state, or sets it.
#define ANSWERS(Type, method, State, field)                                                        \
    -(Type)method {                                                                                \
        return cocoaFake::stateOf<State>(self).field;                                              \
    }
#define RECORDS(method, Type, State, field)                                                        \
    -(void)method : (Type)value {                                                                  \
        cocoaFake::stateOf<State>(self).field = value;                                             \
    }
