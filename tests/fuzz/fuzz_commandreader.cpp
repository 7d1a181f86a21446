// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "commandreader.h"
#include "fuzztargets.h"
#include "soundermodel.h"

namespace {

/// The commands of a stream that arrives in pieces of any length.
QByteArrayList inPieces(const QByteArray &stream, int length)
{
    CommandReader reader;
    QByteArrayList commands;
    for (int at = 0; at < stream.size(); at += length) {
        commands << reader.read(stream.mid(at, length));
    }
    return commands;
}

} // namespace

/// The first byte says which unit it is and how the stream is cut, what follows is the stream.
void fuzzCommandReader(const QByteArray &input)
{
    FuzzInput from(input);
    const int choice = from.byte();
    const QByteArray stream = from.rest();
    const QByteArrayList commands = CommandReader().read(stream);
    for (const QByteArray &command : commands) {
        FUZZ_REQUIRE(command.size() == CommandReader::commandLength);
        FUZZ_REQUIRE(command.lastIndexOf('*') == 0);
        FUZZ_REQUIRE(stream.contains(command));
    }
    FUZZ_REQUIRE(inPieces(stream, 1 + choice % 16) == commands);

    SounderOptions options;
    options.fit = static_cast<SounderFit>(choice / 16 % 3);
    SounderModel model(options);
    constexpr SounderModel::Milliseconds second(1000);
    model.receive(stream, model.lineRate(), second);
    model.transmit(model.lineRate(), 2 * second);
    // Whatever it was told, it holds only what it would take, and can tell it.
    const QByteArrayList reply = settingsReply(model.settings(), options.fit);
    FUZZ_REQUIRE(readSettingsReply(reply, options.fit).has_value());
    FUZZ_REQUIRE(settingsReply(*readSettingsReply(reply, options.fit), options.fit) == reply);
}
