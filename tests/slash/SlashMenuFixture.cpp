#include "SlashMenuFixture.h"

#include <QAbstractAnimation>
#include <QApplication>
#include <QTest>
#include <QWindow>

#include <algorithm>
#include <stdexcept>

SlashMenuFixture::SlashMenuFixture()
    : controller_(std::make_unique<slash::SlashMenuController>()) {
    controller_->onCommandSelected = [this](slash::SlashCommand command) {
        chosen_.push_back(command);
    };
}

void SlashMenuFixture::show() {
    controller_->show(corner);
    comeToRest();
}

QWidget& SlashMenuFixture::window() const {
    const auto windows = QApplication::topLevelWidgets();
    const auto found =
        std::ranges::find(windows, QStringLiteral("slashMenu"), &QObject::objectName);
    if (found == windows.end()) {
        throw std::runtime_error("no menu");
    }
    return **found;
}

QWidget& SlashMenuFixture::part(const char* name) const {
    auto* found = window().findChild<QWidget*>(QString::fromLatin1(name));
    if (found == nullptr) {
        throw std::runtime_error(name);
    }
    return *found;
}

QWidget* SlashMenuFixture::row(slash::SlashCommand command) const {
    auto* found = window().findChild<QWidget*>(slash::id(command));
    return found != nullptr && found->isVisible() ? found : nullptr;
}

QRect SlashMenuFixture::place(const QWidget& part) const {
    return {part.mapTo(&window(), QPoint()), part.size()};
}

void SlashMenuFixture::type(const char* text) {
    QTest::keyClicks(QApplication::focusWidget(), QString::fromLatin1(text));
}

void SlashMenuFixture::press(Qt::Key key, int times, Qt::KeyboardModifiers modifiers) {
    for (int time = 0; time < times; ++time) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
}

void SlashMenuFixture::click(QPoint point) const {
    QTest::mouseClick(window().windowHandle(), Qt::LeftButton, {}, point);
}

QImage SlashMenuFixture::picture() const {
    comeToRest();
    QImage image(window().size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    window().render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

void SlashMenuFixture::comeToRest() const {
    for (int round = 0; round < 10; ++round) {
        QApplication::processEvents();
        for (auto* animation : window().findChildren<QAbstractAnimation*>()) {
            animation->setCurrentTime(animation->totalDuration());
        }
    }
}
