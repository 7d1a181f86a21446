// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "hostprogram.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QtTest>

namespace {

constexpr int patienceMs = 30000;

/// Wine shows the machine's files as this drive.
const QLatin1String machine("Z:");

} // namespace

HostProgram::HostProgram(const QString &program, const QStringList &words)
    : folder(asSeenFromWindows(QStringLiteral(HOST_FOLDER "/XXXXXX")))
{
    const QString ownPath = folder.path().mid(machine.size());
    if (!QProcess::startDetached(asSeenFromWindows(QStringLiteral(HOST_KEEPER)),
                                 QStringList{ownPath, program} + words)) {
        qFatal("Wine does not start %s", HOST_KEEPER);
    }
    if (!QTest::qWaitFor([this] { return isRunning(); }, patienceMs)) {
        qFatal("%s does not start", qPrintable(program));
    }
}

HostProgram::~HostProgram() { end(); }

bool HostProgram::end()
{
    QFile process(file("process"));
    if (process.open(QIODevice::ReadOnly)) {
        QProcess::startDetached(asSeenFromWindows(QStringLiteral("/bin/kill")),
                                {QString::fromLatin1(process.readAll().trimmed())});
        process.close();
    }
    return QTest::qWaitFor([this] { return !isRunning(); }, patienceMs);
}

bool HostProgram::saidSomething() const
{
    const QString said = file("said");
    return QTest::qWaitFor([said] { return QFileInfo(said).size() > 0; }, patienceMs);
}

QString HostProgram::asSeenFromWindows(const QString &path) { return machine + path; }

bool HostProgram::isRunning() const { return QFileInfo::exists(file("process")); }
