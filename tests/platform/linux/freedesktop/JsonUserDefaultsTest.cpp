#include "platform/linux/freedesktop/JsonUserDefaults.h"

#include "ConfigFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <limits>
#include <sys/resource.h>

using namespace Qt::StringLiterals;
using platform::DefaultsValue;
using platform::JsonUserDefaults;
using testing::HasSubstr;
using testing::internal::CaptureStdout;
using testing::internal::GetCapturedStdout;

namespace {

const auto settings = QStringLiteral("settings.json");
const auto key = QStringLiteral("key");

class JsonUserDefaultsTest : public testing::Test {
protected:
    fakes::ConfigFolder folder;
    QString path = folder.path(settings);

    /// What is logged while `action` runs, which must be one line or none.
    static std::string logged(const std::function<void()>& action) {
        CaptureStdout();
        action();
        const std::string lines = GetCapturedStdout();
        EXPECT_LE(std::ranges::count(lines, '\n'), 1) << lines;
        return lines;
    }
};

} // namespace

TEST_F(JsonUserDefaultsTest, TellsTypesApartAndYieldsNothingForOthers) {
    folder.write(settings, R"({"bool": true, "one": 1, "one as fraction": 1.0, "string": "1",
        "beyond signed": 9223372036854775808, "negative": -1, "beyond all": 18446744073709551616,
        "list": ["a"], "mixed": ["a", 1], "null": null, "object": {}})");
    const JsonUserDefaults defaults(path);
    const std::vector<std::pair<QString, std::optional<DefaultsValue>>> rows{
        {u"bool"_s, true},
        {u"one"_s, std::int64_t{1}},
        {u"one as fraction"_s, 1.0},
        {u"string"_s, u"1"_s},
        {u"beyond signed"_s, std::uint64_t{1} << 63},
        {u"negative"_s, std::int64_t{-1}},
        {u"beyond all"_s, 18446744073709551616.0},
        {u"list"_s, QStringList{u"a"_s}},
        {u"mixed"_s, std::nullopt},
        {u"null"_s, std::nullopt},
        {u"object"_s, std::nullopt},
    };
    for (const auto& [name, expected] : rows) {
        EXPECT_EQ(defaults.object(name), expected) << name.toStdString();
    }
}

TEST_F(JsonUserDefaultsTest, ValuesComeBackWithTheTypeInWhichTheyWereStored) {
    for (const DefaultsValue& value : std::initializer_list<DefaultsValue>{
             true, false, std::int64_t{1}, std::numeric_limits<std::int64_t>::min(),
             std::numeric_limits<std::uint64_t>::max(), 2.0, 0.1, -1e-300, QString(), u"true"_s,
             u"\"\\\n\u00e4\U0001F600"_s, QStringList(), QStringList{u"b"_s, QString(), u"a"_s}}) {
        for (const QString& name : {key, u"Key"_s, QString()}) {
            EXPECT_EQ(JsonUserDefaults(folder.path(u"new.json"_s)).object(name), std::nullopt);
            JsonUserDefaults(path).set(name, value);
            EXPECT_EQ(JsonUserDefaults(path).object(name), value) << "value " << value.index();
        }
    }
}

TEST_F(JsonUserDefaultsTest, MakesItsFolderAndKeepsWhatItDoesNotKnow) {
    const QString deep = folder.path(u"a/b/settings.json"_s);
    JsonUserDefaults(deep).set(key, true);
    EXPECT_EQ(JsonUserDefaults(deep).object(key), DefaultsValue(true));

    folder.write(settings, R"({"later version": {"deep": [1, null]}, "key": "old"})");
    JsonUserDefaults(path).set(key, 2.0);
    EXPECT_EQ(folder.read(settings).simplified(),
              R"({ "later version": { "deep": [ 1, null ] }, "key": 2.0 })");
}

TEST_F(JsonUserDefaultsTest, ADamagedFileIsSetAsideAndNeverOverwritesAnEarlierOne) {
    const std::vector<QByteArray> damaged{"",
                                          "{",
                                          "[1]",
                                          "\"text\"",
                                          "{\"key\": true} x",
                                          "{\"key\": 1e999}",
                                          "{\"key\": \"\xff\"}",
                                          QByteArray(100'000, '[')};
    for (const QByteArray& contents : damaged) {
        folder.write(settings, contents);
        std::optional<JsonUserDefaults> defaults;
        EXPECT_THAT(logged([&] { defaults.emplace(path); }), HasSubstr("set aside"));
        EXPECT_EQ(defaults->object(key), std::nullopt);
        defaults->set(key, true);
        EXPECT_EQ(JsonUserDefaults(path).object(key), DefaultsValue(true));
    }
    EXPECT_EQ(folder.read(u"settings.json.damaged"_s), damaged.front());
    for (std::size_t i = 1; i < damaged.size(); ++i) {
        EXPECT_EQ(folder.read(u"settings.json.damaged-%1"_s.arg(i + 1)), damaged[i]);
    }
}

TEST_F(JsonUserDefaultsTest, AFullDiskLeavesTheOldFileWhole) {
    JsonUserDefaults defaults(path);
    defaults.set(key, true);
    const QByteArray old = folder.read(settings);

    rlimit limit{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &limit), 0);
    rlimit tight = limit;
    tight.rlim_cur = 1000;
    const auto previous = std::signal(SIGXFSZ, SIG_IGN);
    const std::string lines = logged([&] {
        ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &tight), 0);
        defaults.set(key, QString(5000, u'x'));
        defaults.set(key, QString(5001, u'x'));
        ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
    });
    std::signal(SIGXFSZ, previous);

    EXPECT_THAT(lines, HasSubstr("cannot be stored"));
    EXPECT_EQ(folder.read(settings), old);
    EXPECT_EQ(folder.names(), settings) << "nothing half-written is left";
    EXPECT_EQ(logged([&] { defaults.set(key, 1.5); }), "") << "room again";
    EXPECT_EQ(JsonUserDefaults(path).object(key), DefaultsValue(1.5));
}
