#include "gallery/Exhibit.h"

#include "fakes/FakePlatform.h"
#include "platform/qt/DrawnSymbols.h"

#include <QAbstractAnimation>
#include <QApplication>
#include <QPainter>

namespace gallery {

namespace {

constexpr int pageMargin = 28;
constexpr int lineHeight = 21;

/// An application's picture: its initial on a colour of its own.
struct InitialIcons final : platform::ApplicationIcons {
    QImage picture(const platform::IconReference& icon, int side, double ratio) override {
        const int pixels = qRound(side * ratio);
        QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        image.setDevicePixelRatio(ratio);
        const QString name = icon.nameOrPath.section(QLatin1Char('/'), -1);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor::fromHsv(name.at(0).unicode() * 47 % 360, 150, 190));
        painter.drawRoundedRect(QRectF(1, 1, side - 2, side - 2), 5, 5);
        QFont font;
        font.setPixelSize(side / 2);
        painter.setFont(font);
        painter.setPen(Qt::white);
        painter.drawText(QRect(0, 0, side, side), Qt::AlignCenter, name.left(1));
        return image;
    }
};

QPalette darkPalette() {
    QPalette palette(QColor(0x2b2b2e));
    palette.setColor(QPalette::WindowText, QColor(0xf2f2f4));
    palette.setColor(QPalette::Text, QColor(0xf2f2f4));
    palette.setColor(QPalette::Base, QColor(0x1e1e20));
    palette.setColor(QPalette::Highlight, QColor(0x3b95ff));
    return palette;
}

/// What is on its way arrives: layouts, pictures fetched one by one, movements.
void comeToRest(const Exhibit& exhibit) {
    constexpr int rounds = 40;
    for (int round = 0; round < rounds; ++round) {
        QApplication::processEvents();
        for (QWidget* window : exhibit.windows) {
            for (auto* animation : window->findChildren<QAbstractAnimation*>()) {
                animation->setCurrentTime(animation->totalDuration());
            }
        }
    }
}

void drawPage(QPainter& painter, const QRect& page) {
    const QPalette palette = QApplication::palette();
    painter.fillRect(page, palette.color(QPalette::Base));
    painter.setPen(palette.color(QPalette::Text));
    QFont font;
    font.setPixelSize(14);
    painter.setFont(font);
    const QString line =
        QStringLiteral("The quick brown fox jumps over the lazy dog. ").repeated(4);
    for (int top = 8; top < page.height(); top += lineHeight) {
        painter.drawText(QRect(page.left() + 10, page.top() + top, page.width() - 20, lineHeight),
                         Qt::AlignLeft | Qt::TextSingleLine, line);
    }
}

} // namespace

std::unique_ptr<fakes::FakePlatform> makeRooms() {
    auto rooms = std::make_unique<fakes::FakePlatform>();
    rooms->platform.symbols = std::make_unique<platform::DrawnSymbols>();
    rooms->platform.applicationIcons = std::make_unique<InitialIcons>();
    // The fakes count from the top of the real screen downwards.
    const platform::Rect screen{0, -1000, 1600, 1000};
    rooms->screens.all = {{screen, screen}};
    rooms->screens.main = rooms->screens.all.front();
    QApplication::setCursorFlashTime(0);
    return rooms;
}

void setAppearance(Appearance appearance) {
    static const QPalette light = QApplication::palette();
    QApplication::setPalette(appearance == Appearance::Dark ? darkPalette() : light);
}

QImage picture(const Exhibit& exhibit) {
    comeToRest(exhibit);
    QRect whole;
    for (const QWidget* window : exhibit.windows) {
        whole |= window->geometry();
    }
    if (exhibit.ground == Exhibit::Ground::Page) {
        whole.adjust(-pageMargin, -pageMargin, pageMargin, pageMargin);
    }
    const double ratio = exhibit.windows.front()->devicePixelRatioF();
    QImage image(whole.size() * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.translate(-whole.topLeft());
    if (exhibit.ground == Exhibit::Ground::Page) {
        drawPage(painter, whole);
    }
    for (QWidget* window : exhibit.windows) {
        QImage own(window->size() * ratio, QImage::Format_ARGB32_Premultiplied);
        own.setDevicePixelRatio(ratio);
        own.fill(Qt::transparent);
        window->render(&own, QPoint(), QRegion(), QWidget::DrawChildren);
        painter.drawImage(window->geometry().topLeft(), own);
    }
    return image;
}

} // namespace gallery
