#include "platform/linux/freedesktop/DesktopEntryIndex.h"

#include <QFile>

#include <utility>

namespace platform {

DesktopEntryIndex::DesktopEntryIndex(RunLoop& runLoop, QStringList folders, QStringList languages)
    : runLoop_(runLoop)
    , folders_(std::move(folders))
    , languages_(std::move(languages))
    , self_(std::make_shared<DesktopEntryIndex*>(this)) {}

DesktopEntryIndex::~DesktopEntryIndex() = default;

DesktopEntryIndex::Stamps DesktopEntryIndex::stamps(const QStringList& folders) {
    Stamps result;
    for (const auto& folder : folders) {
        std::error_code failed;
        const auto changed =
            std::filesystem::last_write_time(QFile::encodeName(folder).toStdString(), failed);
        result.push_back(failed ? std::nullopt : std::optional(changed));
    }
    return result;
}

DesktopEntryIndex::Table DesktopEntryIndex::known() {
    const std::lock_guard lock(mutex_);
    return table_;
}

DesktopEntryIndex::Table DesktopEntryIndex::current() {
    auto table = known();
    if (!reading_) {
        auto now = stamps(folders_);
        if (!table || now != stamps_) {
            startReading(std::move(now));
        }
    }
    return table;
}

DesktopEntryIndex::Table DesktopEntryIndex::wait() {
    if (auto table = known()) {
        return table;
    }
    return std::make_shared<const DesktopEntryTable>(DesktopEntryTable::read(folders_, languages_));
}

core::Registration DesktopEntryIndex::addChangeHandler(std::function<void()> handler) {
    return changed_.add(std::move(handler));
}

void DesktopEntryIndex::startReading(Stamps stamps) {
    reading_ = true;
    auto result = std::make_shared<Table>();
    runLoop_.dispatchInBackground(
        [result, folders = folders_, languages = languages_] {
            *result = std::make_shared<const DesktopEntryTable>(
                DesktopEntryTable::read(folders, languages));
        },
        [result, stamps = std::move(stamps), self = std::weak_ptr(self_)]() mutable {
            const auto alive = self.lock();
            if (!alive) {
                return;
            }
            auto& index = **alive;
            index.reading_ = false;
            // The time was taken before reading: what changed meanwhile is read again.
            index.stamps_ = std::move(stamps);
            {
                const std::lock_guard lock(index.mutex_);
                index.table_ = *result;
            }
            index.changed_.notify();
        });
}

} // namespace platform
