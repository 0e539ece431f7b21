#include "platform/linux/freedesktop/XdgAutostartLoginItem.h"

#include "ConfigFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using platform::LoginItemStatus;
using platform::XdgAutostartLoginItem;
using testing::HasSubstr;

namespace {

const auto entry = u"quillet.desktop"_s;

class XdgAutostartLoginItemTest : public testing::Test {
protected:
    fakes::ConfigFolder folder;

    XdgAutostartLoginItem item(const QString& executable = u"/usr/bin/quillet"_s) {
        return XdgAutostartLoginItem(folder.path(entry), executable);
    }
};

} // namespace

TEST_F(XdgAutostartLoginItemTest, ComesAndGoesAsItsEntry) {
    auto login =
        XdgAutostartLoginItem(folder.path(u"autostart/quillet.desktop"_s), u"/usr/bin/quillet"_s);
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
        {u"/opt/my apps/q"_s, R"(Exec="/opt/my apps/q")"},
        {u"/a\"b`c$d\\e"_s, R"(Exec="/a\\"b\\`c\\$d\\\\e")"},
        {u"/two\nlines"_s, R"(Exec="/two\nlines")"},
        {u"/100%u"_s, R"(Exec=nice -n 0 "/100%%u")"},
        {u"/\u00e4/q"_s, "Exec=\"/\xc3\xa4/q\""},
    };
    for (const auto& [executable, line] : rows) {
        ASSERT_EQ(item(executable).registerItem(), std::nullopt);
        EXPECT_THAT(folder.read(entry).toStdString(), HasSubstr('\n' + line + '\n'));
    }
}

