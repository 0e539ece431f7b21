#include "platform/linux/atspi/AtSpiFixture.h"

using fakes::FakeObject;
using fakes::Misbehaviour;
using platform::Role;

namespace {

constexpr auto password = static_cast<unsigned>(Role::PasswordText);
constexpr auto paragraph = static_cast<unsigned>(Role::Paragraph);
constexpr auto staticText = static_cast<unsigned>(Role::Static);

class SelectionTest : public fakes::AtSpiFixture {
protected:
    SelectionTest()
        : application(desktop.addApplication()) {
        start();
    }

    std::optional<QString> textOf(const FakeObject& object) {
        show(application, object);
        accessibility.emplace(windows, desktop.session(), limits);
        EXPECT_TRUE(accessibility->isProcessTrusted(platform::TrustPrompt::Hidden));
        return look().text;
    }

    void addChild(const QString& path, unsigned role, const QString& text,
                  std::vector<std::pair<int, int>> selections, QList<QString> children = {}) {
        FakeObject child;
        child.role = role;
        child.text = text;
        child.selections = std::move(selections);
        child.children = std::move(children);
        application.set(path, child);
    }

    fakes::FakeApplication& application;
};

TEST_F(SelectionTest, PlainTexts) {
    EXPECT_EQ(textOf(focusedText(QStringLiteral("one two"), {{4, 7}})), QStringLiteral("two"));
    EXPECT_EQ(textOf(focusedText(QStringLiteral("one two"), {})), QString());
    EXPECT_EQ(textOf(focusedText(QStringLiteral("one two"), {{3, 3}})), QString());
    // Some toolkits name the end first.
    EXPECT_EQ(textOf(focusedText(QStringLiteral("one two"), {{7, 4}})), QStringLiteral("two"));
    EXPECT_EQ(textOf(focusedText(QStringLiteral("one two"), {{0, 3}, {4, 7}})),
              QStringLiteral("one\ntwo"));
}

TEST_F(SelectionTest, NothingOfWhatHoldsNoTextOrAPassword) {
    auto object = focusedText(QStringLiteral("secret"), {{0, 6}});
    object.hasText = false;
    EXPECT_EQ(textOf(object), std::nullopt);

    object.hasText = true;
    object.role = password;
    EXPECT_EQ(textOf(object), std::nullopt);
}

TEST_F(SelectionTest, AFieldThatTurnsIntoAPasswordFieldWhileItIsRead) {
    auto object = focusedText(QStringLiteral("secret"), {{0, 6}});
    EXPECT_EQ(textOf(object), QStringLiteral("secret"));

    object.role = password;
    application.set(QStringLiteral("/text"), object);
    application.sendEvent(QStringLiteral("/text"), QStringLiteral("Object"),
                          QStringLiteral("TextSelectionChanged"));
    EXPECT_TRUE(eventually([this] { return look().text == std::nullopt; }));
}

TEST_F(SelectionTest, EmbeddedObjectsStandInTheirPlaces) {
    const auto hole = QString(QChar(0xFFFC));
    auto page = focusedText(hole + hole + hole, {{0, 3}});
    page.children = {QStringLiteral("/first"), QStringLiteral("/login"), QStringLiteral("/second")};
    addChild(QStringLiteral("/first"), paragraph,
             QStringLiteral("See ") + hole + QStringLiteral(" there"), {{0, 11}},
             {QStringLiteral("/before"), QStringLiteral("/link"), QStringLiteral("/after")});
    addChild(QStringLiteral("/before"), staticText, QStringLiteral("See "), {{0, 4}});
    addChild(QStringLiteral("/link"), 88, QStringLiteral("the page"), {{0, 8}});
    addChild(QStringLiteral("/after"), staticText, QStringLiteral(" there"), {{0, 6}});
    addChild(QStringLiteral("/login"), password, QStringLiteral("hunter2"), {{0, 7}});
    addChild(QStringLiteral("/second"), paragraph, QStringLiteral("Second one"), {{0, 6}});

    EXPECT_EQ(textOf(page), QStringLiteral("See the page there\nSecond"));
}

TEST_F(SelectionTest, ObjectsThatContainThemselvesEnd) {
    auto page = focusedText(QString(QChar(0xFFFC)), {{0, 1}});
    page.children = {QStringLiteral("/text")};
    EXPECT_EQ(textOf(page), QString());
}

TEST_F(SelectionTest, ParagraphsAreJoinedAcrossEmptyOnes) {
    auto first = focusedText(QStringLiteral("First."), {{2, 6}});
    first.role = paragraph;
    show(application, first);
    FakeObject window;
    window.states = {platform::State::Active};
    window.children = {QStringLiteral("/text"), QStringLiteral("/empty"), QStringLiteral("/third"),
                       QStringLiteral("/fourth")};
    addChild(QStringLiteral("/empty"), paragraph, QString(), {});
    addChild(QStringLiteral("/third"), paragraph, QStringLiteral("Third."), {{0, 3}});
    addChild(QStringLiteral("/fourth"), paragraph, QStringLiteral("Fourth."), {});
    application.set(QStringLiteral("/window"), window);

    EXPECT_EQ(look().text, QStringLiteral("rst.\nThi"));
}

TEST_F(SelectionTest, OfAVeryLongTextTheEndsAreRead) {
    auto book = QString(1'000'000, u'a');
    book[0] = u'b';
    book[999'999] = u'c';
    const auto text = textOf(focusedText(book, {{0, 1'000'000}}));
    ASSERT_TRUE(text);
    EXPECT_TRUE(text->startsWith(u'b') && text->endsWith(u'c'));
    EXPECT_LT(text->size(), 200'000);
}

TEST_F(SelectionTest, WrongAnswersYieldNothing) {
    const auto good = focusedText(QStringLiteral("one two"), {{4, 7}});
    for (const auto* question : {u"GetInterfaces", u"GetRole", u"GetNSelections", u"GetSelection",
                                 u"GetText", u"GetState"}) {
        for (const auto& answer :
             {QVariantList(), QVariantList{QStringList{QStringLiteral("x")}},
              QVariantList{QVariant::fromValue(
                  platform::ObjectReference{application.service(), QStringLiteral("/text")})},
              QVariantList{4.5}, QVariantList{QVariant::fromValue(QList<int>{1, 2})}}) {
            auto object = good;
            const auto name = QString::fromUtf16(question);
            object.misbehaviours.insert(name, {Misbehaviour::Kind::Answer, answer});
            EXPECT_EQ(textOf(object), std::nullopt) << name.toStdString();
        }
        auto object = good;
        object.misbehaviours.insert(QString::fromUtf16(question), {Misbehaviour::Kind::Error, {}});
        EXPECT_EQ(textOf(object), std::nullopt);
    }
}

TEST_F(SelectionTest, ASelectionThatIsNoneIsSkipped) {
    EXPECT_EQ(textOf(focusedText(QStringLiteral("one"), {{-1, -1}})), QString());
    auto object = focusedText(QStringLiteral("one"), {{0, 3}});
    object.misbehaviours.insert(QStringLiteral("GetNSelections"),
                                {Misbehaviour::Kind::Answer, {-7}});
    EXPECT_EQ(textOf(object), QString());
}

} // namespace
