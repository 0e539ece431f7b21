// What the list of applications costs with 5,000 of them installed: looking for them, typing into
// the search field, scrolling.

#include "platform/Platform.h"
#include "settings/views/SettingsView.h"
#include "ui/LazyList.h"
#include "ui/TitledWindow.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <QTabBar>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

constexpr int count = 5000;

double millisecondsOf(const QElapsedTimer& timer) {
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

void print(const char* what, double milliseconds) {
    std::printf("%-66s%20.2f%20s\n", what, milliseconds, "\u2014");
}

void print(const char* what, std::vector<double> times) {
    std::sort(times.begin(), times.end());
    std::printf("%-66s%20.2f%20s\n", what, times[times.size() / 2], "\u2014");
    print("the same, slowest", times.back());
}

void installApplications(const QTemporaryDir& folder) {
    const QString applications = folder.filePath(QStringLiteral("applications"));
    QDir().mkpath(applications);
    for (int number = 0; number < count; ++number) {
        QFile file(applications + QStringLiteral("/org.example.App%1.desktop").arg(number));
        if (!file.open(QIODevice::WriteOnly)) {
            std::exit(EXIT_FAILURE);
        }
        // With translations, as real ones have.
        file.write(QStringLiteral("[Desktop Entry]\nType=Application\nVersion=1.0\n"
                                  "Name=Application %1\nName[de]=Anwendung %1\n"
                                  "Name[fr]=Application %1\nComment=One of many\n"
                                  "Comment[de]=Eine von vielen\nExec=app%1 %U\nIcon=app%1\n"
                                  "Categories=Utility;\nMimeType=text/plain;\n")
                       .arg(number)
                       .toUtf8());
    }
    qputenv("XDG_DATA_DIRS", folder.path().toUtf8());
    qputenv("XDG_DATA_HOME", folder.filePath(QStringLiteral("none")).toUtf8());
    qputenv("XDG_CONFIG_HOME", folder.filePath(QStringLiteral("config")).toUtf8());
}

/// Everything that the event loop has to do by now, drawing included.
double handleEvents() {
    QElapsedTimer timer;
    timer.start();
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    return millisecondsOf(timer);
}

/// Until the list has as many rows as wanted; the longest time for which nothing else could happen.
double waitForRows(const settings::SettingsView& view) {
    double longest = 0;
    while (view.installedApps->get().size() < count) {
        longest = std::max(longest, handleEvents());
    }
    return std::max(longest, handleEvents());
}

void typeAndPrint(ui::TitledWindow& window) {
    auto& field = *window.findChild<QLineEdit*>();
    std::vector<double> filtering;
    std::vector<double> drawing;
    const auto press = [&](int key, const QString& text) {
        QElapsedTimer timer;
        timer.start();
        QKeyEvent event(QEvent::KeyPress, key, {}, text);
        QCoreApplication::sendEvent(&field, &event);
        filtering.push_back(millisecondsOf(timer));
        drawing.push_back(handleEvents());
    };
    const QString typed = QStringLiteral("application 49");
    for (int round = 0; round < 5; ++round) {
        for (const QChar letter : typed) {
            press(0, QString(letter));
        }
        for (qsizetype i = 0; i < typed.size(); ++i) {
            press(Qt::Key_Backspace, {});
        }
    }
    print("5,000 applications: filter for a key stroke, median, ms", filtering);
    print("to draw what it left, median, ms", drawing);
}

void scrollAndPrint(ui::TitledWindow& window) {
    QScrollBar& bar = *window.findChild<ui::LazyList*>()->verticalScrollBar();
    std::vector<double> frames;
    const auto scrollTo = [&](int value) {
        QElapsedTimer timer;
        timer.start();
        bar.setValue(value);
        handleEvents();
        frames.push_back(millisecondsOf(timer));
    };
    for (int value = 0; value < 12'000; value += 40) {
        scrollTo(value);
    }
    print("to scroll by a row's height and draw, median, ms", frames);
    frames.clear();
    for (int value = 0; value < bar.maximum(); value += 1999) {
        scrollTo(value);
    }
    print("to scroll to other rows and draw, median, ms", frames);
}

} // namespace

int main(int argc, char** argv) {
    const QTemporaryDir folder;
    installApplications(folder);
    if (platform::prepareProcess()) {
        std::fprintf(stderr, "no X server\n");
        return EXIT_FAILURE;
    }
    const QApplication application(argc, argv);
    const auto system = platform::makePlatform(platform::makeProgramInstance());
    const platform::CurrentPlatform current(*system);
    settings::AppSettingsManager store(*system->userDefaults, *system->loginItem);
    store.useAllApps = false;
    const settings::SettingsView view{store};
    ui::TitledWindow window(QStringLiteral("Settings"), QSize(500, 450));
    window.setContent(view);
    window.findChild<QTabBar*>()->setCurrentIndex(1);

    QElapsedTimer timer;
    timer.start();
    window.show();
    const double stall = waitForRows(view);
    print("5,000 applications: window shown to list there, ms", millisecondsOf(timer));
    print("the longest that the event loop stood still meanwhile, ms", stall);
    window.hide();
    timer.start();
    view.installedApps->set({});
    window.show();
    const double again = waitForRows(view);
    print("the same, shown again, ms", millisecondsOf(timer));
    print("the longest that the event loop stood still meanwhile, ms", again);
    typeAndPrint(window);
    scrollAndPrint(window);
    return EXIT_SUCCESS;
}
