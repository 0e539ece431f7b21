#pragma once

#include "platform/Platform.h"

#include <QObject>
#include <QSize>

#include <memory>

namespace ui {
class TitledWindow;
}

namespace updates {

/// Shows what the updater has found in one window, which is made when it is first needed. Closing
/// the window, or Escape in it, dismisses what it shows.
class UpdateController final : public QObject, public platform::UpdatePresenter {
public:
    explicit UpdateController(platform::Platform& platform);
    ~UpdateController() override;

    void present(const platform::UpdateAnswer& answer,
                 std::function<void(platform::UpdateChoice)> choose) override;

    /// Null before anything was shown.
    ui::TitledWindow* window() const { return window_.get(); }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makeWindow(QSize contentSize);
    void obey(platform::UpdateChoice choice);

    platform::Platform& platform_;
    std::unique_ptr<ui::TitledWindow> window_;
    std::function<void(platform::UpdateChoice)> choose_;
    /// Whether the window says that the answer is on its way.
    bool isChecking_ = false;
};

} // namespace updates
