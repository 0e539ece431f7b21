#include "settings/views/ShortcutRecorderView.h"

#include "platform/Platform.h"
#include "settings/views/ShortcutRecorderNSView.h"

namespace settings {

namespace {

void update(ShortcutRecorderNSView& view, bool isRecording) {
    view.isRecording = isRecording;
    if (isRecording && view.isVisible()) {
        view.setFocus();
    }
}

} // namespace

ui::Element ShortcutRecorderView::body() const {
    auto made = std::make_unique<ShortcutRecorderNSView>(*platform::current().keyPresses);
    ShortcutRecorderNSView& view = *made;
    view.onKeyRecorded = [*this](platform::KeyCode recordedKey, std::uint64_t recordedModifiers) {
        keyCode->set(recordedKey);
        modifiers->set(recordedModifiers);
        isRecording->set(false);
    };
    update(view, isRecording->get());
    ui::keep(view, std::pair(isRecording,
                             isRecording->observe([&view](bool next) { update(view, next); })));
    return ui::Element(std::move(made));
}

} // namespace settings
