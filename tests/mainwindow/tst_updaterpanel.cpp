// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// The firmware updater stands beside the program or does not. For the first case this program runs
// as a copy of itself in a folder of its own, so that tests that run meanwhile see no updater.

#include "windowbench.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QString updaterName = QStringLiteral("TAL-VERO Bootloader.exe");
const QString copyName = QStringLiteral("beside-the-updater");

void pressMenuButtonTwice(WindowBench &bench)
{
    bench.click("hamburgerButton");
    bench.click("hamburgerButton");
}

} // namespace

class TestWithoutUpdater : public QObject
{
    Q_OBJECT

private slots:
    void buttonIsNotOffered();
    void panelIsLow();
    void footerIsLowWhenShownAgain();
    void besideTheUpdater();
};

class TestWithUpdater : public QObject
{
    Q_OBJECT

private slots:
    void buttonIsOffered();
    void panelIsHigh();
    void footerIsHighWhenShownAgain();
};

void TestWithoutUpdater::buttonIsNotOffered()
{
    WindowBench bench;
    QVERIFY(!bench.find<QWidget>("BootloadButton")->isVisible());
}

void TestWithoutUpdater::panelIsLow()
{
    WindowBench bench;
    QCOMPARE(bench.find<QWidget>("widget_41")->minimumSize(), QSize(0, 60));
}

void TestWithoutUpdater::footerIsLowWhenShownAgain()
{
    WindowBench bench;
    pressMenuButtonTwice(bench);
    QCOMPARE(bench.find<QWidget>("widget_40")->minimumHeight(), 80);
    QVERIFY(!bench.find<QWidget>("BootloadButton")->isVisible());
}

void TestWithoutUpdater::besideTheUpdater()
{
    const QTemporaryDir folder;
    QVERIFY(folder.isValid());
    const QString copy = folder.filePath(copyName);
    QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), copy));
    QFile updater(folder.filePath(updaterName));
    QVERIFY(updater.open(QIODevice::WriteOnly));

    QProcess run;
    run.setProcessChannelMode(QProcess::MergedChannels);
    run.start(copy, {"-silent"});
    QTRY_VERIFY_WITH_TIMEOUT(run.state() == QProcess::NotRunning, 60000);
    const QByteArray output = run.readAll();
    QVERIFY2(run.exitStatus() == QProcess::NormalExit && run.exitCode() == 0, output.constData());
    QVERIFY2(output.contains(" passed, 0 failed"), output.constData());
}

void TestWithUpdater::buttonIsOffered()
{
    WindowBench bench;
    QVERIFY(bench.find<QWidget>("BootloadButton")->isVisible());
    QVERIFY2(bench.isEnabled("BootloadButton"), "unconnected, it answers with an advice");
}

void TestWithUpdater::panelIsHigh()
{
    WindowBench bench;
    QCOMPARE(bench.find<QWidget>("widget_41")->minimumSize(), QSize(0, 80));
}

void TestWithUpdater::footerIsHighWhenShownAgain()
{
    WindowBench bench;
    pressMenuButtonTwice(bench);
    QCOMPARE(bench.find<QWidget>("widget_40")->minimumHeight(), 100);
    QVERIFY(bench.find<QWidget>("BootloadButton")->isVisible());
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    if (QFileInfo(QCoreApplication::applicationFilePath()).fileName() == copyName) {
        TestWithUpdater test;
        return QTest::qExec(&test, argc, argv);
    }
    TestWithoutUpdater test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_updaterpanel.moc"
