#include "feedback/OnceReadBody.h"

#include <algorithm>
#include <utility>

namespace feedback {

OnceReadBody::OnceReadBody(QByteArray body)
    : body_(std::move(body)) {
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

qint64 OnceReadBody::readData(char* data, qint64 capacity) {
    if (atEnd()) {
        return -1;
    }
    const qsizetype count = std::min<qsizetype>(capacity, body_.size() - read_);
    std::copy_n(body_.constData() + read_, count, data);
    read_ += count;
    return count;
}

} // namespace feedback
