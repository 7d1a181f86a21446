// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "fuzztargets.h"
#include "receivebuffer.h"

namespace {

/// The receive buffer as one would write it without a thought of what it costs.
class PlainBuffer
{
public:
    void append(const QByteArray &received) { bytes += received; }

    std::optional<QString> takeLine(const char *pattern)
    {
        const int end = bytes.indexOf(pattern);
        if (end <= 0) {
            return std::nullopt;
        }
        QByteArray line = bytes.left(end);
        bytes.remove(0, end + static_cast<int>(qstrlen(pattern)));
        while (line.startsWith('\r') || line.startsWith('\n')) {
            line.remove(0, 1);
        }
        return latin1(line);
    }

    int size() const { return bytes.size(); }
    void clear() { bytes.clear(); }

private:
    QByteArray bytes;
};

} // namespace

/// Bytes come in pieces, and lines are asked for in any order. The first byte of each piece says
/// how long it is, the second what is asked for afterwards.
void fuzzReceiveBuffer(const QByteArray &input)
{
    constexpr const char *patterns[] = {"\r\n", "\r", "\n"}; // as ReceiveBuffer::LineEnd
    constexpr int mostAtOnce = 64;
    constexpr int clearing = 255;
    FuzzInput from(input);
    ReceiveBuffer buffer;
    PlainBuffer plain;
    qint64 received = 0;
    qint64 questions = 0;
    while (!from.isEmpty()) {
        const int length = from.byte() % mostAtOnce;
        int wish = from.byte();
        const QByteArray piece = from.take(length);
        received += piece.size();
        buffer.append(piece);
        plain.append(piece);
        if (wish == clearing) {
            buffer.clear();
            plain.clear();
        }
        for (; wish > 0; wish /= 4) { // in base 4, the kinds of line end, and 3 for none
            if (wish % 4 < 3) {
                const auto kind = static_cast<ReceiveBuffer::LineEnd>(wish % 4);
                FUZZ_REQUIRE(buffer.takeLine(kind) == plain.takeLine(patterns[kind]));
                ++questions;
            }
        }
        FUZZ_REQUIRE(buffer.size() == plain.size());
    }
    FUZZ_REQUIRE(buffer.workDone() <= 8 * received + 2 * questions);
}
