// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "appearance.h"
#include "copyofprogram.h"
#include "dialoghand.h"
#include "logcapture.h"
#include "readybench.h"

#include <QAbstractButton>
#include <QMessageBox>
#include <QTemporaryDir>

namespace {

using BoxHand = DialogHand<QMessageBox>;

constexpr char updaterName[] = "/TAL-VERO Bootloader.exe";

/// Where the updater reports how it was started, beside itself.
constexpr char reportName[] = "/report.txt";

/// Stands in for the updater: writes down how many arguments it got, the arguments, and how many
/// descriptors of the program point at the port that it is told to use. The report appears under
/// its name when it is complete.
constexpr char updaterScript[] =
    "#!/bin/sh\n"
    "here=$(dirname \"$0\")\n"
    "{ echo \"$#\"; echo \"$@\"; ls -l /proc/$TEST_PROGRAM/fd | grep -c -- \"-> $1\\$\"; } "
    "> \"$here/report.part\"\n"
    "mv \"$here/report.part\" \"$here/report.txt\"\n";

bool write(const QString &path, const QByteArray &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() &&
           file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QString appPath(const char *name) { return QCoreApplication::applicationDirPath() + name; }

} // namespace

/// The program with the updater beside it. The updater is looked for in the program's own folder,
/// which other test programs share: so these tests run in a private copy, see main().
class FirmwareUpdateTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { QFile::remove(appPath(reportName)); }

    void theButtonIsOfferedWithMoreRoom();
    void withoutAConnectionItIsRefused();
    void atAnotherRateItIsRefused_data();
    void atAnotherRateItIsRefused();
    void theUpdaterGetsThePortAloneAfterTheLinkWasClosed();
    void aLinkThatIsStillConnectingCounts();
    void theProgramGoesOn();

private:
    /// Clicks the button and returns what the one box that opens says: title, text, icon, buttons.
    static QVariantList refusal(WindowBench &bench);
    static QVariantList expectedRefusal(const char *text);
    static QStringList report();
};

void FirmwareUpdateTest::initTestCase()
{
    giveProgramStyle();
    qputenv("TEST_PROGRAM", QByteArray::number(QCoreApplication::applicationPid()));
    QVERIFY2(QFile::exists(appPath(updaterName)), "these tests must run in their private copy");
}

QVariantList FirmwareUpdateTest::refusal(WindowBench &bench)
{
    QVariantList said;
    const BoxHand hand([&said](QMessageBox &box) {
        said << box.windowTitle() << box.text() << int(box.icon()) << int(box.standardButtons());
        box.button(QMessageBox::Ok)->click();
    });
    bench.click("BootloadButton");
    return said;
}

QVariantList FirmwareUpdateTest::expectedRefusal(const char *text)
{
    return {"Firmware update", text, int(QMessageBox::Information), int(QMessageBox::Ok)};
}

/// The lines of the updater's report, once it is there; none if the updater was not started.
QStringList FirmwareUpdateTest::report()
{
    if (!QTest::qWaitFor([] { return QFile::exists(appPath(reportName)); }, 10000)) {
        return {};
    }
    QFile file(appPath(reportName));
    return file.open(QIODevice::ReadOnly)
               ? QString::fromLocal8Bit(file.readAll()).split('\n', Qt::SkipEmptyParts)
               : QStringList();
}

void FirmwareUpdateTest::theButtonIsOfferedWithMoreRoom()
{
    WindowBench bench;
    QVERIFY(bench.find<QWidget>("BootloadButton")->isVisible());
    QCOMPARE(bench.find<QWidget>("widget_41")->minimumSize(), QSize(0, 80));
}

void FirmwareUpdateTest::withoutAConnectionItIsRefused()
{
    WindowBench bench;
    QVERIFY2(bench.isEnabled("BootloadButton"), "the button could not tell what is missing");
    bench.choose("baudComboBox", "19200"); // not the rate, the missing connection is told
    LogCapture log;
    QCOMPARE(refusal(bench),
             expectedRefusal("Connect to the TAL-VERO before updating the firmware."));
    QVERIFY(!log.contains("Starting Process"));
}

void FirmwareUpdateTest::atAnotherRateItIsRefused_data()
{
    QTest::addColumn<int>("rate");
    QTest::newRow("4800") << 4800;
    QTest::newRow("19200") << 19200;
    QTest::newRow("115200") << 115200;
}

void FirmwareUpdateTest::atAnotherRateItIsRefused()
{
    QFETCH(int, rate);
    SounderOptions options = ReadyBench::quickSounder();
    options.rate = rate;
    ReadyBench bench(false, {}, options);
    LogCapture log;
    QCOMPARE(refusal(bench),
             expectedRefusal("Set the TAL-VERO baud rate to 9600 before updating the firmware."));
    QVERIFY(!log.contains("Starting Process"));
    QVERIFY2(bench.showsConnected(), "the refused update has closed the link");
    QVERIFY(bench.holdsPort());
}

void FirmwareUpdateTest::theUpdaterGetsThePortAloneAfterTheLinkWasClosed()
{
    ReadyBench bench;
    QVERIFY(bench.holdsPort());
    LogCapture log;
    bench.click("BootloadButton");
    const QString port = bench.sounder.portPath();
    QVERIFY2(log.contains("Starting Process \"" + appPath(updaterName) + "\" \"" + port + '"'),
             qPrintable(log.lines().join('\n')));
    QVERIFY(!bench.showsConnected());
    QVERIFY(!bench.holdsPort());
    QCOMPARE(bench.text("connectToDevice"), QString("Connect   "));
    const QString ownerAlone = "1"; // the simulated sounder itself
    QCOMPARE(report(), (QStringList{"1", port, ownerAlone}));
}

/// What counts is what the connect button shows, not whether the sounder has answered.
void FirmwareUpdateTest::aLinkThatIsStillConnectingCounts()
{
    WindowBench bench(ReadyBench::quickSounder());
    bench.device().setFault("silent", 1);
    bench.pressConnect("9600");
    QCOMPARE(bench.text("connectToDevice"), QString("Disconnect"));
    bench.click("BootloadButton");
    QCOMPARE(report().value(1), bench.sounder.portPath());
    QCOMPARE(bench.text("connectToDevice"), QString("Connect   "));
}

void FirmwareUpdateTest::theProgramGoesOn()
{
    ReadyBench bench;
    bench.click("BootloadButton");
    QVERIFY(!report().isEmpty());
    bench.reconnect();
    bench.click("highPulseUp");
    QCOMPARE(bench.takeCommands(), QByteArrayList{"*p17...H"});
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    if (!QFile::exists(appPath(updaterName))) {
        const QTemporaryDir folder;
        return runCopyIn(folder.path(),
                         [&folder] { return write(folder.path() + updaterName, updaterScript); });
    }
    FirmwareUpdateTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_firmwareupdate.moc"
