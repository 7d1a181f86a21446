// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// The program tal-vero-sounder as somebody starts it.

#include "computer.h"
#include "rawpty.h"
#include "symlink.h"
#include "transcriptfile.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>

namespace {

const QByteArray banner = QByteArrayLiteral("TalVero New Dual 2.14.7\r\n");

/// A started program. It is stopped at the end in any case.
class Program
{
public:
    explicit Program(const QStringList &arguments)
    {
        process.start(QStringLiteral(SOUNDER_PROGRAM), arguments);
    }

    ~Program()
    {
        process.kill();
        process.waitForFinished();
    }

    Program(const Program &) = delete;
    Program &operator=(const Program &) = delete;

    bool hasEnded() const { return process.state() == QProcess::NotRunning; }
    int exitCode() const { return process.exitCode(); }
    bool hasCrashed() const { return process.exitStatus() != QProcess::NormalExit; }
    bool hasSpoken() { return process.canReadLine() || hasEnded(); }
    QString firstLine() { return QString::fromLocal8Bit(process.readLine()).trimmed(); }
    QString errors()
    {
        complaints += QString::fromLocal8Bit(process.readAllStandardError());
        return complaints;
    }
    void signal(int number) const { ::kill(static_cast<pid_t>(process.processId()), number); }

private:
    QProcess process;
    QString complaints;
};

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestSounderProgram : public QObject
{
    Q_OBJECT

private slots:
    void printsItsPortFirstAndAnswersThere();
    void endsCleanlyOnASignal_data();
    void endsCleanlyOnASignal();
    void linkLeadsToThePort();
    void linkReplacesAStaleOne();
    void linkDoesNotReplaceAFile();
    void linkThatIsNoLongerOursStays();
    void transcriptLogsBothDirections();
    void transcriptOfGarbage();
    void transcriptThatCannotBeWritten();
    void memoryFileIsReadAtTheNextStart();
    void brokenMemoryFileIsReported();
    void wrongUsageExitsWith2();
    void noSuchPortExitsWith1();
    void servesASerialPort();
    void hangUpEndsIt();

private:
    QTemporaryDir folder;
};

void TestSounderProgram::printsItsPortFirstAndAnswersThere()
{
    Program program({"--no-soundings"});
    QTRY_VERIFY(program.hasSpoken());
    Computer computer(program.firstLine());
    QVERIFY2(computer.port.isOpen(), qPrintable(computer.port.errorString()));
    computer.send("*n123456");
    QTRY_COMPARE(computer.heard, banner);
}

void TestSounderProgram::endsCleanlyOnASignal_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("SIGTERM") << SIGTERM;
}

void TestSounderProgram::endsCleanlyOnASignal()
{
    QFETCH(int, signal);
    const QString link = folder.filePath(QStringLiteral("signalled"));
    Program program({"--link", link});
    QTRY_VERIFY(program.hasSpoken());
    QVERIFY(QFileInfo(link).isSymLink());
    program.signal(signal);
    QTRY_VERIFY(program.hasEnded());
    QVERIFY(!program.hasCrashed());
    QCOMPARE(program.exitCode(), 0);
    QVERIFY2(!QFileInfo(link).isSymLink(), "the link is left behind");
}

void TestSounderProgram::linkLeadsToThePort()
{
    const QString link = folder.filePath(QStringLiteral("port"));
    Program program({"--link", link});
    QTRY_VERIFY(program.hasSpoken());
    QCOMPARE(QFileInfo(link).symLinkTarget(), program.firstLine());
}

void TestSounderProgram::linkReplacesAStaleOne()
{
    const QString path = folder.filePath(QStringLiteral("stale"));
    QVERIFY(QFile::link(QStringLiteral("/dev/pts/no-more"), path));
    {
        const Symlink link(path, QStringLiteral("/dev/null"));
        QCOMPARE(link.problem(), QString());
        QCOMPARE(QFileInfo(path).symLinkTarget(), QStringLiteral("/dev/null"));
    }
    QVERIFY(!QFileInfo(path).isSymLink());
}

void TestSounderProgram::linkDoesNotReplaceAFile()
{
    const QString path = folder.filePath(QStringLiteral("precious"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("keep me");
    file.close();
    Program program({"--link", path});
    QTRY_VERIFY(program.hasEnded());
    QCOMPARE(program.exitCode(), 1);
    QVERIFY(program.errors().contains(path));
    QCOMPARE(contentOf(path), QByteArray("keep me"));
}

void TestSounderProgram::linkThatIsNoLongerOursStays()
{
    const QString path = folder.filePath(QStringLiteral("shared"));
    {
        const Symlink link(path, QStringLiteral("/dev/null"));
        const Symlink newer(path, QStringLiteral("/dev/zero"));
        QCOMPARE(newer.problem(), QString());
        QFile::remove(path);
        QVERIFY(QFile::link(QStringLiteral("/dev/full"), path));
    }
    QCOMPARE(QFileInfo(path).symLinkTarget(), QStringLiteral("/dev/full"));
}

void TestSounderProgram::transcriptLogsBothDirections()
{
    const QString path = folder.filePath(QStringLiteral("log"));
    Program program({"--no-soundings", "--transcript", path});
    QTRY_VERIFY(program.hasSpoken());
    Computer computer(program.firstLine());
    computer.send("*nasdfd\r\n");
    QTRY_COMPARE(computer.heard, banner);
    const QRegularExpression form(
        QStringLiteral("^\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d\\.\\d{3} < "
                       "\\*nasdfd\\\\x0D\\\\x0A\n"
                       "\\S+ > TalVero New Dual 2\\.14\\.7\\\\x0D\\\\x0A\n$"));
    QTRY_VERIFY2(form.match(QString::fromLatin1(contentOf(path))).hasMatch(),
                 contentOf(path).constData());
}

void TestSounderProgram::transcriptOfGarbage()
{
    const QString path = folder.filePath(QStringLiteral("garbage"));
    {
        TranscriptFile file(path);
        QVERIFY(file.isOpen());
        file.addSent(QByteArray(150, '\x80'));
        file.addSent(QByteArray(100, '\xFF')); // no line end ever
        file.addSent("a\nb\nc");
        file.addReceived("\\");
        file.addSent("left over");
    }
    QByteArrayList texts;
    for (const QByteArray &line : contentOf(path).trimmed().split('\n')) {
        texts << line.mid(line.indexOf(' ') + 1);
    }
    QCOMPARE(texts, (QByteArrayList{"> " + QByteArray("\\x80").repeated(150) +
                                        QByteArray("\\xFF").repeated(100),
                                    "> a\\x0A", "> b\\x0A", "> c", "< \\", "> left over"}));
}

void TestSounderProgram::transcriptThatCannotBeWritten()
{
    Program program({"--transcript", folder.filePath(QStringLiteral("no/such/folder/log"))});
    QTRY_VERIFY(program.hasEnded());
    QCOMPARE(program.exitCode(), 1);
    QVERIFY(program.errors().contains(QStringLiteral("no/such/folder/log")));
}

void TestSounderProgram::memoryFileIsReadAtTheNextStart()
{
    const QString memory = folder.filePath(QStringLiteral("memory"));
    for (const QByteArray &expected : {QByteArray("*i5,"), QByteArray("*i8,")}) {
        Program program({"--no-soundings", "--memory", memory});
        QTRY_VERIFY(program.hasSpoken());
        Computer computer(program.firstLine());
        computer.send("*Gasdfdsasdf*i08....*F345678");
        QTRY_VERIFY(computer.heard.endsWith("OK\r\nOK\r\n"));
        QVERIFY2(computer.heard.startsWith(expected), computer.heard.constData());
    }
}

void TestSounderProgram::brokenMemoryFileIsReported()
{
    const QString memory = folder.filePath(QStringLiteral("broken"));
    QFile file(memory);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("nonsense");
    file.close();
    Program program({"--memory", memory});
    QTRY_VERIFY(program.hasSpoken());
    QVERIFY(!program.hasEnded());
    QTRY_VERIFY(program.errors().contains(memory));
}

void TestSounderProgram::wrongUsageExitsWith2()
{
    Program program({"--format", "SONAR"});
    QTRY_VERIFY(program.hasEnded());
    QCOMPARE(program.exitCode(), 2);
    QVERIFY(program.errors().contains(QStringLiteral("\"SONAR\"")));
    QCOMPARE(program.firstLine(), QString());
}

void TestSounderProgram::noSuchPortExitsWith1()
{
    Program program({"--port", "/dev/no-such-port"});
    QTRY_VERIFY(program.hasEnded());
    QCOMPARE(program.exitCode(), 1);
    QVERIFY(program.errors().contains(QStringLiteral("/dev/no-such-port")));
}

void TestSounderProgram::servesASerialPort()
{
    RawPty cable;
    Program program({"--port", cable.slavePath(), "--no-soundings"});
    QTRY_VERIFY(program.hasSpoken());
    QCOMPARE(program.firstLine(), cable.slavePath());
    cable.write("*n123456");
    QTRY_COMPARE(cable.received(), banner);
    cable.hangUp();
    QTRY_VERIFY(program.hasEnded());
    QCOMPARE(program.exitCode(), 0);
}

void TestSounderProgram::hangUpEndsIt()
{
    Program program({"--fault", "hang-up=0.2"});
    QTRY_VERIFY(program.hasSpoken());
    QTRY_VERIFY(program.hasEnded());
    QCOMPARE(program.exitCode(), 0);
    QVERIFY(program.errors().contains(QStringLiteral("the line is gone")));
}

QTEST_GUILESS_MAIN(TestSounderProgram)
#include "tst_sounderprogram.moc"
