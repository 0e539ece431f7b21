#pragma once

#include "feedback/FeedbackForm.h"
#include "ui/Element.h"

namespace feedback {

/// The feedback form as the user sees it: 540 by 540 points.
struct FeedbackSheet {
    std::shared_ptr<FeedbackForm> form;

    ui::Element body() const;

private:
    ui::Element header() const;
    ui::Element content() const;
    ui::Element footer() const;

    ui::Element message() const;
    ui::Element screenshot() const;
    ui::Element diagnostics() const;
    ui::Element outcome() const;
};

} // namespace feedback
