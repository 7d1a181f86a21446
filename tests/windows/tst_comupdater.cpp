// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// The firmware updater beside the program, in a folder whose path has blanks and umlauts.

#include "appearance.h"
#include "comwindow.h"
#include "copyofprogram.h"

#include <QTemporaryDir>

namespace {

constexpr int portNumber = 7;

constexpr char updaterName[] = "/TAL-VERO Bootloader.exe";

/// What the stand-in for the updater writes, beside itself.
constexpr char reportName[] = "/report.txt";

QString beside(const char *name) { return QCoreApplication::applicationDirPath() + name; }

} // namespace

/// The updater is looked for in the program's own folder, so these tests run in a copy, see main().
class ComUpdaterTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { giveProgramStyle(); }

    void isOffered();
    void getsThePortAloneAndOutlivesTheWindow();
};

void ComUpdaterTest::isOffered()
{
    ComWindow window(portNumber);
    QVERIFY(window.find<QWidget>("BootloadButton")->isVisible());
}

void ComUpdaterTest::getsThePortAloneAndOutlivesTheWindow()
{
    const HostSounder sounder(portNumber);
    ComWindow window(portNumber);
    window.pressConnect();
    QVERIFY(window.isConnectedSoon());
    window.click("BootloadButton");
    QVERIFY2(window.window.close(), "the program waits for the updater");
    QFile report(beside(reportName));
    QTRY_VERIFY(report.exists());
    QVERIFY(report.open(QIODevice::ReadOnly));
    QCOMPARE(QString::fromUtf8(report.readAll()),
             QString("1 argument: COM7\nopened it: yes\nfolder: Vermessung Süd 2\n"));
    QVERIFY2(sounder.heard().endsWith("*updater"), sounder.heard());
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    if (!QFile::exists(beside(updaterName))) {
        const QTemporaryDir folder;
        const QString boat = folder.filePath(QStringLiteral("Vermessung Süd 2"));
        return runCopyIn(boat, [&boat] {
            return QFile::copy(QStringLiteral(UPDATER_STANDIN), boat + updaterName);
        });
    }
    ComUpdaterTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_comupdater.moc"
