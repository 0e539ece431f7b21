#pragma once

#include "fakes/FakePlatform.h"
#include "slash/SlashMenuController.h"

#include <QWidget>
#include <gtest/gtest.h>

#include <memory>
#include <vector>

/// The slash menu on fakes, used with real keys and clicks. Points are those of the window, from
/// its top-left corner.
class SlashMenuFixture : public testing::Test {
protected:
    SlashMenuFixture();

    /// Shows the menu at the corner and lets it come to rest.
    void show();
    QWidget& window() const;
    QWidget& part(const char* name) const;
    /// Null unless the row is there.
    QWidget* row(slash::SlashCommand command) const;
    QRect place(const QWidget& part) const;

    /// Presses keys where the keyboard is.
    static void type(const char* text);
    static void press(Qt::Key key, int times = 1, Qt::KeyboardModifiers modifiers = {});
    void click(QPoint point) const;

    /// What the screen shows once everything is laid out and at rest.
    QImage picture() const;
    void comeToRest() const;

    static constexpr platform::Point corner{300, 900};

    fakes::FakePlatform fake_;
    std::vector<slash::SlashCommand> chosen_;
    std::unique_ptr<slash::SlashMenuController> controller_;
};
