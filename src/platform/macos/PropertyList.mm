#include "platform/macos/PropertyList.hh"

#include "platform/macos/CocoaValues.hh"

#include <limits>

namespace platform {

namespace {

DefaultsValue fromNumber(NSNumber* number) {
    // The two booleans are the only objects of their kind.
    if (number == [NSNumber numberWithBool:YES] || number == [NSNumber numberWithBool:NO]) {
        return DefaultsValue(number.boolValue == YES);
    }
    const char type = number.objCType[0];
    if (type == 'd' || type == 'f') {
        return number.doubleValue;
    }
    NSNumber* largest = [NSNumber numberWithLongLong:std::numeric_limits<long long>::max()];
    if ([number compare:largest] == NSOrderedDescending) {
        return std::uint64_t{number.unsignedLongLongValue};
    }
    return std::int64_t{number.longLongValue};
}

std::optional<DefaultsValue> fromArray(NSArray* array) {
    QStringList strings;
    for (id element in array) {
        const auto string = stringOrNothing(element);
        if (!string) {
            return std::nullopt;
        }
        strings.push_back(*string);
    }
    return strings;
}

struct ToPropertyList {
    id operator()(bool value) const { return [NSNumber numberWithBool:value]; }
    id operator()(std::int64_t value) const { return [NSNumber numberWithLongLong:value]; }
    id operator()(std::uint64_t value) const { return [NSNumber numberWithUnsignedLongLong:value]; }
    id operator()(double value) const { return [NSNumber numberWithDouble:value]; }
    id operator()(const QString& value) const { return toNSString(value); }
    id operator()(const QStringList& value) const {
        NSMutableArray* array =
            [NSMutableArray arrayWithCapacity:static_cast<NSUInteger>(value.size())];
        for (const auto& element : value) {
            [array addObject:toNSString(element)];
        }
        return array;
    }
};

} // namespace

std::optional<DefaultsValue> fromPropertyList(id object) {
    if ([object isKindOfClass:[NSNumber class]]) {
        return fromNumber(static_cast<NSNumber*>(object));
    }
    if ([object isKindOfClass:[NSArray class]]) {
        return fromArray(static_cast<NSArray*>(object));
    }
    return stringOrNothing(object);
}

id toPropertyList(const DefaultsValue& value) {
    return std::visit(ToPropertyList(), value);
}

} // namespace platform
