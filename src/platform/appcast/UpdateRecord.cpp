#include "platform/appcast/UpdateRecord.h"

#include "core/Log.h"
#include "platform/appcast/AppcastChoice.h"

#include <QDir>
#include <QRandomGenerator>

#include <nlohmann/json.hpp>

namespace platform {

namespace {

using Json = nlohmann::json;

std::optional<QString> textAt(const Json& object, const char* key) {
    const auto found = object.find(key);
    return found != object.end() && found->is_string()
               ? std::optional(QString::fromStdString(found->get_ref<const std::string&>()))
               : std::nullopt;
}

} // namespace

QString UpdateRecord::defaultPath() {
    QString folder = qEnvironmentVariable("XDG_STATE_HOME");
    if (!QDir::isAbsolutePath(folder)) {
        folder = QDir::homePath() + QStringLiteral("/.local/state");
    }
    return QDir::cleanPath(folder + QStringLiteral("/corvane-quillet/updates.json"));
}

UpdateRecord::UpdateRecord(const QString& path)
    : file_(path)
    , rolloutGroup_(QRandomGenerator::global()->bounded(rolloutGroups)) {
    const WholeFile::Contents contents = file_.read();
    if (const auto* bytes = std::get_if<QByteArray>(&contents)) {
        load(*bytes);
    }
}

void UpdateRecord::load(const QByteArray& contents) {
    const Json json = Json::parse(contents.begin(), contents.end(), nullptr, false);
    if (!json.is_object()) {
        return;
    }
    const auto moment =
        QDateTime::fromString(textAt(json, "lastCheck").value_or(QString()), Qt::ISODate);
    if (moment.isValid()) {
        lastCheck_ = moment;
    }
    const auto group = json.find("rolloutGroup");
    if (group != json.end() && group->is_number_integer() && *group >= 0 &&
        *group < rolloutGroups) {
        rolloutGroup_ = group->get<int>();
    }
    const auto skipped = json.find("skippedVersion");
    if (skipped != json.end() && skipped->is_object()) {
        const QString marketing = textAt(*skipped, "version").value_or(QString());
        if (!marketing.isEmpty()) {
            skipped_ = ProgramVersion{marketing, textAt(*skipped, "build").value_or(QString())};
        }
    }
}

void UpdateRecord::setLastCheck(const QDateTime& moment) {
    lastCheck_ = moment;
    save();
}

void UpdateRecord::skip(const ProgramVersion& version) {
    skipped_ = version;
    save();
}

void UpdateRecord::save() {
    Json json{{"rolloutGroup", rolloutGroup_}};
    if (lastCheck_) {
        json["lastCheck"] = lastCheck_->toUTC().toString(Qt::ISODate).toStdString();
    }
    if (skipped_) {
        json["skippedVersion"] = {{"version", skipped_->marketing.toStdString()},
                                  {"build", skipped_->build.toStdString()}};
    }
    if (const auto error = file_.replace(QByteArray::fromStdString(json.dump(4)) + '\n')) {
        core::log(QStringLiteral("what the update check remembers was not written to %1 (%2)")
                      .arg(file_.path(), *error));
    }
}

} // namespace platform
