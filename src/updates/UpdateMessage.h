#pragma once

#include "platform/UpdatePresenter.h"

#include <QString>

namespace updates {

/// An answer of the updater in words.
struct UpdateMessage {
    QString headline;
    QString details;
};

UpdateMessage messageOf(const platform::UpdateAnswer& answer);

} // namespace updates
