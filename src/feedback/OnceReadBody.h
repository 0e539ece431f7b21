#pragma once

#include <QByteArray>
#include <QIODevice>

namespace feedback {

/// A request body that can be read once, from start to end. The HTTP client sends a body that it
/// can rewind anew, up to three times, when the server closes the connection without an answer;
/// of this one the server gets one record at most.
class OnceReadBody final : public QIODevice {
public:
    explicit OnceReadBody(QByteArray body);

    bool isSequential() const override { return true; }
    bool atEnd() const override { return read_ == body_.size(); }
    qint64 bytesAvailable() const override { return body_.size() - read_; }
    bool reset() override { return false; }

protected:
    qint64 readData(char* data, qint64 capacity) override;
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    QByteArray body_;
    qsizetype read_ = 0;
};

} // namespace feedback
