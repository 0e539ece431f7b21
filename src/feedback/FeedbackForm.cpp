#include "feedback/FeedbackForm.h"

#include "core/DecimalText.h"
#include "core/Fatal.h"
#include "feedback/ErrorText.h"
#include "platform/Platform.h"

#include <QBuffer>

#include <cmath>
#include <coroutine>
#include <limits>

namespace feedback {

namespace {

constexpr platform::Seconds confirmationTime{1.5};

/// Large enough to be sharp in the form at any usual density.
constexpr QSize largestPreview(960, 320);

std::uint32_t windowIdentifier(std::int64_t number) {
    if (number < 0 || number > std::numeric_limits<std::uint32_t>::max()) {
        core::fatal(u"the key window's number is not a window identifier");
    }
    return static_cast<std::uint32_t>(number);
}

std::optional<QByteArray> pngRepresentation(const QImage& image) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (image.isNull() || !image.save(&buffer, "PNG")) {
        return std::nullopt;
    }
    return bytes;
}

QImage smaller(const QImage& image) {
    const bool fits =
        image.width() <= largestPreview.width() && image.height() <= largestPreview.height();
    return image.isNull() || fits
               ? image
               : image.scaled(largestPreview, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

/// co_await wait(…) goes on from the main queue.
auto wait(platform::RunLoop& runLoop, platform::Seconds duration) {
    struct Wait {
        platform::RunLoop& runLoop;
        platform::Seconds duration;

        bool await_ready() const { return false; }
        void await_suspend(std::coroutine_handle<> waiting) const {
            runLoop.dispatchAfter(duration, [waiting] { waiting.resume(); });
        }
        void await_resume() const {}
    };
    return Wait{runLoop, duration};
}

} // namespace

QString formatBytes(std::int64_t count) {
    const double kilobytes = static_cast<double>(count) / 1024;
    return kilobytes < 1024 ? core::decimalText(kilobytes, 0) + QStringLiteral(" KB")
                            : core::decimalText(kilobytes / 1024, 1) + QStringLiteral(" MB");
}

std::shared_ptr<FeedbackForm> FeedbackForm::make(platform::Platform& platform,
                                                 Surroundings surroundings) {
    return std::shared_ptr<FeedbackForm>(new FeedbackForm(platform, std::move(surroundings)));
}

FeedbackForm::FeedbackForm(platform::Platform& platform, Surroundings surroundings)
    : platform_(platform)
    , surroundings_(std::move(surroundings)) {
    reactionToSwitch_ = screenshotMitschicken.observe([this](bool on) {
        if (on == screenshotMitschicken.get()) {
            return;
        }
        if (on) {
            erstelleScreenshot();
        } else {
            screenshotData = std::nullopt;
            preview = QImage();
        }
    });
}

void FeedbackForm::laden() {
    appVersion = FeedbackService::appVersion();
    osVersion = FeedbackService::osVersion();
    userName = platform_.systemInfo->userName();
}

void FeedbackForm::erstelleScreenshot() {
    const std::uint32_t window = windowIdentifier(platform_.screenCapture->keyWindowNumber());
    struct Shot {
        std::optional<QByteArray> png;
        QImage preview;
    };
    const auto shot = std::make_shared<Shot>();
    platform_.runLoop->dispatchInBackground(
        [&capture = *platform_.screenCapture, window, shot] {
            const QImage image = capture.pictureBelow(window);
            shot->png = pngRepresentation(image);
            shot->preview = shot->png ? smaller(image) : QImage();
        },
        [form = weak_from_this(), shot] {
            if (const auto self = form.lock()) {
                self->screenshotData = std::move(shot->png);
                self->preview = std::move(shot->preview);
            }
        });
}

FeedbackService::Payload FeedbackForm::payload() const {
    return {
        .text = text,
        .userName = userName,
        .appVersion = appVersion,
        .osVersion = osVersion,
        .appModule = surroundings_.herkunft,
        .diagnose = surroundings_.service.sammeleDiagnose(),
        .screenshotPNG = screenshotMitschicken ? screenshotData.get() : std::nullopt,
    };
}

QCoro::Task<void> FeedbackForm::senden() {
    const auto keepAlive = shared_from_this();
    sending = true;
    std::optional<QString> failure;
    try {
        const QString id = co_await surroundings_.service.send(payload());
        status = QStringLiteral("Danke! Feedback ist drin (ID: ") + id + QStringLiteral(")");
        statusOK = true;
    } catch (const std::exception& error) {
        failure = localizedDescription(error);
    }
    if (failure) {
        status = QStringLiteral("Senden fehlgeschlagen: ") + *failure;
        statusOK = false;
    } else {
        co_await wait(*platform_.runLoop, confirmationTime);
        close();
    }
    sending = false;
}

void FeedbackForm::abbrechen() {
    close();
}

void FeedbackForm::close() {
    surroundings_.dismiss();
    surroundings_.onClose();
}

} // namespace feedback
