#pragma once

#include "platform/UserDefaults.h"
#include "platform/qt/WholeFile.h"

#include <nlohmann/json_fwd.hpp>

#include <memory>

namespace platform {

/// The program's persisted values as one JSON object in a file of the user's configuration. What
/// the file holds beside them is kept; a damaged file is set aside. Trouble with the file is
/// logged, and the values live on in memory.
class JsonUserDefaults final : public UserDefaults {
public:
    /// `corvane-quillet/settings.json` in the user's configuration folder.
    static QString defaultPath();

    explicit JsonUserDefaults(const QString& path);
    ~JsonUserDefaults() override;

    std::optional<DefaultsValue> object(const QString& key) const override;
    void set(const QString& key, const DefaultsValue& value) override;

private:
    enum class Writing { Works, Fails, Forbidden };

    void load();
    void setAside(const QString& reason);

    WholeFile file_;
    std::unique_ptr<nlohmann::ordered_json> values_;
    Writing writing_ = Writing::Works;
};

} // namespace platform
