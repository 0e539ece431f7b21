#pragma once

#include "feedback/FeedbackService.h"

#include <QByteArray>

namespace feedback {

/// The record's six texts as a JSON object.
QByteArray buildJson(const FeedbackService::Payload& payload);

/// The record as multipart/form-data, the six texts first and the picture last. The picture is
/// copied once, into a buffer that never grows.
QByteArray buildMultipart(const FeedbackService::Payload& payload, const QByteArray& screenshot,
                          const QByteArray& boundary);

/// A boundary like no other: 51 characters.
QByteArray makeBoundary();

} // namespace feedback
