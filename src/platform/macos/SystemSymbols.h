#pragma once

#include "platform/qt/DrawnSymbols.h"

namespace platform {

/// The system's symbols, and the program's own drawings for names that the system does not know.
class SystemSymbols final : public Symbols {
public:
    QImage mask(const QString& name, const SymbolStyle& style, double devicePixelRatio) override;

private:
    QCache<QString, QImage> masks_{keptBytes};
    DrawnSymbols drawings_;

    static constexpr int keptBytes = 1 << 20;
};

} // namespace platform
