#pragma once

#include "platform/Symbols.h"

#include <QCache>

namespace platform {

/// The symbols drawn for this program, one resource for each name, rendered when they are asked
/// for.
class DrawnSymbols final : public Symbols {
public:
    DrawnSymbols();

    /// Null also for a size or ratio that is not positive, or far too large to be meant.
    QImage mask(const QString& name, const SymbolStyle& style, double devicePixelRatio) override;

private:
    struct Key {
        QString name;
        double pointSize = 0;
        SymbolWeight weight = SymbolWeight::Regular;
        double devicePixelRatio = 0;

        bool operator==(const Key&) const = default;
        friend std::size_t qHash(const Key& key, std::size_t seed) noexcept {
            return qHashMulti(seed, key.name, key.pointSize, static_cast<int>(key.weight),
                              key.devicePixelRatio);
        }
    };

    QCache<Key, QImage> masks_;
};

} // namespace platform
