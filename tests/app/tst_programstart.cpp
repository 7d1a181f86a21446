// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// The programs as somebody calls them who has no display: a script, a package's check, a terminal
// on a machine far away.

#include "version.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

struct Program
{
    const char *name;
    const char *path;
};

constexpr Program programs[] = {
    {"tal-vero-connect", CONNECT_PROGRAM},
    {"tal-vero-connect-demo", DEMO_PROGRAM},
    {"tal-vero-sounder", SOUNDER_PROGRAM},
};

/// The environment holds nothing: no display, no platform.
void start(QProcess &process, const QString &path, const QStringList &words)
{
    QProcessEnvironment nothing;
    nothing.insert("LC_ALL", "C.UTF-8"); // an environment without anything would be this one's
    process.setProcessEnvironment(nothing);
    process.start(path, words);
}

/// What a program has said when it ended.
struct Outcome
{
    int exitCode = -1;
    QString output;
    QString errors;
};

Outcome outcomeOf(const QString &path, const QStringList &words)
{
    QProcess process;
    start(process, path, words);
    if (!QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, 20000) ||
        process.exitStatus() != QProcess::NormalExit) {
        return {};
    }
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

void addPrograms()
{
    QTest::addColumn<QString>("path");
    for (const Program &program : programs) {
        QTest::newRow(program.name) << program.path;
    }
}

} // namespace

class TestProgramStart : public QObject
{
    Q_OBJECT

private slots:
    void helpNeedsNoDisplay_data() { addPrograms(); }
    void helpNeedsNoDisplay();
    void versionNeedsNoDisplay_data() { addPrograms(); }
    void versionNeedsNoDisplay();
    void aWrongUseIsRefused_data();
    void aWrongUseIsRefused();
    void aWindowNeedsADisplay();
    void qtsOptionsAndTheLogAreTakenTogether();
};

void TestProgramStart::helpNeedsNoDisplay()
{
    QFETCH(QString, path);
    const Outcome outcome = outcomeOf(path, {"--help"});
    QCOMPARE(outcome.errors, QString());
    QCOMPARE(outcome.exitCode, 0);
    const QString firstLine = outcome.output.section('\n', 0, 0);
    QVERIFY2(firstLine.contains(QTest::currentDataTag()), qPrintable(firstLine));
    QVERIFY2(outcome.output.contains("--version"), qPrintable(outcome.output));
}

void TestProgramStart::versionNeedsNoDisplay()
{
    QFETCH(QString, path);
    const Outcome outcome = outcomeOf(path, {"--version"});
    QCOMPARE(outcome.errors, QString());
    QCOMPARE(outcome.exitCode, 0);
    QCOMPARE(outcome.output,
             QString("%1 %2\n").arg(QTest::currentDataTag(), QLatin1String(TalVero::version)));
}

void TestProgramStart::aWrongUseIsRefused_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("words");
    QTest::newRow("tal-vero-connect: Missing value after '--log'.") << CONNECT_PROGRAM << "--log";
    QTest::newRow("tal-vero-connect-demo: Missing value after '--tour'.")
        << DEMO_PROGRAM << "--tour";
    QTest::newRow("tal-vero-sounder: Unknown option 'frob'.") << SOUNDER_PROGRAM << "--frob";
}

void TestProgramStart::aWrongUseIsRefused()
{
    QFETCH(QString, path);
    QFETCH(QString, words);
    const Outcome outcome = outcomeOf(path, {words});
    QCOMPARE(outcome.exitCode, 2);
    QCOMPARE(outcome.output, QString());
    QVERIFY2(outcome.errors.startsWith(QTest::currentDataTag()), qPrintable(outcome.errors));
}

/// So that the others do not pass because there is a display after all.
void TestProgramStart::aWindowNeedsADisplay()
{
    QProcess process;
    start(process, CONNECT_PROGRAM, {"-platform", "xcb"});
    QTRY_COMPARE_WITH_TIMEOUT(process.state(), QProcess::NotRunning, 20000);
    QCOMPARE(process.exitStatus(), QProcess::CrashExit);
    const QString errors = process.readAllStandardError();
    QVERIFY2(errors.contains("xcb"), qPrintable(errors));
}

void TestProgramStart::qtsOptionsAndTheLogAreTakenTogether()
{
    const QTemporaryDir folder;
    QFile log(folder.filePath("Gerät.log"));
    QProcess process;
    start(process, CONNECT_PROGRAM,
          {"-platform", "offscreen", "-style", "fusion", "--frob", "--log", log.fileName()});
    QTRY_VERIFY_WITH_TIMEOUT(log.size() > 0, 20000);
    QVERIFY(log.open(QIODevice::ReadOnly));
    const QByteArray firstLine = log.readLine();
    QVERIFY2(firstLine.contains(QByteArray("TAL-VERO Connect ") + TalVero::version),
             firstLine.constData());
    QCOMPARE(process.state(), QProcess::Running);
    const QByteArray said = process.readAllStandardError();
    QVERIFY2(said.startsWith("tal-vero-connect: Unknown option 'frob'."), said.constData());
    process.kill();
    QVERIFY(process.waitForFinished());
}

QTEST_GUILESS_MAIN(TestProgramStart)
#include "tst_programstart.moc"
