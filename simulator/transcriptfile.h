// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef TRANSCRIPTFILE_H
#define TRANSCRIPTFILE_H

#include <QByteArray>
#include <QFile>

/// A log of the traffic as text: a line of the file for each command or line of the wire, with the
/// time and "<" for received or ">" for sent. Bytes that do not print are written as "\\x0D".
class TranscriptFile
{
public:
    /// Appends to the file if there is one.
    explicit TranscriptFile(const QString &path);

    /// Writes what has not ended in a line yet.
    ~TranscriptFile();

    TranscriptFile(const TranscriptFile &) = delete;
    TranscriptFile &operator=(const TranscriptFile &) = delete;

    bool isOpen() const { return file.isOpen(); }
    QString errorText() const { return file.errorString(); }

    void addReceived(const QByteArray &bytes);

    /// What is sent comes in pieces; they are put together up to their line feed.
    void addSent(const QByteArray &bytes);

private:
    void flushSent();
    void write(char direction, const QByteArray &bytes);

    QFile file;
    QByteArray sent;
};

#endif // TRANSCRIPTFILE_H
