// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "formplaces.h"

#include <cstdlib>

class tst_FormOrder : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void blocksFollowEachOtherDownwards();
    void controlsFollowEachOtherToTheRight_data();
    void controlsFollowEachOtherToTheRight();
    void columnsAreAligned_data();
    void columnsAreAligned();
    void stepperStandsOnOneLine_data();
    void stepperStandsOnOneLine();

private:
    FormShelf plain;
    FormShelf filled{fillWithLongTexts};
};

void tst_FormOrder::initTestCase()
{
    wearProgramStyle();
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
}

void tst_FormOrder::blocksFollowEachOtherDownwards()
{
    const FormBench &form = plain.shown(formSize);
    const QList<QWidget *> blocks{form.ui.widget,     form.ui.widget_2,  form.ui.widget_3,
                                  form.ui.tabsHolder, form.ui.widget_34, form.ui.widget_36,
                                  form.ui.statusbar};
    for (int i = 1; i < blocks.size(); ++i) {
        const int end = placeInWindow(blocks.at(i - 1)).y() + blocks.at(i - 1)->height();
        QVERIFY2(placeInWindow(blocks.at(i)).y() >= end, qPrintable(blocks.at(i)->objectName()));
    }
}

void tst_FormOrder::controlsFollowEachOtherToTheRight_data()
{
    QTest::addColumn<QStringList>("row");
    QTest::newRow("header") << QStringList{"headerLabel", "autoSave"};
    QTest::newRow("connection row")
        << QStringList{"selectPortLabel", "selectRateInfo",  "portComboBox",  "baudComboBox",
                       "connectToDevice", "selectModeLabel", "imperialRadio", "metricRadio"};
    QTest::newRow("common heading") << QStringList{"commonSettingsLabel", "commonSettingsInfo",
                                                   "infoLabel", "temperatureLabel"};
    QTest::newRow("common steppers") << QStringList{
        "pingDown",        "pingEdit",     "pingUp",       "soundVelocityDown", "soundVelocityEdit",
        "soundVelocityUp", "maxDepthDown", "maxDepthEdit", "maxDepthUp"};
    QTest::newRow("channel headings")
        << QStringList{"highEnableLabel", "highEnableInfo", "highModeLabel",
                       "highModeInfo",    "highTvgLabel",   "highTVGInfo"};
    QTest::newRow("channel columns") << QStringList{"enableHF", "highShallowRadio", "highOffTvg"};
    QTest::newRow("manual sliders") << QStringList{"highPulseSlider", "highGainSlider",
                                                   "highDetectSlider", "highBlankingSlider"};
    QTest::newRow("manual steppers") << QStringList{
        "highPulseDown", "highPulseEdit",  "highPulseUp",    "highGainDown", "highGainEdit",
        "highGainUp",    "highDetectDown", "highDetectEdit", "highDetectUp"};
    QTest::newRow("draft") << QStringList{"highDraftLabel", "highDraftDown", "highDraft",
                                          "highDraftUp"};
    QTest::newRow("output") << QStringList{"openGraph",       "highDepthLabel",
                                           "newBaudComboBox", "formatComboBox",
                                           "resetSettings",   "saveSettingsToDevice"};
    QTest::newRow("footer") << QStringList{"hamburgerButton", "label_34", "BootloadButton"};
}

void tst_FormOrder::controlsFollowEachOtherToTheRight()
{
    QFETCH(QStringList, row);
    const FormBench &form = filled.shown(formSize);
    int end = 0;
    for (const QString &name : qAsConst(row)) {
        const auto *widget = form.window.findChild<QWidget *>(name);
        QVERIFY2(placeInWindow(widget).x() >= end, qPrintable(name));
        end = placeInWindow(widget).x() + widget->width();
    }
}

void tst_FormOrder::columnsAreAligned_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QStringList>("column");
    for (const QSize size : {startSize, formSize, QSize(1920, 1080)}) {
        const auto column = [size](const QStringList &names) {
            QTest::addRow("%s, %d wide", qPrintable(names.first()), size.width()) << size << names;
        };
        column({"pingLabel", "pingDown", "highEnableLabel", "enableHF", "disableHF"});
        column({"soundVelocityLabel", "soundVelocityDown", "highModeLabel", "highShallowRadio",
                "highAutoRadio", "highManualRadio"});
        column({"maxDepthLabel", "maxDepthDown", "highTvgLabel", "highOffTvg", "highInputsLabel",
                "highDraftLabel", "highBlankLabel", "highBlankingSlider"});
        column({"highDraft", "highIndex", "highFreq", "highBlank"});
        column({"highDraftUp", "highIndexUp", "highFreqUp", "highBlankUp"});
        column({"commonSettingsLabel", "selectPortLabel", "headerLabel"});
    }
}

void tst_FormOrder::columnsAreAligned()
{
    QFETCH(QSize, size);
    QFETCH(QStringList, column);
    const FormBench &form = plain.shown(size);
    const int left = placeInWindow(form.window.findChild<QWidget *>(column.first())).x();
    for (const QString &name : qAsConst(column)) {
        const int x = placeInWindow(form.window.findChild<QWidget *>(name)).x();
        QVERIFY2(std::abs(x - left) <= 1,
                 qPrintable(QStringLiteral("%1 at %2, not %3").arg(name).arg(x).arg(left)));
    }
}

void tst_FormOrder::stepperStandsOnOneLine_data()
{
    QTest::addColumn<QStringList>("stepper");
    const auto stepper = [](const QStringList &names) {
        QTest::newRow(qPrintable(names.at(1))) << names;
    };
    stepper({"pingDown", "pingEdit", "pingUp"});
    stepper({"soundVelocityDown", "soundVelocityEdit", "soundVelocityUp"});
    stepper({"maxDepthDown", "maxDepthEdit", "maxDepthUp"});
    for (const QString &channel : {QStringLiteral("high"), QStringLiteral("low")}) {
        for (const char *key : {"Pulse", "Gain", "Detect"}) {
            const QString name = channel + QLatin1String(key);
            stepper({name + "Down", name + "Edit", name + "Up"});
        }
        for (const char *key : {"Draft", "Index", "Freq", "Blank"}) {
            const QString name = channel + QLatin1String(key);
            stepper({name + "Down", name, name + "Up", name + "Label"});
        }
    }
}

void tst_FormOrder::stepperStandsOnOneLine()
{
    QFETCH(QStringList, stepper);
    const int page = stepper.first().startsWith(QLatin1String("low")) ? 1 : 0;
    const FormBench &form = plain.shown(startSize, page);
    const auto middle = [&form](const QString &name) {
        const auto *widget = form.window.findChild<QWidget *>(name);
        return placeInWindow(widget).y() + widget->height() / 2;
    };
    for (const QString &name : qAsConst(stepper)) {
        QVERIFY2(std::abs(middle(name) - middle(stepper.first())) <= 1, qPrintable(name));
    }
}

QTEST_MAIN(tst_FormOrder)
#include "tst_formorder.moc"
