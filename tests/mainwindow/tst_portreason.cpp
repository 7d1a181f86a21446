// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "dialoghand.h"
#include "linkwatch.h"
#include "logcapture.h"
#include "rawbench.h"

#include <QLabel>
#include <QMessageBox>
#include <QTemporaryFile>

#include <sys/stat.h>
#include <unistd.h>

namespace {

/// Takes the rights of an administrator from the program for as long as it lives.
class Commoner
{
public:
    Commoner()
    {
        if (isAdministrator && setresuid(nobody, nobody, 0) != 0) {
            qFatal("the test cannot give up its rights");
        }
    }
    ~Commoner()
    {
        if (isAdministrator && setresuid(0, 0, 0) != 0) {
            qFatal("the test cannot take its rights back");
        }
    }
    Commoner(const Commoner &) = delete;
    Commoner &operator=(const Commoner &) = delete;

private:
    static constexpr uid_t nobody = 65534;
    const bool isAdministrator = geteuid() == 0;
};

const QString held = "Another program is using this port. Close that program, then try again.";
const QString gone = "The port is no longer there. Check the cable, then choose the port again.";

} // namespace

/// Why a port does not open, told where the operator looks.
class PortReasonTest : public QObject
{
    Q_OBJECT

private slots:
    void theBoxSaysWhy_data();
    void theBoxSaysWhy();
    void noPermissionNamesTheGroupToJoin();
    void aSearchSaysWhyInTheTooltipOfTheInfoLine();
    void theReasonGoesWithTheText();
};

void PortReasonTest::theBoxSaysWhy_data()
{
    QTest::addColumn<QString>("port");
    QTest::addColumn<QString>("reason");
    QTest::newRow("another program holds it") << "held" << held;
    QTest::newRow("it has vanished") << "/dev/ttyVANISHED7" << gone;
    QTest::newRow("it is no port") << "file"
                                   << "The system says: ";
}

void PortReasonTest::theBoxSaysWhy()
{
    QFETCH(QString, port);
    QFETCH(QString, reason);
    RawBench bench;
    QTemporaryFile file;
    QVERIFY(file.open());
    QSerialPort otherProgram(bench.line.slavePath());
    if (port == "held") {
        QVERIFY(otherProgram.open(QIODevice::ReadWrite));
        port = bench.line.slavePath();
    } else if (port == "file") {
        port = file.fileName();
    }
    bench.ports << port;
    QMetaObject::invokeMethod(&bench.window, "updateSerialPorts");
    bench.choose("portComboBox", port);
    bench.choose("baudComboBox", "9600");
    const LogCapture log;
    QString text;
    QString informative;
    {
        const DialogHand<QMessageBox> hand([&](QMessageBox &box) {
            text = box.text();
            informative = box.informativeText();
            box.button(QMessageBox::Ok)->click();
        });
        bench.click("connectToDevice");
    }
    QCOMPARE(text, QString("Could Not Open Serial Port. Please unplug device then try again."));
    QVERIFY2(informative.startsWith(reason), qPrintable(informative));
    QVERIFY2(informative != "The system says: ", "The system's words are missing");
    QVERIFY2(log.contains(informative), "The log does not name the reason");
    QCOMPARE(bench.text("connectToDevice"), QString("Connect   "));
}

void PortReasonTest::noPermissionNamesTheGroupToJoin()
{
    RawBench bench;
    const QByteArray path = bench.line.slavePath().toLocal8Bit();
    QCOMPARE(chmod(path.constData(), 0), 0);
    bench.choose("portComboBox", bench.line.slavePath());
    bench.choose("baudComboBox", "9600");
    QString informative;
    {
        const Commoner commoner;
        const DialogHand<QMessageBox> hand([&](QMessageBox &box) {
            informative = box.informativeText();
            box.button(QMessageBox::Ok)->click();
        });
        bench.click("connectToDevice");
    }
    const QString group = QFileInfo(bench.line.slavePath()).group();
    QVERIFY(!group.isEmpty());
    QVERIFY2(informative.startsWith("You have no permission to use this port. Join the group \"" +
                                    group + "\""),
             qPrintable(informative));
}

void PortReasonTest::aSearchSaysWhyInTheTooltipOfTheInfoLine()
{
    RawBench bench;
    QSerialPort otherProgram(bench.line.slavePath());
    QVERIFY(otherProgram.open(QIODevice::ReadWrite));
    const LogCapture log;
    bench.pressConnectRaw("Auto");
    const auto *line = bench.find<QLabel>("infoLabel");
    QCOMPARE(line->toolTip(), held);
    QMetaObject::invokeMethod(&bench.window, "serialTimeout"); // the two seconds pass elsewhere
    QCOMPARE(bench.info(), QString(LinkWatch::notConnectedInfo));
    QCOMPARE(line->toolTip(), held);
    QVERIFY(log.contains(held));
}

void PortReasonTest::theReasonGoesWithTheText()
{
    RawBench bench;
    {
        QSerialPort otherProgram(bench.line.slavePath());
        QVERIFY(otherProgram.open(QIODevice::ReadWrite));
        bench.pressConnectRaw("Auto");
        QMetaObject::invokeMethod(&bench.window, "serialTimeout");
        QCOMPARE(bench.find<QLabel>("infoLabel")->toolTip(), held);
    }
    QVERIFY(bench.connectByBanner());
    QCOMPARE(bench.find<QLabel>("infoLabel")->toolTip(), QString());
}

QTEST_MAIN(PortReasonTest)

#include "tst_portreason.moc"
