#include "gallery/Gallery.h"

namespace gallery {

std::vector<Entry> entries() {
    std::vector<Entry> all;
    for (const auto& feature : {barEntries(), settingsEntries(), feedbackEntries(), slashEntries(),
                                symbolEntries(), updateEntries()}) {
        all.insert(all.end(), feature.begin(), feature.end());
    }
    return all;
}

} // namespace gallery
