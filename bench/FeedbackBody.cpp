// What a record with a picture of 20 MB costs: time, and peak memory in copies of the picture.
#include "feedback/ErrorText.h"
#include "feedback/FeedbackService.h"
#include "feedback/RecordBody.h"

#include <QCoreApplication>
#include <QFile>
#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>
#include <benchmark/benchmark.h>

#include <malloc.h>

#include <algorithm>
#include <future>

namespace {

constexpr qsizetype pictureSize = 20 * 1024 * 1024;

feedback::FeedbackService::Payload payload() {
    const QString text = QStringLiteral("Hallo");
    return {text, text, text, text, text, text, QByteArray(pictureSize, 'p')};
}

/// Bytes of one line of the kernel's account of this process.
double memory(const char* line) {
    QFile status(QStringLiteral("/proc/self/status"));
    if (status.open(QIODevice::ReadOnly)) {
        for (const QByteArray& entry : status.readAll().split('\n')) {
            if (entry.startsWith(line)) {
                return entry.simplified().split(' ').value(1).toDouble() * 1024;
            }
        }
    }
    return 0;
}

/// Counts how many pictures' worth of memory came on top at the worst moment of a piece of work.
template <typename Work>
void measure(benchmark::State& state, Work work) {
    double most = 0;
    for (auto _ : state) {
        state.PauseTiming();
        QFile peak(QStringLiteral("/proc/self/clear_refs"));
        if (!peak.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || peak.write("5") != 1) {
            state.SkipWithError("the peak cannot be reset");
            break;
        }
        const double before = memory("VmRSS:");
        state.ResumeTiming();
        work();
        state.PauseTiming();
        most = std::max(most, memory("VmHWM:") - before);
        state.ResumeTiming();
    }
    state.counters["copies"] = most / static_cast<double>(pictureSize);
}

void buildMultipart(benchmark::State& state) {
    const auto record = payload();
    const QByteArray boundary = feedback::makeBoundary();
    measure(state, [&] {
        benchmark::DoNotOptimize(feedback::buildMultipart(record, *record.screenshotPNG, boundary));
    });
}

/// The peer: the least that any copy of the picture can take.
void copyPicture(benchmark::State& state) {
    const auto record = payload();
    measure(state, [&] {
        QByteArray copy = *record.screenshotPNG;
        copy.detach();
        benchmark::DoNotOptimize(copy);
    });
}

/// Takes whatever is sent and answers once the end has come.
class Sink : public QThread {
public:
    quint16 port() { return port_.get_future().get(); }

protected:
    void run() override {
        QTcpServer server;
        server.listen(QHostAddress::LocalHost);
        port_.set_value(server.serverPort());
        QObject::connect(&server, &QTcpServer::newConnection, &server, [&server] {
            auto* socket = server.nextPendingConnection();
            QObject::connect(socket, &QTcpSocket::readyRead, socket, [socket] {
                if (socket->readAll().endsWith("--\r\n")) {
                    socket->write("HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\n{\"id\":\"1\"}");
                }
            });
        });
        exec();
    }

private:
    std::promise<quint16> port_;
};

/// Waiting for a task in a nested event loop never ends when the task throws.
QCoro::Task<QString> identifierOrError(const feedback::FeedbackService& service,
                                       const feedback::FeedbackService::Payload& record) {
    QString result;
    try {
        result = co_await service.send(record);
    } catch (const std::exception& error) {
        result = feedback::localizedDescription(error);
    }
    co_return result;
}

void send(benchmark::State& state) {
    Sink sink;
    sink.start();
    const feedback::FeedbackService service(
        QStringLiteral("http://127.0.0.1:%1/records").arg(sink.port()));
    const auto record = payload();
    measure(state, [&] {
        const QString result = QCoro::waitFor(identifierOrError(service, record));
        if (result != QStringLiteral("1")) {
            state.SkipWithError(qPrintable(result));
        }
    });
    sink.quit();
    sink.wait();
}

BENCHMARK(copyPicture)->Unit(benchmark::kMillisecond);
BENCHMARK(buildMultipart)->Unit(benchmark::kMillisecond);
BENCHMARK(send)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

int main(int argc, char** argv) {
    // A large buffer goes back to the system when it is freed; else the next would cost nothing.
    mallopt(M_MMAP_THRESHOLD, 1024 * 1024);
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
