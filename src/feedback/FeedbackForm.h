#pragma once

#include "core/Published.h"
#include "feedback/FeedbackService.h"

#include <QByteArray>
#include <QCoroTask>
#include <QImage>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace platform {
struct Platform;
}

namespace feedback {

/// A byte count as "12 KB", or from 1024 KB on as "1.0 MB".
QString formatBytes(std::int64_t count);

/// What the feedback form holds and does, from the first letter to the answer of the server. One
/// form is one piece of feedback. Main thread only.
class FeedbackForm : public std::enable_shared_from_this<FeedbackForm> {
public:
    struct Surroundings {
        /// Where the form was opened from; goes along as the record's module.
        QString herkunft;
        /// Closes the window.
        std::function<void()> onClose;
        /// Closes the presentation in a host that has one of its own.
        std::function<void()> dismiss = [] {};
        FeedbackService service = FeedbackService();
    };

    static std::shared_ptr<FeedbackForm> make(platform::Platform& platform,
                                              Surroundings surroundings);

    /// What goes along by itself, read again each time the form is shown.
    void laden();

    /// Takes a picture of what lies below the key window of this moment, and returns at once. The
    /// picture that is finished last is the one that stays, also when nobody wants it any more.
    void erstelleScreenshot();

    /// Sends the feedback and tells how it went; after a success it closes the form a moment
    /// later. Keeps the form alive meanwhile.
    QCoro::Task<void> senden();

    void abbrechen();

    core::Published<QString> text;
    /// Each change to true takes a new picture, each change to false drops the last one.
    core::Published<bool> screenshotMitschicken{false};
    /// PNG.
    core::Published<std::optional<QByteArray>> screenshotData;
    /// The same picture, small enough for the form; null while there is none.
    core::Published<QImage> preview;
    core::Published<bool> sending{false};
    core::Published<QString> status;
    core::Published<std::optional<bool>> statusOK;
    core::Published<QString> appVersion;
    core::Published<QString> osVersion;
    core::Published<QString> userName;

    const QString& herkunft() const { return surroundings_.herkunft; }

private:
    FeedbackForm(platform::Platform& platform, Surroundings surroundings);

    FeedbackService::Payload payload() const;
    void close();

    platform::Platform& platform_;
    Surroundings surroundings_;
    core::Registration reactionToSwitch_;
};

} // namespace feedback
