// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// What the window offers by name to the form and to others, and what it is connected to.

#include "logcapture.h"
#include "rawbench.h"

#include <QMetaMethod>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QtTest>

namespace {

QStringList methodsOf(QMetaMethod::MethodType type)
{
    const QMetaObject &window = MainWindow::staticMetaObject;
    QStringList signatures;
    for (int index = window.methodOffset(); index < window.methodCount(); ++index) {
        const QMetaMethod method = window.method(index);
        if (method.methodType() == type) {
            signatures.append(QString::fromLatin1(method.methodSignature()));
        }
    }
    return signatures;
}

/// Each of the names once with each of the ends, the ends changing fastest.
QStringList combine(const QStringList &names, const QStringList &ends)
{
    QStringList result;
    for (const QString &name : names) {
        for (const QString &end : ends) {
            result.append("on_" + name + end);
        }
    }
    return result;
}

QStringList channelButtons(const QString &prefix)
{
    return combine({prefix + "Draft", prefix + "Index", prefix + "Freq", prefix + "Blank",
                    prefix + "Pulse", prefix + "Gain", prefix + "Detect"},
                   {"Down_clicked()", "Up_clicked()"});
}

QStringList channelEdits(const QString &prefix)
{
    return combine({prefix + "Draft", prefix + "Index", prefix + "Freq", prefix + "Blank"},
                   {"_returnPressed()"});
}

QStringList channelSliders(const QString &prefix)
{
    return combine({prefix + "Pulse", prefix + "Gain", prefix + "Detect", prefix + "Blanking"},
                   {"Slider_valueChanged(int)"});
}

QStringList channelRadios(const QString &prefix)
{
    return combine({prefix + "ShallowRadio", prefix + "AutoRadio", prefix + "ManualRadio",
                    prefix + "OffTvg", prefix + "Log10Tvg", prefix + "Log20Tvg"},
                   {"_toggled(bool)"});
}

QStringList channelHelp(const QString &prefix)
{
    return combine({prefix + "Mode", prefix + "TVG", prefix + "Inputs", prefix + "Detect",
                    prefix + "Pulse", prefix + "Gain"},
                   {"Info_clicked()"});
}

QStringList linkSlots()
{
    return {"updateSerialPorts()",
            "connectionFailed()",
            "connectionSucceeded()",
            "gotSerialData()",
            "serialTimeout()",
            "getLatestTemperature()",
            "on_connectToDevice_clicked()",
            "on_portComboBox_currentTextChanged(QString)",
            "on_baudComboBox_currentTextChanged(QString)",
            "clearInfoText()",
            "sendLatestCommand()",
            "addFakeData()"};
}

QStringList actionSlots()
{
    return {"on_hamburgerButton_clicked()", "on_openGraph_clicked()",
            "on_saveSettings_clicked()",    "on_saveSettingsToDevice_clicked()",
            "on_resetSettings_clicked()",   "on_importButton_clicked()",
            "on_BootloadButton_clicked()",  "on_autoSave_toggled(bool)",
            "on_pingDown_clicked()",        "on_pingUp_clicked()",
            "on_soundVelocityUp_clicked()", "on_soundVelocityDown_clicked()",
            "on_maxDepthDown_clicked()",    "on_maxDepthUp_clicked()"};
}

QStringList commonEdits()
{
    return {"on_pingEdit_returnPressed()", "on_soundVelocityEdit_returnPressed()",
            "on_maxDepthEdit_returnPressed()"};
}

QStringList outputSlots()
{
    return {"on_imperialRadio_toggled(bool)",
            "on_metricRadio_toggled(bool)",
            "on_enableHF_toggled(bool)",
            "on_enableLF_toggled(bool)",
            "on_disableHF_toggled(bool)",
            "on_disableLF_toggled(bool)",
            "on_formatComboBox_currentTextChanged(QString)",
            "on_newBaudComboBox_currentTextChanged(QString)"};
}

QStringList slotsInOrder()
{
    return linkSlots() + actionSlots() + channelButtons("high") + channelButtons("low") +
           commonEdits() + channelEdits("high") + channelEdits("low") + channelSliders("high") +
           channelSliders("low") + channelRadios("low") + channelRadios("high") + outputSlots() +
           QStringList{"on_selectRateInfo_clicked()", "on_commonSettingsInfo_clicked()"} +
           channelHelp("high") + channelHelp("low") +
           QStringList{"on_lowEnableInfo_clicked()", "on_highEnableInfo_clicked()"};
}

/// The window's connections as Qt lists them: "--> …" lines follow the signal that they leave by,
/// "<-- sender::name slot" lines come in.
QStringList connectionsOf(QObject &object)
{
    const LogCapture log;
    object.dumpObjectInfo();
    QStringList lines;
    for (const QString &line : log.lines()) {
        lines.append(line.simplified());
    }
    return lines;
}

} // namespace

class TestWindowSlots : public QObject
{
    Q_OBJECT

private slots:
    void signalsInOrder();
    void slotsInTheDeclaredOrder();
    void namedArguments();
    void formsWidgetsReachTheirSlotsOnce();
    void timersReachTheirSlots_data();
    void timersReachTheirSlots();
    void linkReachesItsSlots();
    void graphAndSettingsHearTheWindow_data();
    void graphAndSettingsHearTheWindow();
    void everyLineIsHandledOnce();
    void outcomesOfAConnectionAreOnlyLogged();
};

void TestWindowSlots::signalsInOrder()
{
    QCOMPARE(methodsOf(QMetaMethod::Signal),
             (QStringList{"gotDepths(float,float)", "setMaxDepth(float)", "goToImperial(bool)",
                          "setFrequency(QString)"}));
}

void TestWindowSlots::slotsInTheDeclaredOrder()
{
    const QStringList found = methodsOf(QMetaMethod::Slot);
    const QStringList expected = slotsInOrder();
    for (int place = 0; place < qMin(found.size(), expected.size()); ++place) {
        QCOMPARE(found.at(place), expected.at(place));
    }
    QCOMPARE(found.size(), expected.size());
}

void TestWindowSlots::namedArguments()
{
    const QMetaObject &window = MainWindow::staticMetaObject;
    const std::pair<const char *, const char *> named[] = {
        {"setMaxDepth(float)", "depth"},
        {"setFrequency(QString)", "freq"},
        {"on_portComboBox_currentTextChanged(QString)", "newStr"},
        {"on_autoSave_toggled(bool)", "selected"},
    };
    for (const auto &[signature, name] : named) {
        const QMetaMethod method = window.method(window.indexOfMethod(signature));
        QCOMPARE(method.parameterNames(), QList<QByteArray>{name});
    }
}

void TestWindowSlots::formsWidgetsReachTheirSlotsOnce()
{
    WindowBench bench;
    const QStringList connections = connectionsOf(bench.window);
    // These two wait for buttons that the form does not have.
    const QStringList withoutWidget{"on_saveSettings_clicked()", "on_importButton_clicked()"};
    const QStringList all = slotsInOrder().filter(QRegularExpression("^on_"));
    for (const QString &slot : all) {
        const QString end = "::" + slot.section('_', 1, 1) + " " + slot;
        const int count = connections.filter("<--").filter(end).size();
        QVERIFY2(count == (withoutWidget.contains(slot) ? 0 : 1),
                 qPrintable(QStringLiteral("%1 is connected %2 times").arg(slot).arg(count)));
    }
}

void TestWindowSlots::timersReachTheirSlots_data()
{
    QTest::addColumn<QStringList>("reached");
    QTest::newRow("infoTimer") << QStringList{"clearInfoText()"};
    QTest::newRow("commandTimer") << QStringList{"sendLatestCommand()"};
    QTest::newRow("portScanTimer") << QStringList{"updateSerialPorts()"};
    QTest::newRow("answerTimer") << QStringList{"serialTimeout()"};
    QTest::newRow("temperatureTimer") << QStringList{"getLatestTemperature()"};
    QTest::newRow("resizeTimer") << QStringList{};
}

void TestWindowSlots::timersReachTheirSlots()
{
    QFETCH(QStringList, reached);
    WindowBench bench;
    const QString beginning = QStringLiteral("<-- QTimer::%1 ").arg(QTest::currentDataTag());
    QStringList found = connectionsOf(bench.window).filter(beginning);
    found.replaceInStrings(beginning, QString());
    QCOMPARE(found, reached);
}

void TestWindowSlots::linkReachesItsSlots()
{
    WindowBench bench;
    QStringList found = connectionsOf(bench.window).filter("<-- SerialPortLayer::");
    found.replaceInStrings("<-- SerialPortLayer::unnamed ", QString());
    found.sort();
    // Every line is announced twice on purpose; see everyLineIsHandledOnce().
    QCOMPARE(found, (QStringList{"gotSerialData()", "gotSerialData()", "serialTimeout()"}));
}

void TestWindowSlots::graphAndSettingsHearTheWindow_data()
{
    QTest::addColumn<QStringList>("reached");
    QTest::newRow("gotDepths(float,float)") << QStringList{"depthGraph addData(float,float)"};
    QTest::newRow("setMaxDepth(float)") << QStringList{"depthGraph setMaxDepth(float)"};
    QTest::newRow("goToImperial(bool)")
        << QStringList{"Settings goToImperial(bool)", "depthGraph goToImperial(bool)"};
    QTest::newRow("setFrequency(QString)") << QStringList{"depthGraph setFrequency(QString)"};
}

void TestWindowSlots::graphAndSettingsHearTheWindow()
{
    QFETCH(QStringList, reached);
    WindowBench bench;
    const QStringList connections = connectionsOf(bench.window);
    const int signal =
        connections.indexOf(QStringLiteral("signal: %1").arg(QTest::currentDataTag()));
    QVERIFY2(signal >= 0, qPrintable(connections.join('\n')));
    QStringList found;
    for (int line = signal + 1; connections.value(line).startsWith("-->"); ++line) {
        const QString receiver = connections.at(line).mid(4);
        found.append(receiver.section("::", 0, 0) + " " + receiver.section(' ', -1));
    }
    found.sort();
    QCOMPARE(found, reached);
}

void TestWindowSlots::everyLineIsHandledOnce()
{
    RawBench bench;
    const LogCapture log;
    QVERIFY(bench.connectByBanner());
    QCOMPARE(log.count("we have a TalVero New"), 1);
    bench.say("*i5,v1500000,s30000,a3,I9600,H1,L1");
    QTRY_COMPARE(bench.text("newBaudComboBox"), QString("9600"));
    bench.click("saveSettingsToDevice");
    bench.say("OK");
    QTRY_COMPARE(bench.info(), QString("Sending Save Command to Device ... Success"));
    QSignalSpy depths(&bench.window, &MainWindow::gotDepths);
    bench.say(" et B 00123 00131");
    QTRY_COMPARE(depths.count(), 1);
}

void TestWindowSlots::outcomesOfAConnectionAreOnlyLogged()
{
    WindowBench bench;
    const LogCapture log;
    QVERIFY(QMetaObject::invokeMethod(&bench.window, "connectionFailed"));
    QVERIFY(QMetaObject::invokeMethod(&bench.window, "connectionSucceeded"));
    QCOMPARE(log.texts(), (QStringList{"connection failed!", "connection succeeded!"}));
    QCOMPARE(bench.info(), QString());
    const QStringList connections = connectionsOf(bench.window).filter("<--");
    QVERIFY2(connections.filter("connectionFailed()").isEmpty(), "nothing calls it");
    QVERIFY2(connections.filter("connectionSucceeded()").isEmpty(), "nothing calls it");
}

QTEST_MAIN(TestWindowSlots)

#include "tst_windowslots.moc"
