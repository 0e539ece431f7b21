#include "platform/linux/freedesktop/DesktopEntryIndex.h"
#include "ConfigFolder.h"
#include "fakes/VirtualRunLoop.h"
#include "platform/linux/freedesktop/ApplicationFolders.h"

#include <filesystem>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

class DesktopEntryIndexTest : public testing::Test {
protected:
    void install(const QString& name, const QByteArray& keys = {}) {
        folder_.write(name, "[Desktop Entry]\nType=Application\n" + keys);
        // Folders keep their times in steps that two changes in a row may share.
        const auto folder = std::filesystem::path(folder_.path({}).toStdString());
        std::filesystem::last_write_time(folder, std::filesystem::last_write_time(folder) +
                                                     std::chrono::seconds(++changes_));
    }

    bool knows(const char* id) {
        const auto table = index_.current();
        return table && table->withId(QString::fromLatin1(id)) != nullptr;
    }

    fakes::ConfigFolder folder_;
    int changes_ = 0;
    fakes::VirtualRunLoop runLoop_;
    DesktopEntryIndex index_{runLoop_, {folder_.path({}), u"/no/such/folder"_s}, {}};
};

} // namespace

TEST_F(DesktopEntryIndexTest, ReadsAgainWhenAFolderChangedAndAnswersMeanwhile) {
    install(u"notes.desktop"_s);
    index_.current();
    runLoop_.finishBackgroundWork();
    install(u"mail.desktop"_s);
    EXPECT_FALSE(knows("mail"));
    EXPECT_TRUE(knows("notes"));
    runLoop_.finishBackgroundWork();
    EXPECT_TRUE(knows("mail"));
    QFile::remove(folder_.path(u"notes.desktop"_s));
    install(u"mail.desktop"_s, "Hidden=true\n");
    index_.current();
    runLoop_.finishBackgroundWork();
    EXPECT_FALSE(knows("notes"));
    EXPECT_FALSE(knows("mail"));
}

} // namespace platform
