// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef PROTOCOL_H
#define PROTOCOL_H

#include <QString>
#include <QStringList>
#include <QVector>

/// The words that the program and the echo sounder exchange, and how a line is read. The sounder
/// takes commands of eight characters from "*" on; letters after a command's own are filler, and it
/// ignores what follows the eighth character up to the next "*". All functions here are pure.
namespace Protocol {

/// Fixed commands, exactly as they go out.
namespace Command {
constexpr char wakeUp[] = "*nasdfd\r\n";
constexpr char connectProbe[] = "*n1234567*n1234567";
constexpr char keepAlive[] = "*nasdfdsa";
constexpr char settingsReport[] = "*Gasdfdsasdf";
constexpr char identifier[] = "*UUasdfdsa";
constexpr char boardTemperature[] = "*UAbxxxxxx";
constexpr char supplyVoltage[] = "*UAsxxxxxx";
constexpr char disableHighFrequency[] = "*hHHHHHHH";
constexpr char disableLowFrequency[] = "*hLLLLLLL";
constexpr char enableHighFrequency[] = "*bHHHHHHH";
constexpr char enableLowFrequency[] = "*bLLLLLLL";
constexpr char saveSettings[] = "*F345678";
constexpr char factoryReset[] = "*R345678";
} // namespace Command

/// The characters of a line that are worth reading. No sounder sends a line a hundredth as long;
/// noise may hold no line end for megabytes, and every reader goes through all that it is given.
constexpr int readCharacters = 64 * 1024;

/// What a line from the sounder is, in the order in which the kinds are tested.
enum class LineKind {
    IdentityBanner,
    Acknowledgement,
    Refusal,
    SettingsReport,
    Identifier,
    BoardTemperature,
    SupplyVoltage,
    DepthOutput, ///< any other line that holds something
    Empty,
};

/// The kind of a line, by the first of the words it contains (case-sensitive, anywhere in the
/// line): a line that holds both "OK" and "*H" is an acknowledgement and nothing else.
LineKind lineKind(const QString &line);

/// Which transducers a unit carries, as its banner says.
enum class ChannelFit { Unknown, HighOnly, LowOnly, Dual };

/// What an identity banner tells.
struct Banner
{
    bool namesTalVero = false; ///< contains "Talvero" or "TalVero"
    QString firmwareVersion;   ///< empty when the line holds no version number
    ChannelFit fit = ChannelFit::Unknown;
};

/// Reads a banner such as "TalVero New Dual 2.14.7". A banner that names "HF" and "LF" counts as
/// high-frequency only: "HF" is looked for first.
Banner readBanner(const QString &line);

/// The item of a line split at every single blank, counted from 0; empty when there is none.
QString blankSeparatedItem(const QString &line, int index);

/// Which part of the sounder's settings reply a line is.
enum class ReplyKind { None, Common, HighChannel, LowChannel };

/// One setting in a line of the settings reply: its letter, and the text of its value.
struct ReplyPiece
{
    QChar letter;
    QString value;
};

/// The kind of a settings reply line: "*i" marks the common settings, "*H" and "*L" the channels.
ReplyKind replyKind(const QString &line);

/// The comma-separated pieces of a reply line without its first character ("*"). Empty pieces stay.
/// Of more than 1000 pieces (a sounder sends nine at most) the first are given.
QStringList replyPieces(const QString &line);

/// A line of the settings reply, read.
struct SettingsReply
{
    ReplyKind kind = ReplyKind::None;
    QVector<ReplyPiece> pieces;
};

/// The kind of the line and its pieces (as replyPieces() gives them), each as letter and value.
SettingsReply readReply(const QString &line, const QStringList &pieces);

/// A piece as letter and value. In a channel line the setting's letter follows the channel's
/// ("Hg064" is 'g', "064"), in the common line it stands first ("v1500000"). A piece too short to
/// hold a letter has the null character, which names no setting.
ReplyPiece readReplyPiece(const QString &piece, ReplyKind kind);

} // namespace Protocol

#endif // PROTOCOL_H
