#pragma once

#include "ui/Element.h"

#include <functional>

namespace ui {

/// Shows an element and never gets larger by it.
class HostingView final : public QWidget {
public:
    enum class Sizing {
        /// The element has its own size, in the middle; one that is larger than its host is cut
        /// off evenly at both ends.
        Natural,
        /// The element is as large as its host.
        Filling,
    };

    explicit HostingView(Element root, Sizing sizing = Sizing::Natural);

    /// The size that the element would choose.
    QSize idealSize() const;
    /// Called when it may have changed.
    std::function<void()> onIdealSizeChange;

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

private:
    void place();

    QWidget& root_;
    Sizing sizing_;
};

} // namespace ui
