#include "platform/linux/freedesktop/JsonUserDefaults.h"

#include "core/Log.h"

#include <QStandardPaths>

#include <nlohmann/json.hpp>

#include <algorithm>

namespace platform {

namespace {

using Json = nlohmann::ordered_json;

QString text(const Json& json) {
    const auto& utf8 = json.get_ref<const std::string&>();
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

std::optional<DefaultsValue> fromJson(const Json& json) {
    switch (json.type()) {
    case Json::value_t::boolean:
        return json.get<bool>();
    case Json::value_t::number_integer:
        return json.get<std::int64_t>();
    case Json::value_t::number_unsigned: {
        const auto number = json.get<std::uint64_t>();
        if (std::in_range<std::int64_t>(number)) {
            return static_cast<std::int64_t>(number);
        }
        return number;
    }
    case Json::value_t::number_float:
        return json.get<double>();
    case Json::value_t::string:
        return text(json);
    case Json::value_t::array: {
        QStringList list;
        for (const Json& element : json) {
            if (!element.is_string()) {
                return std::nullopt;
            }
            list << text(element);
        }
        return list;
    }
    case Json::value_t::null:
    case Json::value_t::object:
    case Json::value_t::binary:
    case Json::value_t::discarded:
        return std::nullopt;
    }
    return std::nullopt;
}

Json toJson(const QString& string) {
    return string.toStdString();
}

Json toJson(const QStringList& list) {
    Json array = Json::array();
    for (const QString& string : list) {
        array.push_back(toJson(string));
    }
    return array;
}

template <typename Number>
Json toJson(Number number) {
    return number;
}

} // namespace

QString JsonUserDefaults::defaultPath() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QLatin1String("/corvane-quillet/settings.json");
}

JsonUserDefaults::JsonUserDefaults(const QString& path)
    : file_(path)
    , values_(std::make_unique<Json>(Json::object())) {
    load();
}

JsonUserDefaults::~JsonUserDefaults() = default;

void JsonUserDefaults::load() {
    const WholeFile::Contents contents = file_.read();
    if (const auto* unreadable = std::get_if<WholeFile::Unreadable>(&contents)) {
        setAside(unreadable->reason);
    } else if (const auto* bytes = std::get_if<QByteArray>(&contents)) {
        Json parsed = Json::parse(bytes->begin(), bytes->end(), nullptr, false);
        if (parsed.is_object()) {
            *values_ = std::move(parsed);
        } else {
            setAside(QStringLiteral("not a JSON object"));
        }
    }
}

void JsonUserDefaults::setAside(const QString& reason) {
    const QString trouble =
        QStringLiteral("the settings in %1 cannot be read (%2)").arg(file_.path(), reason);
    if (const auto name = file_.setAside()) {
        core::log(QStringLiteral("%1 and were set aside as %2").arg(trouble, *name));
    } else {
        // What could not be saved must not be overwritten either.
        writing_ = Writing::Forbidden;
        core::log(QStringLiteral("%1 nor set aside; changes will not be stored").arg(trouble));
    }
}

std::optional<DefaultsValue> JsonUserDefaults::object(const QString& key) const {
    const auto found = values_->find(key.toStdString());
    return found == values_->end() ? std::nullopt : fromJson(*found);
}

void JsonUserDefaults::set(const QString& key, const DefaultsValue& value) {
    (*values_)[key.toStdString()] =
        std::visit([](const auto& typed) { return toJson(typed); }, value);
    if (writing_ == Writing::Forbidden) {
        return;
    }
    const auto replaced = Json::error_handler_t::replace;
    const std::string bytes = values_->dump(2, ' ', false, replaced) + '\n';
    const auto error = file_.replace(QByteArray::fromStdString(bytes));
    if (error && writing_ == Writing::Works) {
        core::log(
            QStringLiteral("the settings cannot be stored in %1: %2").arg(file_.path(), *error));
    }
    writing_ = error ? Writing::Fails : Writing::Works;
}

} // namespace platform
