// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "logfile.h"

#include "version.h"

#include <QDateTime>
#include <QDir>
#include <QMutexLocker>
#include <QSysInfo>

LogFile::LogFile(const QString &path)
    : file(path)
{
    if (path.isEmpty()) {
        return;
    }
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text)) {
        trouble = QStringLiteral("The log cannot be written to %1: %2")
                      .arg(QDir::toNativeSeparators(path), file.errorString());
        return;
    }
    write(QStringLiteral("TAL-VERO Connect %1 on %2")
              .arg(QLatin1String(TalVero::version), QSysInfo::prettyProductName()));
    current = this;
    previous = qInstallMessageHandler(take);
}

LogFile::~LogFile()
{
    if (current == this) {
        qInstallMessageHandler(previous);
        current = nullptr;
    }
}

void LogFile::take(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    LogFile *const log = current;
    log->write(message);
    log->previous(type, context, message);
}

/// Each line reaches the disk at once: a program that has crashed is asked for its last one.
void LogFile::write(const QString &message)
{
    const QMutexLocker lock(&mutex);
    const QString time =
        QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss.zzz"));
    file.write((time + QLatin1Char(' ') + message + QLatin1Char('\n')).toUtf8());
    file.flush();
}
