#pragma once

#include "gallery/Exhibit.h"

#include <functional>
#include <vector>

namespace gallery {

/// A view of the program in one of its states.
struct Entry {
    QString name;
    /// `text` is what was typed into the view's search field, if it has one.
    std::function<Exhibit(fakes::FakePlatform& rooms, const QString& text)> putUp;
};

std::vector<Entry> entries();

// One for each feature.
std::vector<Entry> barEntries();
std::vector<Entry> feedbackEntries();
std::vector<Entry> settingsEntries();
std::vector<Entry> slashEntries();
std::vector<Entry> symbolEntries();
std::vector<Entry> updateEntries();

} // namespace gallery
