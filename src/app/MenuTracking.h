#pragma once

#include "core/Registration.h"
#include "platform/PointerMonitor.h"
#include "platform/RunLoop.h"
#include "platform/StatusItem.h"

#include <QObject>

class QMenu;

namespace app {

/// Lets the poll rest while a menu is open. A desktop's panel may show the menu in the program's
/// stead and is not sure to say that it closed it: a menu of which the program itself then shows
/// nothing also counts as closed once an entry was chosen, the pointer or Escape was pressed
/// anywhere, another window became active, or three seconds have passed.
class MenuTracking : public QObject {
public:
    static constexpr platform::Seconds longestUnseen{3.0};

    MenuTracking(QMenu& menu, platform::RunLoop& runLoop, platform::PointerMonitor& pointerMonitor,
                 platform::MenuClosing closing);
    ~MenuTracking() override;

private:
    void begin();
    void end();
    void watchUnseenMenu();

    QMenu& menu_;
    platform::RunLoop& runLoop_;
    platform::PointerMonitor& pointerMonitor_;
    platform::MenuClosing closing_;
    bool open_ = false;
    core::Registration dismissMonitor_;
    core::Registration limit_;
};

} // namespace app
