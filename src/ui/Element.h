#pragma once

#include <QWidget>

#include <concepts>
#include <memory>
#include <utility>

class QBoxLayout;

namespace ui {

class Element;

/// A description of a part of the user interface, built into an element on demand.
template <typename T>
concept View = requires(const T& view) {
    { view.body() } -> std::same_as<Element>;
};

/// A widget that has no parent yet. Placing it hands it over; one that is never placed is deleted.
class Element {
public:
    /// How far an element's outermost widget has been dressed, from the inside out. A modifier that
    /// belongs further inside than what is already there wraps the element instead.
    enum class Stage { Bare, Padded, Framed, Decorated };

    explicit Element(std::unique_ptr<QWidget> widget)
        : widget_(std::move(widget)) {}
    template <View V>
    Element(const V& view) // NOLINT(google-explicit-constructor): views stand among elements
        : Element(view.body()) {}

    QWidget& widget() const { return *widget_; }
    Stage stage() const { return stage_; }
    void setStage(Stage stage) { stage_ = stage; }

    /// Gives the widget to whoever places it.
    [[nodiscard]] std::unique_ptr<QWidget> take() { return std::move(widget_); }

private:
    std::unique_ptr<QWidget> widget_;
    Stage stage_ = Stage::Bare;
};

/// Modifiers are joined to what they modify: text(…) | padding(…) | background(…).
template <typename E, std::invocable<Element> Modifier>
requires std::convertible_to<E, Element> Element operator|(E&& element, const Modifier& modifier) {
    return modifier(Element(std::forward<E>(element)));
}

/// A widget around `element`, which keeps its own size in the middle, or grows as far as it wants.
Element wrapped(Element element);

/// Puts `element` into the middle of `container`, which must have no layout yet.
void embed(QWidget& container, Element element);

/// Lets the item that was added last keep its own size in the middle of its room in those
/// directions in which it does not want to grow.
void keepSizeUnlessGrowing(QBoxLayout& layout, Qt::Orientations directions);

/// The directions in which a widget wants to grow, whether it is hidden or not.
Qt::Orientations growingDirections(const QWidget& widget);

/// The size that a widget takes where it may choose.
QSize naturalSize(const QWidget& widget);

/// Keeps `object` alive as long as `widget`.
template <typename T>
void keep(QWidget& widget, T object) {
    struct Kept final : QObject {
        Kept(QObject* parent, T&& kept)
            : QObject(parent)
            , object(std::move(kept)) {}
        T object;
    };
    new Kept(&widget, std::move(object));
}

} // namespace ui
