#include "BarFixture.h"

#include <QApplication>
#include <QTest>
#include <QWindow>

namespace {

QWidget* topLevel(const char* name) {
    const auto windows = QApplication::topLevelWidgets();
    const auto found = std::ranges::find(windows, QString::fromLatin1(name), &QObject::objectName);
    return found == windows.end() ? nullptr : *found;
}

} // namespace

BarFixture::BarFixture()
    : controller_(std::make_unique<bar::FormattingBarController>()) {
    controller_->onFormatSelected = [this](bar::TextFormat format) {
        reports_.push_back(bar::rawValue(format));
    };
    controller_->onHeadingSelected = [this](bar::HeadingLevel level) {
        reports_.push_back(QStringLiteral("level %1").arg(level));
    };
    controller_->onOpenColorPicker = [this] { reports_.push_back(QStringLiteral("colour")); };
}

void BarFixture::show(int times) {
    for (int i = 0; i < times; ++i) {
        controller_->show(selection);
    }
}

QWidget& BarFixture::window(const char* name) const {
    QWidget* found = topLevel(name);
    if (found == nullptr) {
        throw std::runtime_error(std::string("no window ") + name);
    }
    return *found;
}

bool BarFixture::hasWindow(const char* name) const {
    return topLevel(name) != nullptr;
}

QRect BarFixture::place(const QWidget& window, const char* name) {
    const auto* part = window.findChild<QWidget*>(QString::fromLatin1(name));
    return part == nullptr ? QRect() : QRect(part->mapTo(&window, QPoint()), part->size());
}

void BarFixture::pointAt(QWidget& window, QPoint point) {
    // Without a real pointer nothing enters the window: the first move stands for that.
    QTest::mouseMove(window.windowHandle(), {1, 1});
    QTest::mouseMove(window.windowHandle(), point);
}

void BarFixture::click(QWidget& window, QPoint point) {
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, point);
}

void BarFixture::click(QWidget& window, const char* name) {
    click(window, place(window, name).center());
}

QColor BarFixture::pixel(QWidget& window, QPoint point) {
    return window.grab().toImage().pixelColor(point);
}
