// The form under the user's hands, and what it really sends.
#include "fakes/FakePlatform.h"
#include "feedback/Sending.h"
#include "feedback/views/FeedbackSheet.h"
#include "settings/AppSettingsManager.h"
#include "ui/TitledWindow.h"

#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include <algorithm>

namespace feedback {

namespace {

class FeedbackSheetTest : public Sending {
protected:
    void open(const QString& endpoint, const QString& herkunft = QStringLiteral("Fenster")) {
        form = FeedbackForm::make(fakes.platform, {.herkunft = herkunft,
                                                   .onClose = [this] { ++closed; },
                                                   .dismiss = [this] { ++dismissed; },
                                                   .service = service(endpoint)});
        window.setContent(FeedbackSheet{form});
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    template <typename T = QWidget>
    T& find(const char* name) {
        auto* widget = window.findChild<T*>(QLatin1String(name));
        return widget != nullptr ? *widget : throw std::runtime_error(name);
    }

    QPushButton& button(bool isDefault) {
        return *window.findChildren<QPushButton*>().at(isDefault ? 1 : 0);
    }
    QPushButton& sendButton() { return button(true); }
    QPlainTextEdit& editor() { return find<QPlainTextEdit>("text"); }
    QAbstractButton& screenshotSwitch() {
        return *find("screenshotMitschicken").findChild<QAbstractButton*>();
    }

    void sendAndWait() {
        QTest::mouseClick(&sendButton(), Qt::LeftButton);
        EXPECT_EQ(sendButton().text(), u"Sende …");
        const QString before = form->status.get();
        EXPECT_TRUE(QTest::qWaitFor([&] { return form->status.get() != before; }, 10'000));
    }

    static QImage picture(QSize size, Qt::GlobalColor color) {
        QImage image(size, QImage::Format_ARGB32_Premultiplied);
        image.fill(color);
        return image;
    }

    fakes::FakePlatform fakes;
    ui::TitledWindow window{QStringLiteral("Feedback senden"), QSize(540, 540)};
    std::shared_ptr<FeedbackForm> form;
    int closed = 0;
    int dismissed = 0;
};

} // namespace

TEST_F(FeedbackSheetTest, SendsWhatWasTypedAndClosesAMomentAfterTheAnswer) {
    open(endpoint({.body = R"({"id":"abc123"})"}));
    QTest::keyClicks(&editor(), QStringLiteral("  Hallo\u00a0!"));
    QTest::keyClick(&editor(), Qt::Key_Return);
    QTest::keyClick(&editor(), Qt::Key_Return, Qt::ShiftModifier);
    sendAndWait();
    EXPECT_EQ(form->status.get(), u"Danke! Feedback ist drin (ID: abc123)");
    EXPECT_EQ(form->statusOK.get(), true);
    const QJsonObject record = onlyRequest()[QLatin1String("json")].toObject();
    EXPECT_EQ(record[QLatin1String("text")], QStringLiteral("  Hallo\u00a0!\n\n"));
    EXPECT_EQ(record[QLatin1String("user_name")], QStringLiteral("anna"));
    EXPECT_EQ(record[QLatin1String("app_module")], QStringLiteral("Fenster"));
    EXPECT_EQ(record[QLatin1String("os_version")], QStringLiteral("macOS 14.5.0"));
    EXPECT_TRUE(record[QLatin1String("diagnose")].toString().startsWith(
        QLatin1String("=== Corvane Quillet Diagnose ===")));

    fakes.runLoop.advance(1.49);
    EXPECT_EQ(closed, 0);
    EXPECT_FALSE(sendButton().isEnabled());
    fakes.runLoop.advance(0.01);
    EXPECT_EQ(std::pair(dismissed, closed), std::pair(1, 1));
    EXPECT_TRUE(sendButton().isEnabled());
}

TEST_F(FeedbackSheetTest, AFailureKeepsEverythingForAnotherTry) {
    open(endpoint({.status = 503, .body = "voll"}));
    fakes.screenCapture.picture = picture({40, 30}, Qt::green);
    QTest::keyClicks(&editor(), QStringLiteral("Hallo"));
    QTest::mouseClick(&screenshotSwitch(), Qt::LeftButton);
    fakes.runLoop.finishBackgroundWork();
    EXPECT_FALSE(find("outcome").isVisible());
    sendAndWait();
    EXPECT_EQ(form->status.get(), u"Senden fehlgeschlagen: HTTP 503: voll");
    EXPECT_EQ(form->statusOK.get(), false);
    EXPECT_TRUE(find("outcome").isVisible());
    EXPECT_EQ(editor().toPlainText(), u"Hallo");
    EXPECT_TRUE(screenshotSwitch().isChecked() && find("preview").isVisible());
    EXPECT_EQ(closed, 0);
    EXPECT_EQ(onlyRequest()[QLatin1String("parts")].toObject().size(), 7);

    QTest::mouseClick(&sendButton(), Qt::LeftButton);
    EXPECT_EQ(form->status.get(), u"Senden fehlgeschlagen: HTTP 503: voll") << "while it is sent";
    EXPECT_TRUE(QTest::qWaitFor([&] { return sendButton().isEnabled(); }, 10'000));
    EXPECT_EQ(onlyRequest()[QLatin1String("parts")].toObject().size(), 7);
}

TEST_F(FeedbackSheetTest, BlanksAreNoMessageAndKeysReachTheButtons) {
    open(endpoint());
    QTest::keyClick(&window, Qt::Key_Return);
    for (const auto* blank : {u" \t", u"\n\n", u"\u00a0\u2003\u2028"}) {
        editor().setPlainText(QString::fromUtf16(blank));
        EXPECT_FALSE(sendButton().isEnabled());
    }
    editor().setPlainText(QStringLiteral(" x "));
    editor().setFocus();
    QTest::keyClick(&editor(), Qt::Key_Return);
    EXPECT_FALSE(form->sending.get()) << "Return belongs to the text";
    screenshotSwitch().setFocus();
    QTest::keyClick(&screenshotSwitch(), Qt::Key_Return);
    EXPECT_TRUE(form->sending.get());
    QTest::keyClick(&screenshotSwitch(), Qt::Key_Escape);
    EXPECT_EQ(closed, 1) << "cancelling does not wait for the answer";
    EXPECT_TRUE(QTest::qWaitFor([&] { return form->statusOK.get() == true; }, 10'000));
    fakes.runLoop.advance(1.5);
    EXPECT_EQ(closed, 2);
    EXPECT_EQ(server.requests().size(), 1);
}

TEST_F(FeedbackSheetTest, ThePictureIsTakenWhenTheSwitchIsTurnedOnAndDroppedWhenItIsTurnedOff) {
    open(endpoint());
    fakes.screenCapture.keyWindow = 4294967295;
    fakes.screenCapture.picture = picture({400, 800}, Qt::red);
    QTest::mouseClick(&screenshotSwitch(), Qt::LeftButton);
    EXPECT_TRUE(find("awaited").isVisible());
    fakes.runLoop.finishBackgroundWork();
    EXPECT_EQ(fakes.screenCapture.taken, std::vector<std::uint32_t>{4294967295});
    EXPECT_FALSE(find("awaited").isVisible());
    EXPECT_TRUE(QTest::qWaitFor([&] { return find("preview").size() == QSize(80, 160); }));
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return find("size").visibleRegion().boundingRect() == find("size").rect();
    })) << "scrolled into sight";
    EXPECT_EQ(find("size").accessibleName(),
              QStringLiteral("Größe: ") + formatBytes(form->screenshotData.get()->size()));
    EXPECT_EQ(QImage::fromData(*form->screenshotData.get(), "PNG").size(), QSize(400, 800));

    QTest::mouseClick(&screenshotSwitch(), Qt::LeftButton);
    EXPECT_EQ(form->screenshotData.get(), std::nullopt);
    EXPECT_FALSE(find("preview").isVisible() || find("awaited").isVisible());
}

} // namespace feedback
