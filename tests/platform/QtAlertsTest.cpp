#include "platform/qt/QtAlerts.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <gtest/gtest.h>

using platform::Alert;
using platform::AlertStyle;

namespace {

const Alert question{AlertStyle::Warning,
                     QStringLiteral("Really <b>now</b>?"),
                     QStringLiteral("First.\n\nSecond & last."),
                     {QStringLiteral("Open"), QStringLiteral("Cancel")}};

/// Shows the alert and does something with its window as soon as it is there.
int runWith(platform::QtAlerts& alerts, const Alert& alert,
            const std::function<void(QMessageBox&)>& action) {
    QTimer::singleShot(0, qApp, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        action(*box);
    });
    return alerts.runModal(alert);
}

} // namespace

TEST(QtAlerts, AnswersWithThePressedButtonAndClosingCountsAsTheLastOne) {
    platform::QtAlerts alerts;
    const auto press = [](int button) {
        return [button](QMessageBox& box) { box.buttons().at(button)->click(); };
    };
    const auto close = [](QMessageBox& box) { box.close(); };
    EXPECT_EQ(runWith(alerts, question, press(0)), 1000);
    EXPECT_EQ(runWith(alerts, question, press(1)), 1001);
    EXPECT_EQ(runWith(alerts, question, [](QMessageBox& box) { box.defaultButton()->click(); }),
              1000);
    EXPECT_EQ(runWith(alerts, question, close), 1001);
    EXPECT_EQ(runWith(alerts, question,
                      [](QMessageBox& box) {
                          QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
                          QApplication::sendEvent(&box, &escape);
                      }),
              1001);
    const Alert notice{AlertStyle::Informational, {}, {}, {QStringLiteral("OK")}};
    EXPECT_EQ(runWith(alerts, notice, close), 1000);
}

