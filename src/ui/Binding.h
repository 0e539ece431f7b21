#pragma once

#include "core/Published.h"

#include <memory>
#include <tuple>
#include <utility>

namespace ui {

/// A published value that a view reads and writes, kept alive by everything that shows it.
template <typename T>
using Binding = std::shared_ptr<core::Published<T>>;

/// A value of a view's own, such as whether the pointer is over it.
template <typename T>
Binding<T> state(T initial) {
    return std::make_shared<core::Published<T>>(std::move(initial));
}

/// One published value of a model; keeps the whole model alive.
template <typename Model, typename T>
Binding<T> binding(const std::shared_ptr<Model>& model, core::Published<T> Model::*property) {
    return Binding<T>(model, &(model.get()->*property));
}

/// A published value whose owner outlives every view that shows it.
template <typename T>
Binding<T> binding(core::Published<T>& property) {
    return Binding<T>(std::shared_ptr<void>(), &property);
}

/// A value together with what makes it change.
template <typename T, typename Sources>
Binding<T> keptBy(Binding<T> value, Sources sources) {
    auto owner = std::make_shared<std::pair<Sources, Binding<T>>>(std::move(sources), value);
    return Binding<T>(std::move(owner), value.get());
}

/// What follows from another value; it changes with it.
template <typename T, typename Make>
auto mapped(Binding<T> source, Make make) {
    auto result = state(make(source->get()));
    auto observation =
        source->observe([result = result.get(), make](const T& next) { result->set(make(next)); });
    return keptBy(std::move(result), std::tuple(std::move(source), std::move(observation)));
}

/// What follows from two other values; it changes with each of them.
template <typename T, typename U, typename Make>
auto combined(Binding<T> first, Binding<U> second, Make make) {
    auto result = state(make(first->get(), second->get()));
    auto* const value = result.get();
    auto onFirst = first->observe([value, make, other = second.get()](const T& next) {
        value->set(make(next, other->get()));
    });
    auto onSecond = second->observe([value, make, other = first.get()](const U& next) {
        value->set(make(other->get(), next));
    });
    return keptBy(std::move(result), std::tuple(std::move(first), std::move(second),
                                                std::move(onFirst), std::move(onSecond)));
}

} // namespace ui
