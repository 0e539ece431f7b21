// What a screenshot costs: a whole screen of text taken from the X server, then made a PNG.
#include "platform/linux/x11/XCompositeScreenCapture.h"

#include <QApplication>
#include <QBuffer>
#include <QPainter>
#include <QRandomGenerator>
#include <QScreen>
#include <QTest>
#include <QWidget>
#include <benchmark/benchmark.h>

namespace {

/// Fills itself with words, each time the same.
class Page final : public QWidget {
protected:
    void paintEvent(QPaintEvent*) override {
        QRandomGenerator random(7);
        QPainter painter(this);
        painter.fillRect(rect(), Qt::white);
        const int line = fontMetrics().height();
        for (int y = line; y < height(); y += line) {
            QString words;
            while (fontMetrics().horizontalAdvance(words) < width()) {
                for (int letters = random.bounded(2, 9); letters > 0; --letters) {
                    words += QChar(random.bounded(u'a', u'z' + 1));
                }
                words += u' ';
            }
            painter.drawText(0, y, words);
        }
    }
};

QImage taken() {
    return platform::XCompositeScreenCapture().pictureBelow(0);
}

QByteArray encoded(const QImage& picture) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "PNG");
    return bytes;
}

void takePicture(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(taken());
    }
}

void encodePicture(benchmark::State& state) {
    const QImage picture = taken();
    qsizetype size = 0;
    for (auto _ : state) {
        size = encoded(picture).size();
    }
    state.counters["pixels"] = double(picture.width()) * picture.height();
    state.counters["bytes"] = double(size);
}

BENCHMARK(takePicture)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(encodePicture)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    Page page;
    page.setWindowFlag(Qt::X11BypassWindowManagerHint);
    page.setGeometry(QGuiApplication::primaryScreen()->geometry());
    page.show();
    if (!QTest::qWaitForWindowExposed(&page)) {
        return 1;
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
