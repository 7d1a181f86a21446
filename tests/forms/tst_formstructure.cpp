// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "formbench.h"
#include "formtable.h"

#include <QAccessible>
#include <QButtonGroup>
#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>

namespace {

QStringList childrenOf(const QWidget *parent)
{
    QStringList names;
    const auto children = parent->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget *child : children) {
        names << child->objectName();
    }
    names.sort();
    return names;
}

QString spokenName(QWidget *widget)
{
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(widget);
    return accessible == nullptr ? QString() : accessible->text(QAccessible::Name);
}

/// The names of the controls in the order in which the tab key reaches them from `first`.
QStringList tabOrderFrom(QWidget *first, const QStringList &controls)
{
    QStringList order;
    QWidget *widget = first;
    do {
        if (controls.contains(widget->objectName())) {
            order << widget->objectName();
        }
        widget = widget->nextInFocusChain();
    } while (widget != first);
    return order;
}

} // namespace

class tst_FormStructure : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        wearProgramStyle();
        untouched = std::make_unique<FormBench>();
    }

    void atStartMetricEnableShallowLog10AndLog20AreChecked();
    void atStartHelpOnTheCommonSettingsIsDisabled();
    void enableAndDisableExcludeEachOtherByTheirParent_data();
    void enableAndDisableExcludeEachOtherByTheirParent();
    void autosaveSwitchesOnAndOff();
    void containerHoldsWhatIsLockedTogether_data();
    void containerHoldsWhatIsLockedTogether();
    void rateHolderHoldsNothingButTheDeviceRate();
    void helpOnTheHeadingsStaysOutsideWhatIsLocked_data();
    void helpOnTheHeadingsStaysOutsideWhatIsLocked();
    void menuButtonStaysWhenTheDetailsAreHidden();
    void everyControlSaysWhatItIs_data();
    void everyControlSaysWhatItIs();
    void noTwoControlsSayTheSame();
    void tabKeyFollowsTheReadingOrder();

private:
    std::unique_ptr<const FormBench> untouched; ///< for what only looks at it
};

void tst_FormStructure::atStartMetricEnableShallowLog10AndLog20AreChecked()
{
    const FormBench &form = *untouched;
    QStringList checked;
    const auto radios = form.window.findChildren<QRadioButton *>();
    for (const QRadioButton *radio : radios) {
        if (radio->isChecked()) {
            checked << radio->objectName();
        }
    }
    checked.sort();
    QCOMPARE(checked, (QStringList{"enableHF", "enableLF", "highLog10Tvg", "highShallowRadio",
                                   "lowLog20Tvg", "lowShallowRadio", "metricRadio"}));
}

void tst_FormStructure::atStartHelpOnTheCommonSettingsIsDisabled()
{
    const FormBench &form = *untouched;
    QVERIFY(!form.ui.commonSettingsInfo->isEnabled());
    QVERIFY(form.ui.selectRateInfo->isEnabled());
}

void tst_FormStructure::enableAndDisableExcludeEachOtherByTheirParent_data()
{
    QTest::addColumn<QByteArray>("enable");
    QTest::addColumn<QByteArray>("disable");
    QTest::newRow("high frequency") << QByteArray("enableHF") << QByteArray("disableHF");
    QTest::newRow("low frequency") << QByteArray("enableLF") << QByteArray("disableLF");
}

void tst_FormStructure::enableAndDisableExcludeEachOtherByTheirParent()
{
    QFETCH(QByteArray, enable);
    QFETCH(QByteArray, disable);
    FormBench form;
    auto *on = form.find<QRadioButton>(enable);
    auto *off = form.find<QRadioButton>(disable);
    QVERIFY(on->group() == nullptr && off->group() == nullptr);
    QCOMPARE(on->parentWidget(), off->parentWidget());
    QTest::mouseClick(off, Qt::LeftButton, Qt::NoModifier, QPoint(12, off->height() / 2));
    QVERIFY(off->isChecked() && !on->isChecked());
    QTest::mouseClick(on, Qt::LeftButton, Qt::NoModifier, QPoint(12, on->height() / 2));
    QVERIFY(on->isChecked() && !off->isChecked());
}

void tst_FormStructure::autosaveSwitchesOnAndOff()
{
    FormBench form;
    QVERIFY(!form.ui.autoSave->isChecked());
    form.ui.autoSave->click();
    QVERIFY(form.ui.autoSave->isChecked());
    form.ui.autoSave->click();
    QVERIFY2(!form.ui.autoSave->isChecked(), "autosave cannot be switched off again");
}

void tst_FormStructure::containerHoldsWhatIsLockedTogether_data()
{
    QTest::addColumn<QStringList>("held");
    QTest::newRow("commonHolder") << QStringList{"pingEdit", "soundVelocityEdit", "maxDepthEdit"};
    QTest::newRow("widget") << QStringList{"headerLabel", "autoSave"};
    QTest::newRow("widget_2") << QStringList{"portComboBox", "connectToDevice", "metricRadio"};
    QTest::newRow("widget_3") << QStringList{"infoLabel", "temperatureLabel", "commonHolder"};
    QTest::newRow("tabsHolder") << QStringList{"h", "highFreqTab", "lowFreqTab"};
    QTest::newRow("widget_34") << QStringList{"openGraph", "highDepthLabel", "outputRateHolder",
                                              "formatComboBox", "saveSettingsToDevice"};
    QTest::newRow("widget_36") << QStringList{"hamburgerButton", "widget_40"};
    QTest::newRow("widget_40") << QStringList{"label_34", "label_33", "label_24", "widget_41"};
    QTest::newRow("widget_41") << QStringList{"BootloadButton", "label_36", "label_35"};
    QTest::newRow("highUpperRow") << QStringList{"highEnableColumn", "highModeColumn",
                                                 "highTvgColumn"};
    QTest::newRow("highEnableColumn") << QStringList{"enableHF", "disableHF"};
    QTest::newRow("highModeColumn")
        << QStringList{"highShallowRadio", "highAutoRadio", "highManualRadio"};
    QTest::newRow("highTvgColumn") << QStringList{"highOffTvg", "highLog10Tvg", "highLog20Tvg"};
    QTest::newRow("highLowerPart") << QStringList{"highManualGroup", "highInputsGroup"};
    QTest::newRow("highManualGroup")
        << QStringList{"highPulseSlider", "highGainSlider", "highDetectSlider", "highDetectUp"};
    QTest::newRow("highInputsGroup")
        << QStringList{"highDraft", "highIndex", "highFreq", "highBlank", "highBlankingSlider"};
    QTest::newRow("lowUpperRow") << QStringList{"lowEnableColumn", "lowModeColumn", "lowTvgColumn"};
    QTest::newRow("lowEnableColumn") << QStringList{"enableLF", "disableLF"};
    QTest::newRow("lowModeColumn")
        << QStringList{"lowShallowRadio", "lowAutoRadio", "lowManualRadio"};
    QTest::newRow("lowTvgColumn") << QStringList{"lowOffTvg", "lowLog10Tvg", "lowLog20Tvg"};
    QTest::newRow("lowLowerPart") << QStringList{"lowManualGroup", "lowInputsGroup"};
    QTest::newRow("lowManualGroup")
        << QStringList{"lowPulseSlider", "lowGainSlider", "lowDetectSlider", "lowDetectUp"};
    QTest::newRow("lowInputsGroup")
        << QStringList{"lowDraft", "lowIndex", "lowFreq", "lowBlank", "lowBlankingSlider"};
}

void tst_FormStructure::containerHoldsWhatIsLockedTogether()
{
    QFETCH(QStringList, held);
    const FormBench &form = *untouched;
    const auto *container = form.find(QTest::currentDataTag());
    QVERIFY(container != nullptr);
    for (const QString &name : qAsConst(held)) {
        QVERIFY2(container->findChild<QWidget *>(name) != nullptr, qPrintable(name));
    }
}

void tst_FormStructure::rateHolderHoldsNothingButTheDeviceRate()
{
    const FormBench &form = *untouched;
    QCOMPARE(childrenOf(form.ui.outputRateHolder),
             (QStringList{"newBaudComboBox", "newBaudLabel"}));
}

void tst_FormStructure::helpOnTheHeadingsStaysOutsideWhatIsLocked_data()
{
    QTest::addColumn<QByteArray>("channel");
    QTest::newRow("high frequency") << QByteArray("high");
    QTest::newRow("low frequency") << QByteArray("low");
}

void tst_FormStructure::helpOnTheHeadingsStaysOutsideWhatIsLocked()
{
    QFETCH(QByteArray, channel);
    const FormBench &form = *untouched;
    const auto *upper = form.find(channel + "UpperRow");
    const auto *page = form.find(channel + "FreqTab");
    for (const char *help : {"EnableInfo", "ModeInfo", "TVGInfo"}) {
        const auto *button = form.find(channel + help);
        QVERIFY(button != nullptr);
        QVERIFY2(!upper->isAncestorOf(button), help);
        QVERIFY2(page->isAncestorOf(button), help);
    }
}

void tst_FormStructure::menuButtonStaysWhenTheDetailsAreHidden()
{
    FormBench form;
    QVERIFY(form.show({1136, 800}));
    form.ui.widget_40->hide();
    QVERIFY(form.ui.hamburgerButton->isVisible());
    for (const QWidget *gone : {form.ui.label_36, form.ui.label_34}) {
        QVERIFY2(!gone->isVisible(), qPrintable(gone->objectName()));
    }
}

void tst_FormStructure::everyControlSaysWhatItIs_data()
{
    QTest::addColumn<bool>("hasText");
    for (const Control &control : controlTable()) {
        QTest::newRow(control.name) << (qstrlen(control.text) > 0);
    }
}

void tst_FormStructure::everyControlSaysWhatItIs()
{
    QFETCH(bool, hasText);
    const FormBench &form = *untouched;
    auto *control = form.find(QTest::currentDataTag());
    QVERIFY(control != nullptr);
    QVERIFY2(hasText || !control->accessibleName().isEmpty(),
             "a screen reader has nothing to say for this control");
    QVERIFY(!spokenName(control).isEmpty());
}

void tst_FormStructure::noTwoControlsSayTheSame()
{
    const FormBench &form = *untouched;
    QHash<QString, QByteArray> said;
    for (const Control &control : controlTable()) {
        const QString name = spokenName(form.find(control.name));
        const QByteArray page = QByteArray(control.name).startsWith("low") ? "low" : "";
        const QString key = name + QLatin1String(page);
        QVERIFY2(!said.contains(key),
                 qPrintable(name + ": " + said.value(key) + " and " + control.name));
        said.insert(key, control.name);
    }
}

void tst_FormStructure::tabKeyFollowsTheReadingOrder()
{
    const FormBench &form = *untouched;
    QStringList expected;
    for (const Control &control : controlTable()) {
        expected << QLatin1String(control.name);
    }
    const QStringList order = tabOrderFrom(form.ui.autoSave, expected);
    for (int i = 0; i < std::min(order.size(), expected.size()); ++i) {
        QCOMPARE(order.at(i), expected.at(i));
    }
    QCOMPARE(order.size(), expected.size());
}

QTEST_MAIN(tst_FormStructure)
#include "tst_formstructure.moc"
