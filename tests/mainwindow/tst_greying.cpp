// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "appearance.h"
#include "readybench.h"

#include <QLabel>

namespace {

const QStringList connectionControls{"portComboBox", "baudComboBox", "imperialRadio",
                                     "metricRadio"};

const QStringList deviceControls{"commonHolder",  "commonSettingsInfo",   "highFreqTab",
                                 "lowFreqTab",    "newBaudComboBox",      "formatComboBox",
                                 "resetSettings", "saveSettingsToDevice", "openGraph"};

} // namespace

/// Which controls can be used when. (What the output format locks is tested with the formats.)
class GreyingTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { giveProgramStyle(); }

    void atTheStartOnlyTheConnectionCanBeSet();
    void whileConnectedOnlyTheDeviceCanBeSet();
    void afterDisconnectingOnlyTheConnectionCanBeSet();
    void theEmptyHeadingLabelStaysDisabled();
    void everyRefreshClearsTheStatusLabel_data();
    void everyRefreshClearsTheStatusLabel();
    void onlyTheLowDepthIsClearedWhenItsChannelIsSwitchedOff();
    void greyedRadioButtonsTakeNoClick();

private:
    static void compareEnabled(WindowBench &bench, const QStringList &names, bool enabled);
};

void GreyingTest::compareEnabled(WindowBench &bench, const QStringList &names, bool enabled)
{
    for (const QString &name : names) {
        // The tab in the background is hidden, not disabled: what counts is what it was set to.
        QVERIFY2(bench.isEnabled(name) == enabled, qPrintable(name));
    }
}

void GreyingTest::atTheStartOnlyTheConnectionCanBeSet()
{
    WindowBench bench;
    compareEnabled(bench, connectionControls, true);
    compareEnabled(bench, deviceControls, false);
    QVERIFY(bench.isEnabled("connectToDevice"));
}

void GreyingTest::whileConnectedOnlyTheDeviceCanBeSet()
{
    ReadyBench bench;
    compareEnabled(bench, connectionControls, false);
    compareEnabled(bench, deviceControls, true);
    QVERIFY(bench.isEnabled("connectToDevice"));
}

void GreyingTest::afterDisconnectingOnlyTheConnectionCanBeSet()
{
    ReadyBench bench;
    bench.click("connectToDevice");
    compareEnabled(bench, connectionControls, true);
    compareEnabled(bench, deviceControls, false);
}

void GreyingTest::theEmptyHeadingLabelStaysDisabled()
{
    ReadyBench bench;
    QVERIFY(!bench.isEnabled("label_30"));
    QVERIFY2(bench.isEnabled("label_32"), "its counterpart of the low channel is not disabled");
    bench.click("disableHF");
    bench.click("enableHF");
    QVERIFY(!bench.isEnabled("label_30"));
}

void GreyingTest::everyRefreshClearsTheStatusLabel_data()
{
    QTest::addColumn<QString>("control");
    for (const char *control : {"highAutoRadio", "disableHF", "disableLF", "connectToDevice"}) {
        QTest::addRow("%s", control) << QString(control);
    }
}

void GreyingTest::everyRefreshClearsTheStatusLabel()
{
    QFETCH(QString, control);
    ReadyBench bench;
    QVERIFY(bench.text("temperatureLabel").contains("Temperature"));
    bench.click(control);
    QCOMPARE(bench.text("temperatureLabel"), QString());
}

/// Deliberately unlike the high channel, whose last depth stays.
void GreyingTest::onlyTheLowDepthIsClearedWhenItsChannelIsSwitchedOff()
{
    SounderOptions options = ReadyBench::quickSounder();
    options.format = Odom; // gives both depths in one line
    ReadyBench bench(false, {}, options);
    bench.device().setSoundings(true);
    QTRY_VERIFY(!bench.text("lowDepthLabel").isEmpty() && !bench.text("highDepthLabel").isEmpty());
    bench.device().setSoundings(false);
    bench.click("pingDown"); // its answer comes after the last sounding
    QVERIFY(bench.settles());
    bench.click("disableHF");
    QVERIFY(!bench.text("highDepthLabel").isEmpty());
    QVERIFY(!bench.text("lowDepthLabel").isEmpty());
    bench.click("disableLF");
    QVERIFY(!bench.text("highDepthLabel").isEmpty());
    QCOMPARE(bench.text("lowDepthLabel"), QString());
}

void GreyingTest::greyedRadioButtonsTakeNoClick()
{
    ReadyBench bench;
    bench.click("disableHF");
    QVERIFY(bench.settles());
    for (const char *radio : {"highAutoRadio", "highShallowRadio", "highOffTvg", "highLog20Tvg"}) {
        bench.click(radio);
        QVERIFY2(!bench.isChecked(radio), radio);
    }
    QVERIFY(!bench.hasPendingChange());
}

QTEST_MAIN(GreyingTest)
#include "tst_greying.moc"
