#pragma once

#include "core/Observers.h"
#include "platform/linux/TrayHost.h"
#include "platform/linux/x11/XcbConnection.h"

namespace platform {

/// The tray in which windows are embedded: whoever owns the screen's tray selection.
class XEmbedTray final : public TrayHost {
public:
    explicit XEmbedTray(std::shared_ptr<XcbConnection> connection);

    bool isThere() const override { return owner_ != XCB_NONE; }
    core::Registration observe(std::function<void()> handler) override;

private:
    void handle(const xcb_generic_event_t& event);
    void look();

    std::shared_ptr<XcbConnection> connection_;
    xcb_atom_t selection_ = XCB_NONE;
    xcb_atom_t manager_ = XCB_NONE;
    xcb_window_t owner_ = XCB_NONE;
    core::Registration events_;
    core::Observers<> changed_;
};

} // namespace platform
