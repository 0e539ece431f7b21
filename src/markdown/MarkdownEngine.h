#pragma once

#include "markdown/MarkdownPattern.h"

#include <QString>

#include <vector>

namespace markdown {

/// Declared for typing patterns; nothing constructs it and it has no operations.
class MarkdownEngine {
private:
    std::vector<MarkdownPattern> patterns_;
    QString previousText_;
    bool isProcessing_ = false;
};

} // namespace markdown
