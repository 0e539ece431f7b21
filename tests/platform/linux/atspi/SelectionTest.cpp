#include "platform/linux/atspi/AtSpiFixture.h"

using namespace Qt::StringLiterals;
using fakes::FakeObject;
using platform::Role;

namespace {

constexpr auto password = static_cast<unsigned>(Role::PasswordText);
constexpr auto paragraph = static_cast<unsigned>(Role::Paragraph);
constexpr auto staticText = static_cast<unsigned>(Role::Static);

class SelectionTest : public fakes::AtSpiFixture {
protected:
    std::optional<QString> textOf(const FakeObject& object) {
        show(object);
        start();
        return look().text;
    }

    void addChild(const QString& path, unsigned role, const QString& text,
                  std::vector<std::pair<int, int>> selections, QStringList children = {}) {
        application.set(path, {.role = role,
                               .children = std::move(children),
                               .text = text,
                               .selections = std::move(selections)});
    }
};

TEST_F(SelectionTest, PlainTexts) {
    EXPECT_EQ(textOf(focusedText(u"one two"_s, {{4, 7}})), u"two"_s);
    EXPECT_EQ(textOf(focusedText(u"one two"_s, {})), QString());
    EXPECT_EQ(textOf(focusedText(u"one two"_s, {{3, 3}})), QString());
    // Some toolkits name the end first.
    EXPECT_EQ(textOf(focusedText(u"one two"_s, {{7, 4}})), u"two"_s);
    EXPECT_EQ(textOf(focusedText(u"one two"_s, {{0, 3}, {4, 7}})), u"one\ntwo"_s);
}

TEST_F(SelectionTest, NothingOfWhatHoldsNoTextOrAPassword) {
    auto object = focusedText(u"secret"_s, {{0, 6}});
    object.hasText = false;
    EXPECT_EQ(textOf(object), std::nullopt);
    object.hasText = true;
    EXPECT_EQ(textOf(object), u"secret"_s);
    // It turns into a password field while it is read.
    object.role = password;
    application.set(u"/text"_s, object);
    application.sendEvent(u"/text"_s, u"Object"_s, u"TextSelectionChanged"_s);
    EXPECT_TRUE(fakes::eventually([this] { return look().text == std::nullopt; }));
    EXPECT_EQ(textOf(object), std::nullopt);
}

TEST_F(SelectionTest, EmbeddedObjectsStandInTheirPlaces) {
    const auto hole = QString(QChar(0xFFFC));
    auto page = focusedText(hole + hole + hole, {{0, 3}});
    page.children = {u"/first"_s, u"/login"_s, u"/second"_s};
    addChild(u"/first"_s, paragraph, u"See "_s + hole + u" there"_s, {{0, 11}},
             {u"/before"_s, u"/link"_s, u"/after"_s});
    addChild(u"/before"_s, staticText, u"See "_s, {{0, 4}});
    addChild(u"/link"_s, 88, u"the page"_s, {{0, 8}});
    addChild(u"/after"_s, staticText, u" there"_s, {{0, 6}});
    addChild(u"/login"_s, password, u"hunter2"_s, {{0, 7}});
    addChild(u"/second"_s, paragraph, u"Second one"_s, {{0, 6}});

    EXPECT_EQ(textOf(page), u"See the page there\nSecond"_s);
}

TEST_F(SelectionTest, ObjectsThatContainThemselvesEnd) {
    auto page = focusedText(QString(QChar(0xFFFC)), {{0, 1}});
    page.children = {u"/text"_s};
    EXPECT_EQ(textOf(page), QString());
}

TEST_F(SelectionTest, ParagraphsAreJoinedAcrossEmptyOnes) {
    auto first = focusedText(u"First."_s, {{2, 6}});
    first.role = paragraph;
    show(first);
    application.set(u"/window"_s,
                    {.states = {platform::State::Active},
                     .children = {u"/text"_s, u"/empty"_s, u"/third"_s, u"/fourth"_s}});
    addChild(u"/empty"_s, paragraph, QString(), {});
    addChild(u"/third"_s, paragraph, u"Third."_s, {{0, 3}});
    addChild(u"/fourth"_s, paragraph, u"Fourth."_s, {});

    start();
    EXPECT_EQ(look().text, u"rst.\nThi"_s);
}

TEST_F(SelectionTest, WrongAnswersYieldNothing) {
    auto object = focusedText(u"one two"_s, {{4, 7}});
    const std::vector<fakes::Misbehaviour> wrong{
        fakes::refusal,
        fakes::answering({}),
        fakes::answering({QStringList{u"x"_s}}),
        fakes::answering({QVariant::fromValue(application.reference(u"/text"_s))}),
        fakes::answering({4.5}),
        fakes::answering({QVariant::fromValue(QList<int>{1, 2})})};
    for (const auto& question : {u"GetInterfaces"_s, u"GetRole"_s, u"GetNSelections"_s,
                                 u"GetSelection"_s, u"GetText"_s, u"GetState"_s}) {
        for (const auto& answer : wrong) {
            object.misbehaviours = {{question, answer}};
            EXPECT_EQ(textOf(object), std::nullopt) << question.toStdString();
        }
    }
}

} // namespace
