#pragma once

#include "bar/FormattingBarController.h"
#include "fakes/FakePlatform.h"

#include <QWidget>
#include <gtest/gtest.h>

#include <memory>

/// A controller on fakes, its windows found by name, and a pointer that moves over them. Points
/// are those of the window, from its top-left corner.
class BarFixture : public testing::Test {
protected:
    static constexpr platform::Rect selection{400, 500, 90, 18};

    BarFixture();

    void show(int times = 1);
    QWidget& window(const char* name = "bar") const;
    QWidget& picker() const { return window("textformat.size.popover"); }
    bool hasWindow(const char* name) const;

    /// Where a part of a window lies in it.
    static QRect place(const QWidget& window, const char* name);
    static void pointAt(QWidget& window, QPoint point);
    static void click(QWidget& window, QPoint point);
    static void click(QWidget& window, const char* name);
    /// The colour that is drawn there, over nothing.
    static QColor pixel(QWidget& window, QPoint point);

    fakes::FakePlatform fake_;
    /// What the controller reported, in order.
    std::vector<QString> reports_;
    std::unique_ptr<bar::FormattingBarController> controller_;
};
