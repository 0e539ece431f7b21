#pragma once

#include <QColor>
#include <QSize>
#include <QString>
#include <QStringList>

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// The system's services, alerts, pictures and the updater's framework, as tests see them.
namespace cocoaFake {

struct LoginService {
    long status = 0;
    /// What registering and unregistering fail with.
    std::optional<QString> error;
    std::vector<std::string> calls;
};

struct ShownAlert {
    QString messageText;
    QString informativeText;
    unsigned long style = 99;
    QStringList buttons;
    bool afterComingForward = false;
};

struct Services {
    LoginService loginItem;
    std::vector<ShownAlert> alerts;
    long alertAnswer = 1000;

    /// Symbols by name: colour and size in points at a point size of one.
    std::map<QString, QSizeF> symbols;
    /// Point sizes and weights for which symbols were drawn.
    std::vector<std::pair<double, double>> configurations;
    QColor ink = Qt::black;
    int iconsAsked = 0;

    /// The bundle's frameworks folder, and whether code in it can be loaded.
    std::optional<QString> frameworks;
    bool frameworkLoads = true;
    /// Options and reason of each activity that was begun.
    std::vector<std::pair<unsigned long long, QString>> activities;
    std::vector<std::string> updater;
};

Services& services();

void clearUserDefaults();
/// Stores what no part of this program stores, under keys that name it.
void storeInOtherForms();

} // namespace cocoaFake
