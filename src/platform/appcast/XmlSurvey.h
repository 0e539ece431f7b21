#pragma once

#include <QStringView>

#include <optional>

namespace platform {

/// Why a document from outside is not given to an XML reader, found in one pass over it; empty when
/// nothing speaks against it. A document type could make entities grow, and the toolkit's reader
/// compares every attribute of an element with every other: 30,000 of them take it 6 s.
std::optional<QString> objectionTo(QStringView document);

} // namespace platform
