#pragma once

#include "platform/UpdatePresenter.h"
#include "ui/Element.h"

#include <QSize>

namespace updates {

/// One answer of the updater: a few words, the notes of a newer version, and what can be done.
struct UpdateView {
    platform::UpdateAnswer answer;
    std::function<void(platform::UpdateChoice)> choose;

    ui::Element body() const;

    /// As much room as the answer needs, in points.
    QSize contentSize() const;
};

} // namespace updates
