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

TEST_F(XdgAutostartLoginItemTest, SaysWhyTheEntryCannotBeWritten) {
    folder.write(u"occupied"_s, "");
    auto login = XdgAutostartLoginItem(folder.path(u"occupied/q.desktop"_s), u"/usr/bin/quillet"_s);
    const auto error = login.registerItem();
    ASSERT_TRUE(error);
    EXPECT_THAT(error->toStdString(), HasSubstr("occupied"));
}
