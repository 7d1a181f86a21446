// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef LOGFILE_H
#define LOGFILE_H

#include <QFile>
#include <QMutex>
#include <QString>

/// For as long as it lives, appends the debug log to a file, each line with its time: a windowed
/// program on Windows shows it nowhere else. What had the log before still gets it. There is one at
/// a time.
class LogFile
{
public:
    /// Begins with a line that names the program's version and the system. An empty path makes no
    /// file.
    explicit LogFile(const QString &path);
    ~LogFile();

    LogFile(const LogFile &) = delete;
    LogFile &operator=(const LogFile &) = delete;

    /// Why the file cannot be written, in the operator's words; empty if it can, or if none is
    /// wanted.
    const QString &problem() const { return trouble; }

private:
    static void take(QtMsgType type, const QMessageLogContext &context, const QString &message);
    void write(const QString &message);

    inline static LogFile *current = nullptr;

    QFile file;
    QMutex mutex;
    QtMessageHandler previous = nullptr;
    QString trouble;
};

#endif // LOGFILE_H
