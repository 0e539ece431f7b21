#pragma once

#include "fakes/FakePlatform.h"
#include "settings/views/SettingsView.h"
#include "ui/TitledWindow.h"

#include <gtest/gtest.h>

#include <memory>

/// The settings window on fakes, used with real mouse and key events. Its parts are found by what
/// they are called for assistive technology; a text is called what it says.
class SettingsFixture : public testing::Test {
protected:
    /// A key as the window system reports it: its position and the modifiers held.
    struct Key {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers = {};
        quint32 scanCode = 0;
    };

    SettingsFixture();

    /// The window with the keyboard, once the applications were found. The second time it is the
    /// same window.
    void open();
    void openTab(const QString& title);

    /// The first one that can be seen; null where there is none.
    QWidget* find(const QString& name) const;
    QWidget& part(const QString& name) const;
    bool shows(const QString& name) const { return find(name) != nullptr; }
    /// Where a part lies in the window.
    QRect place(const QString& name) const;

    void click(const QString& name);
    void click(QPoint point);
    /// Presses a key where the keyboard is, and lets it go.
    void press(const Key& key);
    void type(const QString& text);

    fakes::FakePlatform fake_;
    settings::AppSettingsManager store_;
    std::unique_ptr<ui::TitledWindow> window_;
};
