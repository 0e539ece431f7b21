#include "updates/UpdateController.h"

#include "fakes/FakePlatform.h"
#include "ui/TitledWindow.h"

#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

namespace {

using platform::UpdateAnswer;
using platform::UpdateChoice;
using Choices = std::vector<UpdateChoice>;

const platform::UpdateAvailable update{
    .version = QStringLiteral("1.1"),
    .installedVersion = QStringLiteral("1.0.2"),
    .notes = QStringLiteral("<b>bold</b>\n").repeated(100),
    .hasNotesPage = true,
    .hasDownloadPage = true,
};

class UpdateControllerTest : public testing::Test {
protected:
    void present(const UpdateAnswer& answer) {
        controller.present(answer, [this](UpdateChoice choice) { choices.push_back(choice); });
        QCoreApplication::processEvents();
    }
    QWidget& window() { return *controller.window(); }
    QStringList buttons() {
        QStringList titles;
        for (const auto* button : window().findChildren<QPushButton*>()) {
            titles << button->text();
        }
        return titles;
    }
    void click(const char* title) {
        for (auto* button : window().findChildren<QPushButton*>()) {
            if (button->text() == QLatin1String(title)) {
                QTest::mouseClick(button, Qt::LeftButton);
                return;
            }
        }
        FAIL() << "no button " << title;
    }
    QString said(const char* name) {
        return window().findChild<QWidget*>(QLatin1String(name))->accessibleName();
    }

    fakes::FakePlatform system;
    updates::UpdateController controller{system.platform};
    Choices choices;
};

TEST_F(UpdateControllerTest, each_answer_takes_the_place_of_the_one_before) {
    const struct {
        UpdateAnswer answer;
        const char* headline;
        QStringList buttons;
    } cases[] = {
        {platform::CheckingForUpdates{},
         "Looking for a newer version…",
         {QStringLiteral("Cancel")}},
        {platform::ProgramIsUpToDate{QStringLiteral("1.0.2")},
         "Corvane Quillet is up to date",
         {QStringLiteral("OK")}},
        {platform::UpdateCheckFailed{QStringLiteral("no network")},
         "Looking for a newer version failed",
         {QStringLiteral("OK")}},
        {platform::UpdatesComeWithPackages{},
         "Updates come with the system's packages",
         {QStringLiteral("OK")}},
        {platform::UpdateAvailable{.version = QStringLiteral("1.1"), .isCritical = true},
         "Corvane Quillet 1.1 is available",
         {QStringLiteral("Later")}},
        {update,
         "Corvane Quillet 1.1 is available",
         {QStringLiteral("Skip This Version"), QStringLiteral("Release Notes"),
          QStringLiteral("Later"), QStringLiteral("Open Download Page")}},
    };
    for (const auto& c : cases) {
        present(c.answer);
        EXPECT_TRUE(window().isVisible());
        EXPECT_EQ(said("headline"), QString::fromUtf8(c.headline));
        EXPECT_EQ(buttons(), c.buttons);
    }
    EXPECT_TRUE(choices.empty());
    // The one that was awaited did not bring the window forward.
    EXPECT_EQ(system.windowServer.tokens.size(), std::size(cases) - 1);
}

TEST_F(UpdateControllerTest, tells_once_what_the_user_does_however_it_is_done) {
    const std::pair<std::function<void()>, UpdateChoice> ways[] = {
        {[this] { click("Skip This Version"); }, UpdateChoice::SkipVersion},
        {[this] { click("Later"); }, UpdateChoice::Dismiss},
        {[this] { click("Open Download Page"); }, UpdateChoice::OpenDownloadPage},
        {[this] { QTest::keyClick(&window(), Qt::Key_Return); }, UpdateChoice::OpenDownloadPage},
        {[this] { QTest::keyClick(&window(), Qt::Key_Escape); }, UpdateChoice::Dismiss},
        {[this] { window().close(); }, UpdateChoice::Dismiss},
    };
    for (const auto& [act, choice] : ways) {
        choices.clear();
        present(update);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
        click("Release Notes");
        EXPECT_TRUE(window().isVisible());
        act();
        EXPECT_EQ(choices, (Choices{UpdateChoice::OpenReleaseNotes, choice}));
        EXPECT_FALSE(window().isVisible());
    }
}

} // namespace
