#include <QApplication>
#include <gtest/gtest.h>

#include <cstdio>

namespace {

/// A warning that the toolkit logs is a fault of ours: it fails the test in which it appears.
void failOnWarning(QtMsgType type, const QMessageLogContext&, const QString& message) {
    // Offscreen there is no window manager and no keyboard that a window could ask for.
    const bool offscreenLimit = message.startsWith(QStringLiteral("This plugin does not support"));
    if (type == QtDebugMsg || type == QtInfoMsg || offscreenLimit) {
        std::fprintf(stderr, "%s\n", qPrintable(message));
        return;
    }
    ADD_FAILURE() << "logged: " << message.toStdString();
}

} // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    const QApplication application(argc, argv);
    qInstallMessageHandler(failOnWarning);
    return RUN_ALL_TESTS();
}
