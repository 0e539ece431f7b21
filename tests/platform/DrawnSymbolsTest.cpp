#include "platform/qt/DrawnSymbols.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRect>
#include <QRegularExpression>
#include <QSet>
#include <gtest/gtest.h>

#include <limits>
#include <numeric>

using namespace Qt::StringLiterals;
using platform::DrawnSymbols;
using platform::SymbolStyle;
using platform::SymbolWeight;

namespace {

constexpr SymbolWeight weights[] = {SymbolWeight::Regular, SymbolWeight::Medium,
                                    SymbolWeight::Semibold, SymbolWeight::Bold};
constexpr SymbolStyle barStyle{14, SymbolWeight::Medium};

QStringList drawnNames() {
    QStringList names = QDir(QStringLiteral(":/symbols")).entryList();
    names.replaceInStrings(QRegularExpression(QStringLiteral("\\.svg$")), QString());
    return names;
}

std::vector<int> row(const QImage& mask, int y) {
    const uchar* line = mask.constScanLine(y);
    return {line, line + mask.width()};
}

/// The pixels that are covered by more than a half: without the fringes of strokes.
QRect coveredRect(const QImage& mask) {
    QRect covered;
    for (int y = 0; y < mask.height(); ++y) {
        const auto pixels = row(mask, y);
        for (int x = 0; x < mask.width(); ++x) {
            if (pixels[static_cast<std::size_t>(x)] > 255 / 2) {
                covered |= QRect(x, y, 1, 1);
            }
        }
    }
    return covered;
}

} // namespace

TEST(DrawnSymbols, AreAllNamedInTheSourcesAndTheirFamiliesAreComplete) {
    const QStringList names = drawnNames();
    QString sources;
    QDirIterator files(QStringLiteral(QUILLET_SOURCES), {u"*.cpp"_s, u"*.h"_s}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        sources += QString::fromUtf8(file.readAll());
    }
    QSet<QString> families;
    for (const QString& name : names) {
        EXPECT_TRUE(sources.contains(u'"' + name + u'"')) << qPrintable(name);
        families.insert(name.section(u'.', 0, 0));
    }
    const QRegularExpression literal(QStringLiteral("\"([a-z]+)((?:\\.[a-z0-9]+)+)\""));
    for (auto matches = literal.globalMatch(sources); matches.hasNext();) {
        const auto match = matches.next();
        const QString name = match.captured(1) + match.captured(2);
        EXPECT_TRUE(!families.contains(match.captured(1)) || names.contains(name))
            << qPrintable(name);
    }
}

TEST(DrawnSymbols, AreDrawnInsideTheirBoxAtEveryRatioAndWeight) {
    DrawnSymbols symbols;
    for (const QString& name : drawnNames()) {
        for (const double ratio : {1.0, 1.25, 2.0, 3.0}) {
            for (const SymbolWeight weight : weights) {
                SCOPED_TRACE(qPrintable(QStringLiteral("%1 at ratio %2, weight %3")
                                            .arg(name)
                                            .arg(ratio)
                                            .arg(static_cast<int>(weight))));
                const QImage mask = symbols.mask(name, {14, weight}, ratio);
                ASSERT_EQ(mask.format(), QImage::Format_Alpha8);
                EXPECT_EQ(mask.devicePixelRatio(), ratio);
                EXPECT_EQ(mask.height(), std::lround(18 * ratio));
                EXPECT_LE(mask.width(), 24 * ratio);
                const QRect covered = coveredRect(mask);
                EXPECT_GE(covered.width(), 6 * ratio);
                EXPECT_TRUE(mask.rect().adjusted(1, 1, -1, -1).contains(covered));
            }
        }
    }
}

