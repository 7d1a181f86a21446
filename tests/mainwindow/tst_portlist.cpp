// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// The lists from which the operator chooses port and rate, and the button beside them.

#include "linkwatch.h"
#include "rawbench.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QSignalSpy>
#include <QtTest>

using namespace LinkWatch;

namespace {

const QStringList rates{"4800", "9600", "19200", "38400", "57600", "115200"};

/// A window whose list of ports holds two made-up names. A scan takes place at once when a test
/// asks for it, so that none has to wait for the clock.
struct PortBench : WindowBench
{
    PortBench() { change({"ttyS0", "ttyUSB0"}); }

    void change(const QStringList &found)
    {
        ports = found;
        const int before = timesListed;
        timer("portScanTimer")->start(1);
        QTRY_VERIFY(timesListed > before);
        timer("portScanTimer")->start(1000);
    }

    QComboBox *list() { return find<QComboBox>("portComboBox"); }
};

} // namespace

class TestPortList : public QObject
{
    Q_OBJECT

private slots:
    void listsAtTheStart();
    void portsStandInTheSystemsOrder();
    void addedPortLeavesTheChoice();
    void removedPortLeavesTheChoice();
    void chosenPortThatVanishesLeavesSelectPort();
    void portThatComesBackIsListedButNotChosen();
    void namesAreComparedWithTheirCase();
    void anotherOrderIsAnotherList();
    void allPortsRemoved();
    void unchangedListIsNotRebuilt();
    void openListIsNotDisturbed();

    void isScannedOnceASecond();
    void isNotScannedWhileTheLinkIsUp_data();
    void isNotScannedWhileTheLinkIsUp();
    void portsFoundAfterDisconnecting();

    void buttonAtTheStart();
};

void TestPortList::listsAtTheStart()
{
    const MainWindow window([] { return QStringList{"ttyS0", "ttyS1"}; });
    const auto *ports = window.findChild<QComboBox *>("portComboBox");
    QCOMPARE(entries(ports), (QStringList{"Select Port", "ttyS0", "ttyS1"}));
    QCOMPARE(ports->currentText(), QString("Select Port"));
    const auto *rateList = window.findChild<QComboBox *>("baudComboBox");
    QCOMPARE(entries(rateList), (QStringList{"Select Rate", "Auto"} + rates));
    QCOMPARE(rateList->currentText(), QString("Select Rate"));
    QCOMPARE(entries(window.findChild<QComboBox *>("newBaudComboBox")), rates);
}

void TestPortList::portsStandInTheSystemsOrder()
{
    PortBench bench;
    bench.change({"COM10", "COM2", "COM1"});
    QCOMPARE(entries(bench.list()), (QStringList{"Select Port", "COM10", "COM2", "COM1"}));
    QCOMPARE(bench.list()->currentText(), QString("Select Port"));
}

void TestPortList::addedPortLeavesTheChoice()
{
    PortBench bench;
    bench.choose("portComboBox", "ttyUSB0");
    bench.change({"ttyACM0", "ttyS0", "ttyUSB0", "ttyUSB1"});
    QCOMPARE(entries(bench.list()),
             (QStringList{"Select Port", "ttyACM0", "ttyS0", "ttyUSB0", "ttyUSB1"}));
    QCOMPARE(bench.list()->currentText(), QString("ttyUSB0"));
}

void TestPortList::removedPortLeavesTheChoice()
{
    PortBench bench;
    bench.choose("portComboBox", "ttyUSB0");
    bench.change({"ttyUSB0"});
    QCOMPARE(entries(bench.list()), (QStringList{"Select Port", "ttyUSB0"}));
    QCOMPARE(bench.list()->currentText(), QString("ttyUSB0"));
}

void TestPortList::chosenPortThatVanishesLeavesSelectPort()
{
    PortBench bench;
    bench.choose("portComboBox", "ttyUSB0");
    bench.change({"ttyS0"});
    QCOMPARE(entries(bench.list()), (QStringList{"Select Port", "ttyS0"}));
    QCOMPARE(bench.list()->currentText(), QString("Select Port"));
}

void TestPortList::portThatComesBackIsListedButNotChosen()
{
    PortBench bench;
    bench.choose("portComboBox", "ttyUSB0");
    bench.change({"ttyS0"});
    bench.change({"ttyS0", "ttyUSB0"});
    QCOMPARE(entries(bench.list()), (QStringList{"Select Port", "ttyS0", "ttyUSB0"}));
    QCOMPARE(bench.list()->currentText(), QString("Select Port"));
}

void TestPortList::namesAreComparedWithTheirCase()
{
    PortBench bench;
    bench.choose("portComboBox", "ttyUSB0");
    bench.change({"ttyS0", "TTYUSB0", "ttyUSB01"});
    QCOMPARE(bench.list()->currentText(), QString("Select Port"));
}

void TestPortList::anotherOrderIsAnotherList()
{
    PortBench bench;
    bench.choose("portComboBox", "ttyUSB0");
    bench.change({"ttyUSB0", "ttyS0"});
    QCOMPARE(entries(bench.list()), (QStringList{"Select Port", "ttyUSB0", "ttyS0"}));
    QCOMPARE(bench.list()->currentText(), QString("ttyUSB0"));
}

void TestPortList::allPortsRemoved()
{
    PortBench bench;
    bench.change({});
    QCOMPARE(entries(bench.list()), QStringList{"Select Port"});
}

void TestPortList::unchangedListIsNotRebuilt()
{
    PortBench bench;
    bench.choose("portComboBox", "ttyUSB0");
    const QAbstractItemModel *model = bench.list()->model();
    QSignalSpy removed(model, &QAbstractItemModel::rowsRemoved);
    QSignalSpy inserted(model, &QAbstractItemModel::rowsInserted);
    QSignalSpy reset(model, &QAbstractItemModel::modelReset);
    QSignalSpy chosen(bench.list(), &QComboBox::currentTextChanged);
    bench.change(bench.ports);
    QCOMPARE(removed.count() + inserted.count() + reset.count() + chosen.count(), 0);

    bench.change({"ttyS0"}); // the spies do see a rebuilding
    QVERIFY(removed.count() + reset.count() > 0);
    QVERIFY(inserted.count() > 0);
    QVERIFY(chosen.count() > 0);
}

void TestPortList::openListIsNotDisturbed()
{
    PortBench bench;
    bench.choose("portComboBox", "ttyS0");
    bench.list()->showPopup();
    QAbstractItemView *const popup = bench.list()->view();
    QTRY_VERIFY(popup->isVisible());
    popup->setCurrentIndex(bench.list()->model()->index(2, 0)); // the pointer is over ttyUSB0
    bench.change(bench.ports);
    QVERIFY2(popup->isVisible(), "the open list was shut");
    QCOMPARE(popup->currentIndex().row(), 2);
    QTest::keyClick(popup, Qt::Key_Return);
    QCOMPARE(bench.list()->currentText(), QString("ttyUSB0"));
}

void TestPortList::isScannedOnceASecond()
{
    WindowBench bench;
    bench.timer("portScanTimer")->start();
    QElapsedTimer time;
    time.start();
    const int before = bench.timesListed;
    QTRY_COMPARE_WITH_TIMEOUT(bench.timesListed, before + 2, 10000);
    QVERIFY2(time.elapsed() >= 1800, qPrintable(QString::number(time.elapsed())));
}

void TestPortList::isNotScannedWhileTheLinkIsUp_data()
{
    QTest::addColumn<QString>("rate");
    QTest::addColumn<bool>("isAnswered");
    QTest::newRow("connecting") << "9600" << false;
    QTest::newRow("searching") << "Auto" << false;
    QTest::newRow("connected") << "9600" << true;
}

void TestPortList::isNotScannedWhileTheLinkIsUp()
{
    QFETCH(QString, rate);
    QFETCH(bool, isAnswered);
    RawBench bench;
    bench.timer("portScanTimer")->setInterval(5);
    if (isAnswered) {
        QVERIFY(bench.connectByBanner());
    } else {
        bench.pressConnectRaw(rate);
    }
    const int before = bench.timesListed;
    QVERIFY2(!QTest::qWaitFor([&] { return bench.timesListed > before; }, 300),
             "the ports are listed although none can be chosen");
    bench.click("connectToDevice");
    QTRY_VERIFY2(bench.timesListed >= before + 3, "the ports are not listed any more");
}

void TestPortList::portsFoundAfterDisconnecting()
{
    RawBench bench;
    bench.timer("portScanTimer")->setInterval(5);
    bench.pressConnectRaw();
    const QString chosen = bench.text("portComboBox");
    bench.ports.prepend("ttyNEW");
    bench.click("connectToDevice");
    QTRY_VERIFY(bench.find<QComboBox>("portComboBox")->findText("ttyNEW") == 1);
    QCOMPARE(bench.text("portComboBox"), chosen);
}

void TestPortList::buttonAtTheStart()
{
    WindowBench bench;
    QCOMPARE(bench.text("connectToDevice"), QString("Connect   "));
    QVERIFY(connectButtonShows(bench, "not_connected.png"));
    QVERIFY2(!connectButtonShows(bench, "connected.png"), "the two pictures are the same");
    QVERIFY(bench.timer("portScanTimer")->isActive());
}

QTEST_MAIN(TestPortList)

#include "tst_portlist.moc"
