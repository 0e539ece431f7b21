#pragma once

#include "core/Published.h"

#include <memory>
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

} // namespace ui
