// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "logcapture.h"
#include "windowbench.h"

#include <QLabel>
#include <QRadioButton>
#include <QSignalSpy>
#include <QSlider>
#include <QtTest>

#include <memory>

namespace {

struct UnitText
{
    const char *widget;
    const char *metric;
    const char *imperial;
};

// clang-format off
constexpr UnitText captions[] = {
    {"soundVelocityLabel", "Sound Velocity (m/s)", "Sound Velocity (ft/s)"},
    {"maxDepthLabel",      "Max Depth (m)",        "Max Depth (ft)"},
    {"highDraftLabel",     "Draft (m)",            "Draft (ft)"},
    {"lowDraftLabel",      "Draft (m)",            "Draft (ft)"},
    {"highIndexLabel",     "Index (m)",            "Index (ft)"},
    {"lowIndexLabel",      "Index (m)",            "Index (ft)"},
    {"highBlankLabel",     "Blanking (m)",         "Blanking (ft)"},
    {"lowBlankLabel",      "Blanking (m)",         "Blanking (ft)"},
};

// Not conversions of one another: 1500 m/s are 4921 ft/s.
constexpr UnitText startingTexts[] = {
    {"soundVelocityEdit", "1500",   "4856"},
    {"maxDepthEdit",      "30",     "100"},
    {"highDraft",         "0.40",   "1.00"},
    {"lowDraft",          "0.40",   "1.00"},
    {"highIndex",         "0.00",   "0.00"},
    {"lowIndex",          "0.00",   "0.00"},
    {"highBlank",         "0.45",   "1.00"},
    {"lowBlank",          "0.45",   "1.00"},
    {"highBlankEdit",     "0.45 m", "1.0 ft"},
    {"lowBlankEdit",      "0.45 m", "1.0 ft"},
};
// clang-format on

QLabel *graphLabel(const QString &name)
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget *window : windows) {
        if (window->windowTitle() == QLatin1String("Depth Graph")) {
            return window->findChild<QLabel *>(name);
        }
    }
    return nullptr;
}

} // namespace

class UnitDisplayTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theProgramStartsInMetric();
    void imperialRelabelsTheFields();
    void metricRelabelsThemBack();
    void imperialPutsStartingTextsIntoTheEdits();
    void metricPutsItsOwnBackWhateverWasShown();
    void theBlankingSlidersAreRescaled_data();
    void theBlankingSlidersAreRescaled();
    void theLowSliderBeginsHigherThanTheHighOne_data();
    void theLowSliderBeginsHigherThanTheHighOne();
    void pingRateAndFrequenciesAreNotTouched();
    void oneChoiceRunsTheSwitchTwiceWithTheSameResult();
    void eitherRadioAloneSwitchesBothWays();
    void theGraphAndTheSettingsAreTold();
    void theGraphShowsDepthsInTheChosenUnit();
    void switchingSendsAndStoresNothing();
    void aSliderBeyondTheMetricRangeMovesWithoutAChange();
    void switchingWhileConnectedSendsAndStoresNothing();
    void editsActAgainAfterASwitch();
    void aStoredValueStaysMetricThroughASwitch();
    void theSettingsReplyBringsTheDevicesValuesInTheChosenUnit();

private:
    void compareTexts(const UnitText &row, bool imperial);
    void compareAllTexts(bool imperial);

    std::unique_ptr<LogCapture> log;
    std::unique_ptr<WindowBench> bench;
};

void UnitDisplayTest::init()
{
    log = std::make_unique<LogCapture>();
    SounderOptions options = WindowBench::quietSounder();
    options.pace = false;
    bench = std::make_unique<WindowBench>(options);
}

void UnitDisplayTest::cleanup()
{
    bench.reset();
    log.reset();
}

void UnitDisplayTest::compareTexts(const UnitText &row, bool imperial)
{
    const QString shown = bench->text(row.widget);
    const QString expected = imperial ? row.imperial : row.metric;
    QVERIFY2(
        shown == expected,
        qPrintable(QString("%1 shows \"%2\" instead of \"%3\"").arg(row.widget, shown, expected)));
}

void UnitDisplayTest::compareAllTexts(bool imperial)
{
    for (const UnitText &row : captions) {
        compareTexts(row, imperial);
    }
    for (const UnitText &row : startingTexts) {
        compareTexts(row, imperial);
    }
}

void UnitDisplayTest::theProgramStartsInMetric()
{
    QVERIFY(bench->isChecked("metricRadio"));
    compareAllTexts(false);
    QVERIFY(log->contains("GRAPH TO IMPERIAL false"));
    QVERIFY(log->contains("SETTINGS TO IMPERIAL false"));
    QVERIFY(!log->contains("IMPERIAL true"));
}

void UnitDisplayTest::imperialRelabelsTheFields()
{
    bench->click("imperialRadio");
    for (const UnitText &row : captions) {
        compareTexts(row, true);
    }
}

void UnitDisplayTest::metricRelabelsThemBack()
{
    bench->click("imperialRadio");
    bench->click("metricRadio");
    for (const UnitText &row : captions) {
        compareTexts(row, false);
    }
}

void UnitDisplayTest::imperialPutsStartingTextsIntoTheEdits()
{
    bench->click("imperialRadio");
    for (const UnitText &row : startingTexts) {
        compareTexts(row, true);
    }
}

/// Here the sounder's own values were shown, 262 ft among them.
void UnitDisplayTest::metricPutsItsOwnBackWhateverWasShown()
{
    bench->click("imperialRadio");
    bench->device().settings().maxDepthMm = 80000;
    QVERIFY(bench->connectToSounder());
    QCOMPARE(bench->text("maxDepthEdit"), QString("262"));
    bench->click("connectToDevice");
    bench->click("metricRadio");
    compareAllTexts(false);
}

void UnitDisplayTest::theBlankingSlidersAreRescaled_data()
{
    QTest::addColumn<QString>("slider");
    QTest::addColumn<QStringList>("choices");
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");

    const QStringList imperial{"imperialRadio"};
    const QStringList metricAgain{"imperialRadio", "metricRadio"};
    QTest::newRow("high, at start") << "highBlankingSlider" << QStringList() << 30 << 1000;
    QTest::newRow("low, at start") << "lowBlankingSlider" << QStringList() << 50 << 1000;
    QTest::newRow("high, imperial") << "highBlankingSlider" << imperial << 100 << 3000;
    QTest::newRow("low, imperial") << "lowBlankingSlider" << imperial << 200 << 3000;
    QTest::newRow("high, metric again") << "highBlankingSlider" << metricAgain << 30 << 1000;
    QTest::newRow("low, metric again") << "lowBlankingSlider" << metricAgain << 50 << 1000;
}

void UnitDisplayTest::theBlankingSlidersAreRescaled()
{
    QFETCH(QString, slider);
    QFETCH(QStringList, choices);
    for (const QString &choice : choices) {
        bench->click(choice);
    }
    QTEST(bench->find<QSlider>(slider)->minimum(), "minimum");
    QTEST(bench->find<QSlider>(slider)->maximum(), "maximum");
}

/// Deliberate: the low channel's blanking never becomes shorter than half a metre or two feet by
/// its slider.
void UnitDisplayTest::theLowSliderBeginsHigherThanTheHighOne_data()
{
    QTest::addColumn<bool>("imperial");
    QTest::addColumn<int>("lowestOfHigh");
    QTest::addColumn<int>("lowestOfLow");

    QTest::newRow("metric") << false << 30 << 50;
    QTest::newRow("imperial") << true << 100 << 200;
}

void UnitDisplayTest::theLowSliderBeginsHigherThanTheHighOne()
{
    QFETCH(bool, imperial);
    if (imperial) {
        bench->click("imperialRadio");
    }
    QVERIFY(bench->connectToSounder());
    for (const char *slider : {"highBlankingSlider", "lowBlankingSlider"}) {
        QTest::keyClick(bench->find<QSlider>(slider), Qt::Key_Home);
    }
    QTEST(bench->find<QSlider>("highBlankingSlider")->value(), "lowestOfHigh");
    QTEST(bench->find<QSlider>("lowBlankingSlider")->value(), "lowestOfLow");
}

void UnitDisplayTest::pingRateAndFrequenciesAreNotTouched()
{
    bench->device().settings().pings = 8;
    bench->device().settings().high.freqKHz = 205;
    bench->device().settings().low.freqKHz = 34;
    QVERIFY(bench->connectToSounder());
    bench->click("connectToDevice");
    for (const char *choice : {"imperialRadio", "metricRadio"}) {
        bench->click(choice);
        QCOMPARE(bench->text("pingEdit"), QString("8"));
        QCOMPARE(bench->text("highFreq"), QString("205"));
        QCOMPARE(bench->text("lowFreq"), QString("34"));
    }
}

void UnitDisplayTest::oneChoiceRunsTheSwitchTwiceWithTheSameResult()
{
    QSignalSpy told(&bench->window, &MainWindow::goToImperial);
    bench->click("imperialRadio");
    QCOMPARE(told.size(), 2);
    QVERIFY(told.at(0).first().toBool() && told.at(1).first().toBool());
    told.clear();
    bench->click("metricRadio");
    QCOMPARE(told.size(), 2);
    QVERIFY(!told.at(0).first().toBool() && !told.at(1).first().toBool());
}

void UnitDisplayTest::eitherRadioAloneSwitchesBothWays()
{
    const auto toggle = [this](const char *slot, bool checked) {
        QVERIFY(QMetaObject::invokeMethod(&bench->window, slot, Q_ARG(bool, checked)));
    };
    toggle("on_imperialRadio_toggled", true);
    QCOMPARE(bench->text("maxDepthLabel"), QString("Max Depth (ft)"));
    toggle("on_imperialRadio_toggled", false);
    QCOMPARE(bench->text("maxDepthLabel"), QString("Max Depth (m)"));
    toggle("on_metricRadio_toggled", false);
    QCOMPARE(bench->text("maxDepthLabel"), QString("Max Depth (ft)"));
    toggle("on_metricRadio_toggled", true);
    QCOMPARE(bench->text("maxDepthLabel"), QString("Max Depth (m)"));
}

void UnitDisplayTest::theGraphAndTheSettingsAreTold()
{
    log->clear();
    bench->click("imperialRadio");
    QVERIFY(log->contains("GRAPH TO IMPERIAL true"));
    QVERIFY(log->contains("SETTINGS TO IMPERIAL true"));
    log->clear();
    bench->click("metricRadio");
    QVERIFY(log->contains("GRAPH TO IMPERIAL false"));
    QVERIFY(log->contains("SETTINGS TO IMPERIAL false"));
}

void UnitDisplayTest::theGraphShowsDepthsInTheChosenUnit()
{
    auto *const label = graphLabel("depthGraphFieldHF");
    QVERIFY(label != nullptr);
    bench->click("imperialRadio");
    QVERIFY(QMetaObject::invokeMethod(&bench->window, "addFakeData")); // 1.00 m and 3.30 m
    QVERIFY2(label->text().contains("3.28ft"), qPrintable(label->text()));
    bench->click("metricRadio");
    QVERIFY(QMetaObject::invokeMethod(&bench->window, "addFakeData")); // 1.09 m and 3.29 m
    QVERIFY2(label->text().contains("1.09m"), qPrintable(label->text()));
}

void UnitDisplayTest::switchingSendsAndStoresNothing()
{
    log->clear();
    bench->click("imperialRadio");
    bench->click("metricRadio");
    QCOMPARE(log->count("Changing"), 0);
    QCOMPARE(log->count("trigger change"), 0);
    QVERIFY(!bench->timer("commandTimer")->isActive());
    QVERIFY(!log->contains("Sending"));
}

void UnitDisplayTest::aSliderBeyondTheMetricRangeMovesWithoutAChange()
{
    bench->click("imperialRadio");
    bench->device().settings().high.blankingMm = 6096;
    QVERIFY(bench->connectToSounder());
    QCOMPARE(bench->find<QSlider>("highBlankingSlider")->value(), 2000); // 20 ft
    bench->click("connectToDevice");
    log->clear();
    bench->click("metricRadio");
    QCOMPARE(bench->find<QSlider>("highBlankingSlider")->value(), 1000);
    QCOMPARE(bench->text("highBlank"), QString("0.45"));
    QCOMPARE(log->count("Changing"), 0);
    QCOMPARE(log->count("trigger change"), 0);
}

/// The operator cannot do this; should it happen all the same, the sounder must not notice. (The
/// sliders move, because their ranges do.)
void UnitDisplayTest::switchingWhileConnectedSendsAndStoresNothing()
{
    QVERIFY(bench->connectToSounder());
    QVERIFY(!bench->isEnabled("imperialRadio"));
    bench->device().clearTranscript();
    log->clear();
    bench->find<QRadioButton>("imperialRadio")->setChecked(true);
    QCOMPARE(bench->find<QSlider>("highBlankingSlider")->value(), 100);
    QCOMPARE(log->count("Changing"), 0);
    QCOMPARE(log->count("trigger change"), 0);
    QVERIFY(!bench->timer("commandTimer")->isActive());
    QCOMPARE(bench->settingCommands(), QByteArrayList{});
}

void UnitDisplayTest::editsActAgainAfterASwitch()
{
    bench->click("imperialRadio");
    QVERIFY(bench->connectToSounder());
    bench->find<QSlider>("highBlankingSlider")->setValue(500);
    QTRY_COMPARE(bench->settingCommands(), QByteArrayList{"*m01524H"});
}

void UnitDisplayTest::aStoredValueStaysMetricThroughASwitch()
{
    QVERIFY(bench->connectToSounder());
    bench->type("highDraft", "0.45");
    QTRY_COMPARE(bench->device().settings().high.draftMm, 450);
    bench->click("connectToDevice");
    bench->click("imperialRadio");
    QVERIFY(bench->connectToSounder());
    QCOMPARE(bench->text("highDraft"), QString("1.48"));
    bench->click("connectToDevice");
    bench->click("metricRadio");
    QVERIFY(bench->connectToSounder());
    QCOMPARE(bench->text("highDraft"), QString("0.45"));
    QCOMPARE(bench->settingCommands(), QByteArrayList{"*o00450H"});
}

void UnitDisplayTest::theSettingsReplyBringsTheDevicesValuesInTheChosenUnit()
{
    bench->click("imperialRadio");
    QVERIFY(bench->connectToSounder());
    QCOMPARE(bench->text("soundVelocityEdit"), QString("4921"));
    QCOMPARE(bench->text("maxDepthEdit"), QString("98"));
    QCOMPARE(bench->text("highDraft"), QString("1.31"));
    QCOMPARE(bench->text("highBlankEdit"), QString("1.48 ft"));
    QCOMPARE(bench->text("lowBlank"), QString("1.64"));
}

QTEST_MAIN(UnitDisplayTest)

#include "tst_unitdisplay.moc"
