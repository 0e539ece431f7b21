#include "platform/qt/QtAlerts.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPointer>
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

TEST(QtAlerts, ShowsWhatTheAlertSays) {
    platform::QtAlerts alerts;
    runWith(alerts, question, [](QMessageBox& box) {
        EXPECT_EQ(box.icon(), QMessageBox::Warning);
        EXPECT_EQ(box.text(), QStringLiteral("<b>Really &lt;b&gt;now&lt;/b&gt;?</b>"));
        EXPECT_EQ(box.informativeText(), QStringLiteral("First.<br><br>Second &amp; last."));
        ASSERT_EQ(box.buttons().size(), 2);
        EXPECT_EQ(box.buttons().at(0)->text(), QStringLiteral("Open"));
        EXPECT_EQ(box.buttons().at(1)->text(), QStringLiteral("Cancel"));
        EXPECT_TRUE(box.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        box.reject();
    });
    runWith(alerts, {AlertStyle::Informational, {}, {}, {QStringLiteral("OK")}},
            [](QMessageBox& box) {
                EXPECT_EQ(box.icon(), QMessageBox::Information);
                box.reject();
            });
}

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

TEST(QtAlerts, ShowsOneAlertAtATime) {
    platform::QtAlerts alerts;
    const int answer = runWith(alerts, question, [&](QMessageBox& box) {
        EXPECT_EQ(alerts.runModal(question), 1001);
        EXPECT_EQ(QApplication::activeModalWidget(), &box);
        box.buttons().at(0)->click();
    });
    EXPECT_EQ(answer, 1000);
}
