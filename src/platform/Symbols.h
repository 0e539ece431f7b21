#pragma once

#include <QImage>
#include <QString>

namespace platform {

enum class SymbolWeight { Regular, Medium, Semibold, Bold };

struct SymbolStyle {
    double pointSize = 13;
    SymbolWeight weight = SymbolWeight::Regular;
};

/// The system's symbols by their names. GUI thread only.
class Symbols {
public:
    virtual ~Symbols() = default;

    /// The symbol's coverage as an alpha mask (Format_Alpha8) with its device pixel ratio set, cut
    /// to the symbol's own size. Null for an unknown name.
    virtual QImage mask(const QString& name, const SymbolStyle& style, double devicePixelRatio) = 0;
};

} // namespace platform
