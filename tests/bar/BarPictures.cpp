/// bar_pictures FOLDER: writes pictures of the bar and the heading picker, light and dark, at the
/// scale that QT_SCALE_FACTOR gives.
#include "bar/FormattingBarController.h"
#include "fakes/FakePlatform.h"
#include "platform/qt/DrawnSymbols.h"

#include <QApplication>
#include <QPainter>
#include <QTest>
#include <QWindow>

namespace {

QPalette darkPalette() {
    QPalette palette(QColor(0x2b2b2e));
    palette.setColor(QPalette::WindowText, QColor(0xf2f2f4));
    palette.setColor(QPalette::Text, QColor(0xf2f2f4));
    palette.setColor(QPalette::Base, QColor(0x1e1e20));
    palette.setColor(QPalette::Highlight, QColor(0x3b95ff));
    return palette;
}

QWidget& topLevel(const QString& name) {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == name) {
            return *widget;
        }
    }
    qFatal("no window %s", qPrintable(name));
}

void moveTo(QWidget& window, const QString& name) {
    const auto* widget = window.findChild<QWidget*>(name);
    QTest::mouseMove(window.windowHandle(), {1, 1});
    QTest::mouseMove(window.windowHandle(), widget->mapTo(&window, widget->rect().center()));
}

/// The windows as they stand to one another, over a page of text.
void save(const QPalette& palette, const QString& path, fakes::FakeWindowServer& server) {
    auto& bar = topLevel(QStringLiteral("bar"));
    auto& picker = topLevel(QStringLiteral("textformat.size.popover"));
    const double ratio = bar.devicePixelRatioF();
    QImage page(QSize(720, 240) * ratio, QImage::Format_ARGB32_Premultiplied);
    page.setDevicePixelRatio(ratio);
    page.fill(palette.color(QPalette::Base));
    QPainter painter(&page);
    painter.setPen(palette.color(QPalette::Text));
    for (int line = 0; line < 11; ++line) {
        painter.drawText(16, 22 + line * 21,
                         QStringLiteral("The quick brown fox jumps over the lazy dog, and every "
                                        "line of this page runs below the bar and its picker."));
    }
    const platform::Rect origin = server.frame(bar);
    for (QWidget* window : {&bar, &picker}) {
        const platform::Rect frame = server.frame(*window);
        QImage picture(window->size() * ratio, QImage::Format_ARGB32_Premultiplied);
        picture.setDevicePixelRatio(ratio);
        picture.fill(Qt::transparent);
        window->render(&picture, QPoint(), QRegion(), QWidget::DrawChildren);
        painter.drawImage(QPointF(30 + frame.x - origin.x, 20 + origin.maxY() - frame.maxY()),
                          picture);
    }
    painter.end();
    page.save(path);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    fakes::FakePlatform fake;
    fake.platform.symbols = std::make_unique<platform::DrawnSymbols>();

    bar::FormattingBarController controller;
    const platform::Rect selection{400, 500, 80, 18};
    controller.show(selection);
    controller.show(selection);
    auto& window = topLevel(QStringLiteral("bar"));
    QTest::mouseClick(window.findChild<QWidget*>(QStringLiteral("textformat.size")),
                      Qt::LeftButton);
    QApplication::processEvents();

    const QString folder = QString::fromLocal8Bit(argv[1]);
    const QString scale = QString::number(window.devicePixelRatioF());
    moveTo(topLevel(QStringLiteral("textformat.size.popover")), QStringLiteral("Heading"));
    save(application.palette(), folder + QStringLiteral("/light@%1.png").arg(scale),
         fake.windowServer);
    QApplication::setPalette(darkPalette());
    moveTo(window, QStringLiteral("link"));
    save(application.palette(), folder + QStringLiteral("/dark@%1.png").arg(scale),
         fake.windowServer);
    return 0;
}
