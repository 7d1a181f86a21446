// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// The window as it stands at the start, before the operator has touched it.

#include "linkwatch.h"
#include "logcapture.h"
#include "rawbench.h"
#include "toplevels.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QListView>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QtTest>

#include <cmath>

using namespace LinkWatch;

namespace {

QStringList noPorts() { return {}; }

/// A style sheet without the blanks between its tokens.
QString squeezed(QString sheet)
{
    static const QRegularExpression blanks(QStringLiteral("\\s+"));
    return sheet.replace(blanks, QString());
}

} // namespace

class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void sizeAndTitle();
    void versionLabel();
    void textsAtTheStart_data();
    void textsAtTheStart();
    void onlyTheMainWindowIsShown();
    void nothingOfTheDeviceCanBeSet_data();
    void nothingOfTheDeviceCanBeSet();
    void whatAConnectionNeedsCanBeChosen();
    void metricIsShown();
    void autosaveIsNotOffered();
    void listsAreFilled_data();
    void listsAreFilled();
    void listViews_data();
    void listViews();
    void timers_data();
    void timers();
    void deviceTypeIsToldToTheSettings();
    void choicesGoIntoTheSettings();
    void nothingIsSentBeforeTheOperatorConnects();
    void madeUpSoundings();
};

void TestMainWindow::sizeAndTitle()
{
    const MainWindow window(noPorts);
    QCOMPARE(window.size(), QSize(1136, 800));
    QCOMPARE(window.windowTitle(), QString("TAL-VERO Connect"));
    WindowBench shown;
    QCOMPARE(shown.window.size(), QSize(1136, 800));
}

void TestMainWindow::versionLabel()
{
    WindowBench bench;
    QCOMPARE(bench.text("label_33"), QString("TAL-VERO Connect Version: 1.2.11"));
}

void TestMainWindow::textsAtTheStart_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("infoLabel") << "";
    QTest::newRow("temperatureLabel") << "";
    QTest::newRow("label_34") << "";
    QTest::newRow("label_24") << "";
    QTest::newRow("highDepthLabel") << "";
    QTest::newRow("lowDepthLabel") << "";
    QTest::newRow("connectToDevice") << "Connect   ";
    QTest::newRow("portComboBox") << "Select Port";
    QTest::newRow("baudComboBox") << "Select Rate";
    QTest::newRow("soundVelocityLabel") << "Sound Velocity (m/s)";
    QTest::newRow("maxDepthLabel") << "Max Depth (m)";
}

void TestMainWindow::textsAtTheStart()
{
    QFETCH(QString, text);
    WindowBench bench;
    QCOMPARE(bench.text(QTest::currentDataTag()), text);
}

void TestMainWindow::onlyTheMainWindowIsShown()
{
    const WindowBench bench;
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (const QWidget *widget : widgets) {
        QVERIFY2(!widget->isVisible() || widget == &bench.window,
                 qPrintable("also shown: " + widget->windowTitle()));
    }
    QVERIFY(topLevel<depthGraph>() != nullptr);
    QVERIFY(topLevel<InfoForm>() != nullptr);
}

void TestMainWindow::nothingOfTheDeviceCanBeSet_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name :
         {"commonHolder", "commonSettingsInfo", "highFreqTab", "lowFreqTab", "newBaudComboBox",
          "formatComboBox", "resetSettings", "saveSettingsToDevice", "openGraph", "pingUp",
          "highDraft", "lowGainSlider", "enableHF", "disableLF"}) {
        QTest::newRow(name) << name;
    }
}

void TestMainWindow::nothingOfTheDeviceCanBeSet()
{
    QFETCH(QString, name);
    WindowBench bench;
    QVERIFY(!bench.isEnabled(name));
}

void TestMainWindow::whatAConnectionNeedsCanBeChosen()
{
    WindowBench bench;
    for (const char *name : {"portComboBox", "baudComboBox", "connectToDevice", "imperialRadio",
                             "metricRadio", "selectRateInfo", "hamburgerButton"}) {
        QVERIFY2(bench.isEnabled(name), name);
    }
}

void TestMainWindow::metricIsShown()
{
    WindowBench bench;
    QVERIFY(bench.isChecked("metricRadio"));
    QVERIFY(!bench.isChecked("imperialRadio"));
    QCOMPARE(bench.text("highDraftLabel"), QString("Draft (m)"));
    QCOMPARE(bench.text("lowBlankLabel"), QString("Blanking (m)"));
}

void TestMainWindow::autosaveIsNotOffered()
{
    WindowBench bench;
    QVERIFY(!bench.find<QAbstractButton>("autoSave")->isVisible());
    QVERIFY(!bench.isChecked("autoSave"));
}

void TestMainWindow::listsAreFilled_data()
{
    QTest::addColumn<QStringList>("expected");
    const QStringList rates{"4800", "9600", "19200", "38400", "57600", "115200"};
    QTest::newRow("portComboBox") << QStringList{"Select Port", "COM3", "COM1"};
    QTest::newRow("baudComboBox") << QStringList{"Select Rate", "Auto"} + rates;
    QTest::newRow("newBaudComboBox") << rates;
}

void TestMainWindow::listsAreFilled()
{
    QFETCH(QStringList, expected);
    const MainWindow window([] { return QStringList{"COM3", "COM1"}; });
    QCOMPARE(entries(window.findChild<QComboBox *>(QTest::currentDataTag())), expected);
}

void TestMainWindow::listViews_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"portComboBox", "baudComboBox", "formatComboBox", "newBaudComboBox"}) {
        QTest::newRow(name) << name;
    }
}

void TestMainWindow::listViews()
{
    QFETCH(QString, name);
    WindowBench bench;
    const QAbstractItemView *view = bench.find<QComboBox>(name)->view();
    QCOMPARE(view->metaObject()->className(), "QListView");
    QCOMPARE(squeezed(view->styleSheet()),
             squeezed("QListView::item { min-height:20px; padding: 1px 23px 1px 10px; }"
                      "QListView::item:hover { color: black; }"));
    QVERIFY2(view->sizeHintForRow(0) >= 22, "the rules have no effect");
}

void TestMainWindow::timers_data()
{
    QTest::addColumn<int>("interval");
    QTest::addColumn<bool>("singleShot");
    QTest::addColumn<bool>("runsAtTheStart");
    QTest::newRow("infoTimer") << 10000 << true << false;
    QTest::newRow("commandTimer") << 500 << true << false;
    QTest::newRow("portScanTimer") << 1000 << false << true;
    QTest::newRow("answerTimer") << 2000 << true << false;
    QTest::newRow("temperatureTimer") << 5000 << false << true;
    QTest::newRow("resizeTimer") << 1000 << true << false;
}

void TestMainWindow::timers()
{
    const MainWindow window(noPorts);
    const auto *timer = window.findChild<QTimer *>(QTest::currentDataTag());
    QVERIFY(timer != nullptr);
    QTEST(timer->interval(), "interval");
    QTEST(timer->isSingleShot(), "singleShot");
    QTEST(timer->isActive(), "runsAtTheStart");
}

void TestMainWindow::deviceTypeIsToldToTheSettings()
{
    const MainWindow window(noPorts);
    const auto *settings = topLevel<Settings>();
    QVERIFY(settings != nullptr);
    QCOMPARE(settings->deviceType(), QString("TalVeroNew"));
    QVERIFY(!settings->isImperial());
}

void TestMainWindow::choicesGoIntoTheSettings()
{
    RawBench bench;
    const LogCapture log;
    bench.choose("baudComboBox", "57600");
    QCOMPARE(topLevel<Settings>()->getSettingString("baud"), QString("57600"));
    bench.choose("baudComboBox", "4800");
    QCOMPARE(topLevel<Settings>()->getSettingString("baud"), QString("4800"));
    bench.choose("portComboBox", bench.line.slavePath()); // a name that the settings do not keep
    QCOMPARE(log.count("Unknown command \"port\""), 1);
    QVERIFY(!QTest::qWaitFor([&] { return !bench.line.received().isEmpty(); }, 700));
    QCOMPARE(bench.info(), QString());
    QVERIFY2(!bench.timer("commandTimer")->isActive(), "a change is queued for the device");
}

void TestMainWindow::nothingIsSentBeforeTheOperatorConnects()
{
    RawBench bench;
    bench.choose("portComboBox", bench.line.slavePath());
    bench.choose("baudComboBox", "9600");
    bench.timer("temperatureTimer")->setInterval(10);
    bench.timer("portScanTimer")->setInterval(10);
    const LogCapture log;
    for (const char *name : {"pingUp", "soundVelocityDown", "saveSettingsToDevice", "highDraftUp",
                             "imperialRadio", "metricRadio", "selectRateInfo", "hamburgerButton"}) {
        bench.click(name);
    }
    QVERIFY(!QTest::qWaitFor([&] { return !bench.line.received().isEmpty(); }, 1000));
    QVERIFY2(isFree(bench.line.slavePath()), "the port was opened unasked");
    QVERIFY(!log.contains("Sending "));
}

void TestMainWindow::madeUpSoundings()
{
    WindowBench bench;
    const LogCapture log;
    QSignalSpy depths(&bench.window, &MainWindow::gotDepths);
    constexpr int calls = 20;
    for (int call = 0; call < calls; ++call) {
        QVERIFY(QMetaObject::invokeMethod(&bench.window, "addFakeData"));
        QCOMPARE(depths.count(), call + 1);
        const double high = (std::sin(call / 10.0) + 1.0) * 100.0;
        const double low = (std::cos(call / 10.0) + 2.3) * 100.0;
        // Whole centimetres; half of one is left for numbers at the very edge.
        QVERIFY(std::abs(depths.last().at(0).toDouble() * 100.0 - (high - 0.5)) <= 0.51);
        QVERIFY(std::abs(depths.last().at(1).toDouble() * 100.0 - (low - 0.5)) <= 0.51);
    }
    QCOMPARE(depths.first().at(0).toFloat(), 1.0F);
    QCOMPARE(depths.first().at(1).toFloat(), 3.3F);
    QCOMPARE(bench.text("highDepthLabel"), QString("HF Depth: 1.94")); // sin 1.9 = 0.9463
    QCOMPARE(bench.text("lowDepthLabel"), QString("LF Depth: 1.97"));  // cos 1.9 = -0.3233
}

QTEST_MAIN(TestMainWindow)

#include "tst_mainwindow.moc"
