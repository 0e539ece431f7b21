// Prints what the accessibility layer finds out about a process, for a developer to look at:
// never the text itself, only its length.
//
// atspi_probe PID [POLLS]

#include "platform/linux/atspi/AtSpiAccessibility.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTimer>

#include <cstdio>

namespace {

/// The active window, wherever it is, and one screen.
struct ActiveWindow final : platform::ApplicationWindows {
    std::optional<platform::PixelRect>
    activeWindowClientArea(platform::ProcessIdentifier) override {
        QProcess process;
        process.start(QStringLiteral("sh"),
                      {QStringLiteral("-c"),
                       QStringLiteral("xwininfo -id $(xprop -root -f _NET_ACTIVE_WINDOW 0x "
                                      "' $0' _NET_ACTIVE_WINDOW | cut -d' ' -f2)")});
        process.waitForFinished(1000);
        platform::PixelRect area;
        for (const auto& line : QString::fromUtf8(process.readAllStandardOutput()).split(u'\n')) {
            const int value = line.section(u':', 1).trimmed().toInt();
            if (line.contains(u"Absolute upper-left X:")) {
                area.x = value;
            } else if (line.contains(u"Absolute upper-left Y:")) {
                area.y = value;
            } else if (line.contains(u"Width:")) {
                area.width = value;
            } else if (line.contains(u"Height:")) {
                area.height = value;
            }
        }
        std::printf("client area %d,%d %dx%d: ", area.x, area.y, area.width, area.height);
        return area;
    }
    platform::PixelGeometry pixelGeometry() override { return {}; }
};

/// What the monitor does: the range and its bounds are read when the text has changed.
void poll(platform::AtSpiAccessibility& accessibility, platform::ProcessIdentifier process,
          QString& lastText) {
    QElapsedTimer timer;
    timer.start();
    const int callsBefore = accessibility.callCount();
    const auto application = accessibility.applicationElement(process);
    const auto focused = accessibility.focusedElement(application);
    const auto text = accessibility.selectedText(focused);
    const double textTime = static_cast<double>(timer.nsecsElapsed()) / 1e6;
    const int textCalls = accessibility.callCount() - callsBefore;
    std::optional<platform::Rect> bounds;
    if (text && !text->isEmpty() && text != lastText) {
        bounds = accessibility.boundsForRange(focused, accessibility.selectedTextRange(focused));
    }
    lastText = text.value_or(QString());
    const int boundsCalls = accessibility.callCount() - callsBefore - textCalls;
    std::printf("focus %s, selected %d, text: %d calls %.2f ms, bounds: %d calls",
                focused ? "yes" : "no", text ? static_cast<int>(text->size()) : -1, textCalls,
                textTime, boundsCalls);
    if (bounds) {
        std::printf(" %g,%g %gx%g", bounds->x, bounds->y, bounds->width, bounds->height);
    }
    std::printf("\n");
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    const auto arguments = QCoreApplication::arguments();
    if (arguments.size() < 2) {
        std::fprintf(stderr, "usage: atspi_probe PID [POLLS]\n");
        return 2;
    }
    const auto process = arguments.at(1).toLongLong();
    int pollsLeft = arguments.size() > 2 ? arguments.at(2).toInt() : 1;

    ActiveWindow windows;
    platform::AtSpiAccessibility accessibility(windows);
    std::printf("trusted: %s\n",
                accessibility.isProcessTrusted(platform::TrustPrompt::Hidden) ? "yes" : "no");
    QString lastText;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        poll(accessibility, process, lastText);
        if (--pollsLeft <= 0) {
            QCoreApplication::quit();
        }
    });
    timer.start(250);
    return QCoreApplication::exec();
}
