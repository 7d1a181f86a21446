// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef FUZZTARGETS_H
#define FUZZTARGETS_H

#include <QByteArray>
#include <QString>

#include <cstdio>
#include <cstdlib>
#include <vector>

/// What any bytes may be given to. A target ends the program (see FUZZ_REQUIRE) where the bytes
/// lead to something that must never be.
struct FuzzTarget
{
    const char *name;
    void (*run)(const QByteArray &input);
};

/// All of them, and at the end "canary", which must never be given the word "fail": by it the
/// programs are seen to find something.
const std::vector<FuzzTarget> &fuzzTargets();

/// The target of this name, null if there is none.
const FuzzTarget *findFuzzTarget(const QByteArray &name);

/// To be called once before any target: makes the application that widgets need, and quiet.
void prepareFuzzing(int &argc, char **argv);

void fuzzReceiveBuffer(const QByteArray &input);
void fuzzLines(const QByteArray &input);
void fuzzDepthSentence(const QByteArray &input);
void fuzzSettingsReply(const QByteArray &input);
void fuzzSettingsReport(const QByteArray &input);
void fuzzCommands(const QByteArray &input);
void fuzzCommandReader(const QByteArray &input);

/// What must hold whatever the input is.
#define FUZZ_REQUIRE(condition)                                                                    \
    do {                                                                                           \
        if (!(condition)) {                                                                        \
            std::fprintf(stderr, "%s:%d: not so: %s\n", __FILE__, __LINE__, #condition);           \
            std::abort();                                                                          \
        }                                                                                          \
    } while (false)

/// A character for each byte, zeros too, at which Qt's own function for byte arrays would end.
inline QString latin1(const QByteArray &bytes)
{
    return QString::fromLatin1(bytes.constData(), bytes.size());
}

/// Bytes taken from the front of an input; when none are left, zeros.
class FuzzInput
{
public:
    explicit FuzzInput(const QByteArray &input)
        : bytes(input)
    {}

    bool isEmpty() const { return at >= bytes.size(); }

    int byte() { return isEmpty() ? 0 : static_cast<unsigned char>(bytes.at(at++)); }

    QByteArray take(int count)
    {
        const QByteArray taken = bytes.mid(at, count);
        at += taken.size();
        return taken;
    }

    QByteArray rest() { return take(bytes.size()); }

private:
    QByteArray bytes;
    int at = 0;
};

#endif // FUZZTARGETS_H
