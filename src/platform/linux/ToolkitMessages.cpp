#include "platform/linux/ToolkitMessages.h"

#include <QByteArrayView>
#include <QString>

namespace platform {

namespace {

QtMessageHandler others = nullptr;

bool isOfTheBridge(QByteArrayView category, const QString& message) {
    // The bridge keeps its own connection, and the bus library its own idea of who has the name.
    return category.startsWith("qt.accessibility.atspi") ||
           (category == "qt.dbus.integration" && message.contains(u"'org.a11y.Bus' had owner"));
}

void handle(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (type != QtWarningMsg || !isOfTheBridge(context.category, message)) {
        others(type, context, message);
    }
}

} // namespace

void silenceAccessibilityBridge() {
    others = qInstallMessageHandler(handle);
}

} // namespace platform
