#include "SettingsFixture.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QTabBar>
#include <QTest>
#include <QWindow>

#include <algorithm>

namespace {

QString nameOf(const QWidget& widget) {
    // Asked for as assistive technology does, which does not change the widget.
    auto* accessible = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&widget));
    return accessible == nullptr ? QString() : accessible->text(QAccessible::Name);
}

} // namespace

SettingsFixture::SettingsFixture()
    : store_(fake_.userDefaults, fake_.loginItem) {}

void SettingsFixture::open() {
    if (!window_) {
        window_ = std::make_unique<ui::TitledWindow>(QStringLiteral("Settings"), QSize(500, 450));
        window_->setContent(settings::SettingsView{store_});
    }
    window_->show();
    window_->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
    fake_.runLoop.finishBackgroundWork();
}

void SettingsFixture::openTab(const QString& title) {
    auto& tabs = *window_->findChild<QTabBar*>();
    for (int index = 0; index < tabs.count(); ++index) {
        if (tabs.tabText(index) == title) {
            click(tabs.mapTo(window_.get(), tabs.tabRect(index).center()));
        }
    }
}

QWidget* SettingsFixture::find(const QString& name) const {
    const auto all = window_->findChildren<QWidget*>();
    const auto found = std::ranges::find_if(all, [&](const QWidget* widget) {
        return widget->isVisible() && (widget->objectName() == name || nameOf(*widget) == name);
    });
    return found == all.end() ? nullptr : *found;
}

QWidget& SettingsFixture::part(const QString& name) const {
    QWidget* found = find(name);
    if (found == nullptr) {
        throw std::runtime_error("nothing shown is called " + name.toStdString());
    }
    return *found;
}

QRect SettingsFixture::place(const QString& name) const {
    const QWidget& widget = part(name);
    return {widget.mapTo(window_.get(), QPoint()), widget.size()};
}

void SettingsFixture::click(const QString& name) {
    click(place(name).center());
}

void SettingsFixture::click(QPoint point) {
    QTest::mouseClick(window_->windowHandle(), Qt::LeftButton, {}, point);
}

void SettingsFixture::press(const Key& key) {
    for (const auto type : {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key.key, key.modifiers, key.scanCode, 0, 0);
        QCoreApplication::sendEvent(window_->windowHandle(), &event);
    }
}

void SettingsFixture::type(const QString& text) {
    for (const QChar letter : text) {
        QTest::keyClick(window_->windowHandle(), letter.toLatin1());
    }
}
