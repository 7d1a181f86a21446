// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "receivebuffer.h"

#include <algorithm>
#include <string_view>

namespace {

/// In the order of ReceiveBuffer::LineEnd.
constexpr std::string_view patterns[] = {"\r\n", "\r", "\n"};

int patternLength(ReceiveBuffer::LineEnd lineEnd)
{
    return static_cast<int>(patterns[lineEnd].size());
}

/// Memory that an empty buffer may keep for the next arrival.
constexpr int keptCapacity = 64 * 1024;

bool isLineEndByte(char byte) { return byte == '\r' || byte == '\n'; }

} // namespace

int ReceiveBuffer::append(const QByteArray &received)
{
    bytes.append(received);
    if (dropsTheLine) {
        return dropThroughLineEnd(head);
    }
    return size() > mostBytes ? dropThroughLineEnd(head + size() - mostBytes) : 0;
}

std::optional<QString> ReceiveBuffer::takeLine(LineEnd lineEnd)
{
    const int end = find(lineEnd);
    if (end <= head) {
        return std::nullopt;
    }
    int begin = head;
    while (begin < end && isLineEndByte(bytes.at(begin))) {
        ++begin;
    }
    const QString line = QString::fromLatin1(bytes.constData() + begin, end - begin);
    work += end - head;
    head = end + patternLength(lineEnd);
    compact();
    return line;
}

void ReceiveBuffer::clear()
{
    bytes.clear();
    head = 0;
    dropsTheLine = false;
    searches = {};
}

/// Drops what waits before `from` and on through the first byte of a line end. (What such a byte
/// leaves of a pair does not begin a line.)
int ReceiveBuffer::dropThroughLineEnd(int from)
{
    const char *const lineEnd =
        std::find_if(bytes.constData() + from, bytes.constData() + bytes.size(), isLineEndByte);
    const auto end = static_cast<int>(lineEnd - bytes.constData());
    work += end - from;
    dropsTheLine = end == bytes.size();
    const int before = size();
    head = dropsTheLine ? end : end + 1;
    const int dropped = before - size();
    compact();
    return dropped;
}

/// The index into `bytes` of the first such line end from `head` on; -1 when there is none. What
/// was searched before is not searched again.
int ReceiveBuffer::find(LineEnd lineEnd)
{
    Search &search = searches[lineEnd];
    if (!search.found || search.position < head) {
        search = examine(lineEnd, std::max(search.position, head));
    }
    return search.found ? search.position : -1;
}

ReceiveBuffer::Search ReceiveBuffer::examine(LineEnd lineEnd, int from)
{
    const std::string_view all(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    const std::size_t position = all.find(patterns[lineEnd], static_cast<std::size_t>(from));
    if (position != std::string_view::npos) {
        const int found = static_cast<int>(position);
        work += found - from + patternLength(lineEnd);
        return {found, true};
    }
    work += bytes.size() - from;
    // The second half of a pair may be still to come.
    return {std::max(from, static_cast<int>(bytes.size()) - patternLength(lineEnd) + 1), false};
}

/// Gives up what has been taken, once it outweighs what waits: so each byte is moved at most about
/// once, however large the backlog.
void ReceiveBuffer::compact()
{
    if (head < size()) {
        return;
    }
    work += size();
    bytes.remove(0, head);
    for (Search &search : searches) {
        search.found = search.found && search.position >= head;
        search.position = std::max(0, search.position - head);
    }
    head = 0;
    giveBackMemory();
}

/// Only where little of much is used, so that a backlog does not move at each line taken.
void ReceiveBuffer::giveBackMemory()
{
    if (bytes.capacity() > keptCapacity && bytes.size() < bytes.capacity() / 4) {
        work += bytes.size();
        bytes.squeeze();
    }
}
