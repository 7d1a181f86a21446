// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// Programs come and go at a sounder's port, and not all of them read.

#include "computer.h"
#include "ptysounder.h"

#include <QProcess>
#include <QSignalSpy>
#include <QtTest>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

const QByteArray banner = QByteArrayLiteral("TalVero New Dual 2.14.7\r\n");

SounderOptions quiet()
{
    SounderOptions options;
    options.soundings = false;
    return options;
}

/// A terminal that somebody has open and never reads.
class SleepyReader
{
public:
    explicit SleepyReader(const QString &path)
        : descriptor(::open(path.toLocal8Bit().constData(), O_RDWR | O_NOCTTY | O_NONBLOCK))
    {}
    ~SleepyReader() { leave(); }
    SleepyReader(const SleepyReader &) = delete;
    SleepyReader &operator=(const SleepyReader &) = delete;

    void send(const QByteArray &bytes) const
    {
        QCOMPARE(::write(descriptor, bytes.constData(), size_t(bytes.size())), bytes.size());
    }

    int unread() const
    {
        int count = -1;
        ioctl(descriptor, FIONREAD, &count);
        return count;
    }

    QByteArray wakeUp() const
    {
        QByteArray bytes(65536, '\0');
        return bytes.left(int(::read(descriptor, bytes.data(), size_t(bytes.size()))));
    }

    /// Whether the terminal is claimed by somebody for himself.
    bool isClaimed() const
    {
        int claimed = -1;
        ioctl(descriptor, TIOCGEXCL, &claimed);
        return claimed != 0;
    }

    void leave()
    {
        if (descriptor >= 0) {
            ::close(descriptor);
            descriptor = -1;
        }
    }

private:
    int descriptor;
};

} // namespace

class TestPtyOpeners : public QObject
{
    Q_OBJECT

private slots:
    void closingThePortIsNoHangUp();
    void admitsTheNextAfterOneThatDied();
    void twoProgramsAtATime();
    void speaksToNobodyWithoutAHeap();
    void leavesNothingForTheNextOpener();
    void waitsForAReaderThatIsBehind();
};

void TestPtyOpeners::closingThePortIsNoHangUp()
{
    PtySounder sounder(quiet());
    for (int i = 0; i < 5; ++i) {
        Computer computer(sounder.portPath());
        QVERIFY2(computer.port.isOpen(), qPrintable(computer.port.errorString()));
        computer.send("*n123456");
        QTRY_COMPARE(computer.heard, banner);
    }
    QVERIFY(sounder.isOpen());
}

void TestPtyOpeners::admitsTheNextAfterOneThatDied()
{
    PtySounder sounder(quiet());
    QProcess claimer;
    claimer.start(QStringLiteral(PORT_CLAIMER), {sounder.portPath()});
    QTRY_COMPARE(claimer.state(), QProcess::NotRunning);
    QCOMPARE(claimer.exitStatus(), QProcess::NormalExit);
    QCOMPARE(claimer.exitCode(), 0);

    // Root may open a claimed terminal all the same, so we look at the claim itself.
    const SleepyReader looker(sounder.portPath());
    QTRY_VERIFY2(!looker.isClaimed(), "the dead program's claim keeps everybody else out");
    Computer computer(sounder.portPath());
    QVERIFY2(computer.port.isOpen(), qPrintable(computer.port.errorString()));
    computer.send("*n123456");
    QTRY_COMPARE(computer.heard, banner);
}

void TestPtyOpeners::twoProgramsAtATime()
{
    PtySounder sounder(quiet());
    Computer computer(sounder.portPath());
    computer.send("*n123456");
    QTRY_COMPARE(computer.heard, banner);
    {
        const SleepyReader other(sounder.portPath());
        QTRY_VERIFY(!other.isClaimed());
        computer.send("*n123456");
        QTRY_VERIFY(sounder.model().counts().value(QStringLiteral("identity")) == 2);
    }
    computer.heard.clear();
    computer.send("*UUasdfdsa");
    QTRY_VERIFY2(computer.heard.contains("UID : "),
                 "the second program's leaving has cut off the first");
}

void TestPtyOpeners::speaksToNobodyWithoutAHeap()
{
    SounderOptions options;
    options.format = Odom;
    PtySounder sounder(options);
    sounder.model().settings().pings = 10;
    QSignalSpy sent(&sounder, &SounderLine::bytesSent);
    int pings = 0;
    sounder.model().setDepthSource([&pings](double) {
        ++pings;
        return DepthPair{5.0, 6.0};
    });
    QTRY_VERIFY(pings >= 5);
    QCOMPARE(sent.size(), 0);

    const SleepyReader reader(sounder.portPath());
    QTRY_VERIFY(reader.unread() > 0);
    QVERIFY2(reader.unread() < 25, "soundings have piled up for the first opener");
}

void TestPtyOpeners::leavesNothingForTheNextOpener()
{
    PtySounder sounder(quiet());
    {
        const SleepyReader reader(sounder.portPath());
        reader.send("*n123456");
        QTRY_COMPARE(reader.unread(), banner.size());
    }
    const SleepyReader next(sounder.portPath());
    QTRY_COMPARE(next.unread(), 0);
    next.send("*UUasdfdsa");
    QTRY_COMPARE(next.unread(), 24);
    QCOMPARE(next.wakeUp(), QByteArray("UID : 4A5B6C7D8E9F0011\r\n"));
}

void TestPtyOpeners::waitsForAReaderThatIsBehind()
{
    constexpr int requests = 20;
    SounderOptions options = quiet();
    options.pace = false;
    PtySounder sounder(options);
    QSignalSpy commands(&sounder, &SounderLine::commandReceived);
    const SleepyReader reader(sounder.portPath());
    reader.send(QByteArray("*Gasdfds").repeated(requests));
    QTRY_COMPARE(commands.size(), requests);
    QTRY_VERIFY(reader.unread() > 1024);
    QByteArray heard;
    for (int round = 0; round < requests; ++round) {
        QVERIFY2(reader.unread() < 1200, "bytes are heaped on a reader that does not read");
        heard += reader.wakeUp();
        const int target = 3 * requests;
        if (heard.count("\r\n") == target) {
            break;
        }
        QTRY_VERIFY(reader.unread() > 0);
    }
    const QByteArray reply =
        settingsReply(sounder.model().settings(), SounderFit::Dual).join("\r\n") + "\r\n";
    QTRY_VERIFY((heard += reader.wakeUp()).size() >= reply.size() * requests);
    QCOMPARE(heard, reply.repeated(requests));
}

QTEST_GUILESS_MAIN(TestPtyOpeners)
#include "tst_ptyopeners.moc"
