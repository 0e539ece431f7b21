#include "gallery/Gallery.h"

#include "bar/FormattingBarController.h"
#include "fakes/FakePlatform.h"

#include <QApplication>
#include <QTest>
#include <QWindow>

#include <algorithm>

namespace gallery {

namespace {

constexpr platform::Rect selection{240, -160, 80, 18};

QWidget& topLevel(const QString& name) {
    const auto windows = QApplication::topLevelWidgets();
    const auto found = std::ranges::find(windows, name, &QObject::objectName);
    if (found == windows.end()) {
        qFatal("no window %s", qPrintable(name));
    }
    return **found;
}

void pointAt(QWidget& window, const QString& name) {
    const auto* widget = window.findChild<QWidget*>(name);
    QTest::mouseMove(window.windowHandle(), {1, 1});
    QTest::mouseMove(window.windowHandle(), widget->mapTo(&window, widget->rect().center()));
}

Exhibit bar(fakes::FakePlatform&, const QString&) {
    auto controller = std::make_shared<bar::FormattingBarController>();
    // Only the second time does the window get the width of its contents.
    controller->show(selection);
    controller->show(selection);
    QWidget& window = topLevel(QStringLiteral("bar"));
    pointAt(window, QStringLiteral("link"));
    return {controller, {&window}, Exhibit::Ground::Page};
}

Exhibit picker(fakes::FakePlatform& rooms, const QString& text) {
    Exhibit exhibit = bar(rooms, text);
    QTest::mouseClick(
        exhibit.windows.front()->findChild<QWidget*>(QStringLiteral("textformat.size")),
        Qt::LeftButton);
    QApplication::processEvents();
    exhibit.windows.push_back(&topLevel(QStringLiteral("textformat.size.popover")));
    pointAt(*exhibit.windows.back(), QStringLiteral("Heading"));
    return exhibit;
}

} // namespace

std::vector<Entry> barEntries() {
    return {{QStringLiteral("bar"), bar}, {QStringLiteral("heading-picker"), picker}};
}

} // namespace gallery
