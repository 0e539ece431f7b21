#include "platform/linux/freedesktop/XdgAutostartLoginItem.h"

#include "ConfigFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using platform::LoginItemStatus;
using platform::XdgAutostartLoginItem;
using testing::HasSubstr;

namespace {

const auto entry = QStringLiteral("quillet.desktop");

class XdgAutostartLoginItemTest : public testing::Test {
protected:
    fakes::ConfigFolder folder;

    XdgAutostartLoginItem item(const QString& executable = QStringLiteral("/usr/bin/quillet")) {
        return XdgAutostartLoginItem(folder.path(entry), executable);
    }
};

} // namespace

TEST_F(XdgAutostartLoginItemTest, ComesAndGoesAsItsEntry) {
    auto login = XdgAutostartLoginItem(folder.path(QStringLiteral("autostart/quillet.desktop")),
                                       QStringLiteral("/usr/bin/quillet"));
    EXPECT_EQ(login.status(), LoginItemStatus::NotRegistered);
    EXPECT_EQ(login.registerItem(), std::nullopt) << "makes the folder";
    EXPECT_EQ(login.status(), LoginItemStatus::Enabled);
    EXPECT_EQ(login.registerItem(), std::nullopt) << "again at each start";
    EXPECT_EQ(login.unregisterItem(), std::nullopt);
    EXPECT_EQ(login.status(), LoginItemStatus::NotRegistered);
    const auto error = login.unregisterItem();
    ASSERT_TRUE(error) << "there is nothing to remove";
    EXPECT_THAT(error->toStdString(), HasSubstr("No such file"));
}

TEST_F(XdgAutostartLoginItemTest, ReadsWhatTheDesktopsSwitchesWrite) {
    const std::vector<std::pair<QByteArray, LoginItemStatus>> rows{
        {"[Desktop Entry]\nExec=x\n", LoginItemStatus::Enabled},
        {"[Desktop Entry]\nHidden=false\nX-GNOME-Autostart-enabled=true\n",
         LoginItemStatus::Enabled},
        {"[Desktop Entry]\nHidden=true\n", LoginItemStatus::NotRegistered},
        {"[Desktop Entry]\r\nHidden = true\r\n", LoginItemStatus::NotRegistered},
        {"[Desktop Entry]\nX-GNOME-Autostart-enabled=false", LoginItemStatus::NotRegistered},
        {"[Desktop Entry]\n#Hidden=true\nName=Hidden=true\n[Other]\nHidden=true\n",
         LoginItemStatus::Enabled},
    };
    for (const auto& [contents, expected] : rows) {
        folder.write(entry, contents);
        EXPECT_EQ(item().status(), expected) << contents.toStdString();
        EXPECT_EQ(item().registerItem(), std::nullopt);
        EXPECT_EQ(item().status(), LoginItemStatus::Enabled) << "registering switches it on";
    }
}

TEST_F(XdgAutostartLoginItemTest, QuotesTheExecutableAsLaunchersReadIt) {
    // Escaped as a quoted argument, then as a value of the file.
    const std::vector<std::pair<QString, std::string>> rows{
        {QStringLiteral("/opt/my apps/q"), R"(Exec="/opt/my apps/q")"},
        {QStringLiteral("/a\"b`c$d\\e"), R"(Exec="/a\\"b\\`c\\$d\\\\e")"},
        {QStringLiteral("/two\nlines"), R"(Exec="/two\nlines")"},
        {QStringLiteral("/100%u"), R"(Exec=nice -n 0 "/100%%u")"},
        {QStringLiteral("/\u00e4/q"), "Exec=\"/\xc3\xa4/q\""},
    };
    for (const auto& [executable, line] : rows) {
        ASSERT_EQ(item(executable).registerItem(), std::nullopt);
        EXPECT_THAT(folder.read(entry).toStdString(), HasSubstr('\n' + line + '\n'));
    }
}

TEST_F(XdgAutostartLoginItemTest, SaysWhyTheEntryCannotBeWritten) {
    folder.write(QStringLiteral("occupied"), "");
    auto login = XdgAutostartLoginItem(folder.path(QStringLiteral("occupied/q.desktop")),
                                       QStringLiteral("/usr/bin/quillet"));
    const auto error = login.registerItem();
    ASSERT_TRUE(error);
    EXPECT_THAT(error->toStdString(), HasSubstr("occupied"));
}
