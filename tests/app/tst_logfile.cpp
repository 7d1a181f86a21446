// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "logcapture.h"
#include "logfile.h"
#include "version.h"

#include <QTemporaryDir>
#include <QtTest>

#include <memory>

class LogFileTest : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void everyLineBearsItsTime();
    void theFirstLineNamesVersionAndSystem();
    void aLineIsInTheFileAtOnce();
    void umlautsAndOtherScriptsStay();
    void anotherRunIsAppended();
    void whoHadTheLogStillGetsIt();
    void theLogEndsWithTheObject();
    void withoutAPathNothingIsWritten();
    void anUnwritableFileIsTold();

private:
    /// The lines of the file, without their ends.
    QStringList lines() const;

    std::unique_ptr<QTemporaryDir> folder;
    QString path;
};

void LogFileTest::init()
{
    folder = std::make_unique<QTemporaryDir>();
    path = folder->filePath("debug.log");
}

QStringList LogFileTest::lines() const
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        return {};
    }
    return QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
}

void LogFileTest::everyLineBearsItsTime()
{
    const LogCapture quiet;
    const QDateTime before = QDateTime::currentDateTime();
    {
        const LogFile log(path);
        QCOMPARE(log.problem(), QString());
        qDebug("Sending");
        qWarning("no such slot");
    }
    QCOMPARE(lines().size(), 3);
    QCOMPARE(lines().at(1).mid(24), QString("Sending"));
    QCOMPARE(lines().at(2).mid(24), QString("no such slot"));
    const QDateTime written = QDateTime::fromString(lines().at(2).left(23), Qt::ISODateWithMs);
    QVERIFY2(written >= before && written <= QDateTime::currentDateTime(),
             qPrintable(lines().at(2)));
}

void LogFileTest::theFirstLineNamesVersionAndSystem()
{
    const LogFile log(path);
    const QString first = lines().value(0).mid(24);
    QVERIFY2(first.startsWith(QString("TAL-VERO Connect ") + TalVero::version), qPrintable(first));
    QVERIFY2(first.endsWith(" on " + QSysInfo::prettyProductName()), qPrintable(first));
}

void LogFileTest::aLineIsInTheFileAtOnce()
{
    const LogCapture quiet;
    const LogFile log(path);
    qDebug("just before the crash");
    QVERIFY(lines().last().endsWith("just before the crash"));
}

void LogFileTest::umlautsAndOtherScriptsStay()
{
    const LogCapture quiet;
    const LogFile log(path);
    qDebug("%s", "Gerät · 測深");
    QVERIFY(lines().last().endsWith("Gerät · 測深"));
}

void LogFileTest::anotherRunIsAppended()
{
    const LogCapture quiet;
    for (const char *run : {"first run", "second run"}) {
        const LogFile log(path);
        qDebug("%s", run);
    }
    QCOMPARE(lines().size(), 4);
    QVERIFY(lines().at(1).endsWith("first run"));
    QVERIFY(lines().at(3).endsWith("second run"));
}

void LogFileTest::whoHadTheLogStillGetsIt()
{
    const LogCapture capture;
    const LogFile log(path);
    qDebug("Sending");
    QCOMPARE(capture.lines(), QStringList{"Sending"});
}

void LogFileTest::theLogEndsWithTheObject()
{
    const LogCapture capture;
    {
        const LogFile log(path);
    }
    qDebug("too late");
    QCOMPARE(capture.lines(), QStringList{"too late"});
    QCOMPARE(lines().size(), 1);
}

void LogFileTest::withoutAPathNothingIsWritten()
{
    const LogCapture capture;
    const LogFile log{QString()};
    qDebug("Sending");
    QCOMPARE(log.problem(), QString());
    QCOMPARE(capture.lines(), QStringList{"Sending"});
    QVERIFY(QDir(folder->path()).isEmpty());
}

void LogFileTest::anUnwritableFileIsTold()
{
    const LogCapture capture;
    const QString missing = folder->filePath("no such folder/debug.log");
    const LogFile log(missing);
    qDebug("goes on");
    const QString start =
        "The log cannot be written to " + QDir::toNativeSeparators(missing) + ": ";
    QVERIFY2(log.problem().startsWith(start), qPrintable(log.problem()));
    QVERIFY2(log.problem().size() > start.size(), "the reason is missing");
    QCOMPARE(capture.lines(), QStringList{"goes on"});
}

QTEST_GUILESS_MAIN(LogFileTest)

#include "tst_logfile.moc"
