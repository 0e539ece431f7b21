#include "SlashMenuFixture.h"

#include "ui/Theme.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <gmock/gmock.h>

using platform::Point;
using platform::Rect;
using slash::SlashCommand;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class SlashMenuController : public SlashMenuFixture {
protected:
    QLineEdit& search() const { return dynamic_cast<QLineEdit&>(part("search")); }
    QRect list() const { return place(part("qt_scrollarea_viewport")); }
    Rect frame() const { return fake_.windowServer.frames.at(&window()); }

    void compose(const QString& preedit, const QString& committed = {}) {
        QInputMethodEvent event(preedit, {});
        event.setCommitString(committed);
        QCoreApplication::sendEvent(&search(), &event);
    }
};

} // namespace

TEST_F(SlashMenuController, StandsAtThePointAsFarAsTheVisibleFrameLetsIt) {
    struct Case {
        const char* where;
        Point at;
        Rect expected;
    };
    fake_.screens.all = {{{0, 0, 1920, 1080}, {0, 40, 1920, 1000}},
                         {{1920, 0, 800, 300}, {1920, 0, 800, 300}}};
    fake_.screens.main = fake_.screens.all.front();
    for (const auto& [where, at, expected] :
         {Case{"in the middle", {300, 900}, {300, 540, 320, 360}},
          Case{"at the right edge", {1800, 900}, {1600, 540, 320, 360}},
          Case{"at the bottom", {300, 100}, {300, 40, 320, 360}},
          Case{"under the panel at the top", {300, 1070}, {300, 680, 320, 360}},
          Case{"left of every screen", {-500, 900}, {0, 540, 320, 360}},
          Case{"on a screen that is not as high as the menu", {2000, 200}, {2000, 0, 320, 300}}}) {
        controller_->show(at);
        EXPECT_EQ(frame(), expected) << where;
        EXPECT_EQ(part("SlashMenuView").size(), QSize(int(expected.width), int(expected.height)))
            << where;
    }
}

TEST_F(SlashMenuController, ASearchIsTypedAndReturnChoosesTheHighlightedCommand) {
    show();
    EXPECT_THAT(fake_.record, Contains("make floating with the keyboard"));
    EXPECT_TRUE(search().hasFocus());
    type("list");
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_THAT(chosen_, ElementsAre(SlashCommand::numberedList));
    press(Qt::Key_Up);
    press(Qt::Key_Enter);
    press(Qt::Key_Return, 1, Qt::ShiftModifier);
    EXPECT_THAT(chosen_, ElementsAre(SlashCommand::numberedList, SlashCommand::bulletList,
                                     SlashCommand::bulletList));
}

TEST_F(SlashMenuController, TheHighlightedRowIsOnTheAccentAsItIs) {
    show();
    press(Qt::Key_Down);
    const QImage image = picture();
    const auto ground = [&](SlashCommand command) {
        return image.pixelColor(place(*row(command)).center() + QPoint(0, -18));
    };
    const QPalette palette = window().palette();
    EXPECT_EQ(ground(SlashCommand::heading2), ui::color({ui::Color::Accent}, palette));
    EXPECT_EQ(ground(SlashCommand::heading1), ui::color({ui::Color::WindowBackground}, palette));
}

TEST_F(SlashMenuController, EscapeHidesItAndItStartsAfresh) {
    show();
    press(Qt::Key_Down, 9);
    comeToRest();
    type("e");
    press(Qt::Key_Escape);
    EXPECT_FALSE(window().isVisible());
    EXPECT_THAT(chosen_, IsEmpty());
    QWidget other;
    other.show(); // and has the keyboard
    comeToRest();

    show();
    EXPECT_EQ(search().text(), QString());
    EXPECT_TRUE(search().hasFocus());
    EXPECT_EQ(place(*row(SlashCommand::heading1)).top(), list().top() + 8);
    press(Qt::Key_Return);
    EXPECT_THAT(chosen_, ElementsAre(SlashCommand::heading1));
}

TEST_F(SlashMenuController, AnInputMethodThatComposesKeepsItsKeys) {
    show();
    compose(QStringLiteral("nihon"));
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    press(Qt::Key_Enter);
    press(Qt::Key_Escape);
    EXPECT_TRUE(window().isVisible());
    EXPECT_THAT(chosen_, IsEmpty());
    compose({}, QStringLiteral("head"));
    press(Qt::Key_Return);
    EXPECT_THAT(chosen_, ElementsAre(SlashCommand::heading1));
}

TEST_F(SlashMenuController, AChoiceMayEndIt) {
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_unknown}) {
        controller_ = std::make_unique<slash::SlashMenuController>();
        controller_->onCommandSelected = [this](SlashCommand command) {
            chosen_.push_back(command);
            controller_.reset();
        };
        show();
        if (key == Qt::Key_unknown) {
            click(place(*row(SlashCommand::heading2)).center());
        } else {
            press(key);
        }
        EXPECT_EQ(controller_, nullptr);
    }
    EXPECT_THAT(chosen_, ElementsAre(SlashCommand::heading1, SlashCommand::heading1,
                                     SlashCommand::heading2));
}
