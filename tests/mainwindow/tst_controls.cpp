// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "controlbench.h"
#include "infoform.h"

#include <QLabel>
#include <QRegularExpression>
#include <QtTest>

#include <memory>

namespace {

constexpr char hfUnit[] = "TalVero New HF 2.14.7";
constexpr char lfUnit[] = "TalVero New LF 2.14.7";
constexpr auto &dualUnit = ReportBench::dualBanner;

/// What the KESTROLA format fixes in a dual unit.
const QStringList fixedByKestrola = {"high gain law", "high mode", "low gain law", "low mode",
                                     "rate"};

/// What is greyed while a channel is off: all but the buttons that switch it on, and the help.
QStringList areasOf(const QString &channel)
{
    return {channel + " gain law", channel + " inputs", channel + " manual", channel + " mode"};
}

/// What is greyed for a channel that the unit does not carry.
QStringList everythingOf(const QString &channel)
{
    return areasOf(channel) + QStringList{channel + " enable"};
}

QStringList offlineGroups() { return {"always", "connection"}; }

/// What can be used of a connected device while these groups are greyed.
QStringList connectedGroupsWithout(const QStringList &greyed)
{
    QStringList usable;
    for (const auto &[group, members] : ControlBench::groups()) {
        if (group != "connection" && !greyed.contains(group)) {
            usable.append(group);
        }
    }
    return usable;
}

} // namespace

/// Which controls the operator can use when.
class TestControls : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void groupsHoldEveryControlOfTheForm();
    void startOffersTheConnectionOnly();
    void connectingOffersTheConnectionOnly();
    void connectedOffersWhatTheUnitAllows_data();
    void connectedOffersWhatTheUnitAllows();
    void endOfTheConnectionOffersTheConnectionOnly_data();
    void endOfTheConnectionOffersTheConnectionOnly();
    void nextUnitIsOfferedAfresh_data();
    void nextUnitIsOfferedAfresh();
    void kestrolaChosenByTheOperatorFixesAndFrees();
    void emptyHeadingStaysGreyed();
    void headingHelpOpensForAChannelThatIsOff_data();
    void headingHelpOpensForAChannelThatIsOff();
    void greyedControlSendsNothing();
    void greyingLeavesTheHolderItself();
    void refreshClearsTheStatus();
    void refreshClearsTheLowDepthWhileLowIsOff();

private:
    void perform(const QStringList &steps);

    std::unique_ptr<ControlBench> bench;
};

void TestControls::init() { bench = std::make_unique<ControlBench>(); }

void TestControls::cleanup() { bench.reset(); }

/// Steps that begin with "*" are lines from the device, all others are buttons to click.
void TestControls::perform(const QStringList &steps)
{
    for (const QString &step : steps) {
        if (step.startsWith('*')) {
            QVERIFY(bench->tell(step.toLatin1()));
        } else {
            bench->clickOnItsTab(step);
            QVERIFY2(bench->isChecked(step), "the click did not reach the button");
        }
    }
}

/// A control that belongs to no group would be looked at by no test below.
void TestControls::groupsHoldEveryControlOfTheForm()
{
    QStringList grouped{"autoSave"}; // never offered
    for (const auto &[group, members] : ControlBench::groups()) {
        grouped += members;
    }
    const QRegularExpression interactive(
        "^(QPushButton|QRadioButton|QComboBox|QLineEdit|QSlider)$");
    QStringList forgotten;
    for (const QWidget *widget : bench->window.findChildren<QWidget *>()) {
        const QString kind = widget->metaObject()->className();
        if (interactive.match(kind).hasMatch() && !grouped.contains(widget->objectName()) &&
            !widget->objectName().startsWith("qt_")) {
            forgotten.append(widget->objectName());
        }
    }
    QCOMPARE(forgotten, QStringList());
}

void TestControls::startOffersTheConnectionOnly()
{
    QCOMPARE(bench->usableGroups(), offlineGroups());
}

void TestControls::connectingOffersTheConnectionOnly()
{
    QVERIFY(bench->startConnecting());
    QCOMPARE(bench->usableGroups(), offlineGroups());
}

void TestControls::connectedOffersWhatTheUnitAllows_data()
{
    QTest::addColumn<QByteArray>("banner");
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<QStringList>("greyed");
    const auto row = [](const char *name, const char *banner, const QStringList &steps,
                        const QStringList &greyed) {
        QTest::newRow(name) << QByteArray(banner) << steps << greyed;
    };
    row("dual unit", dualUnit, {}, {});
    row("high only", hfUnit, {}, everythingOf("low"));
    row("low only", lfUnit, {}, everythingOf("high"));
    row("unit that does not name its fit", "TalVero New 2.14.7", {}, {});
    row("high only, reply switches low on", hfUnit, {"*i5,H1,L1"}, everythingOf("low"));
    row("low only, reply switches high on", lfUnit, {"*i5,H1,L1"}, everythingOf("high"));

    row("high auto", dualUnit, {"*Hca"}, {"high manual"});
    row("low auto", dualUnit, {"*Lca"}, {"low manual"});
    row("both auto", dualUnit, {"*Hca", "*Lca"}, {"high manual", "low manual"});
    row("high auto, then manual", dualUnit, {"*Hca", "*Hcm"}, {});
    row("low auto, then manual", dualUnit, {"*Lca", "*Lcm"}, {});
    row("high shallow", dualUnit, {"*Hcs"}, areasOf("low") + QStringList{"high manual"});
    row("low shallow is no reply", dualUnit, {"*Lcs"}, {});
    row("high auto of a low-only unit", lfUnit, {"*Hca"}, everythingOf("high"));
    row("low auto of a low-only unit", lfUnit, {"*Lca"},
        everythingOf("high") + QStringList{"low manual"});

    row("high off by reply", dualUnit, {"*i5,H0"}, areasOf("high"));
    row("low off by reply", dualUnit, {"*i5,L0"}, areasOf("low"));
    row("both off by reply", dualUnit, {"*i5,H0,L0"}, areasOf("high") + areasOf("low"));
    row("high off by hand", dualUnit, {"disableHF", "*i5"}, areasOf("high"));
    row("low off by hand", dualUnit, {"disableLF", "*i5"}, areasOf("low"));
    row("high off and manual", dualUnit, {"*i5,H0", "*Hcm"}, areasOf("high"));
    row("low off and manual", dualUnit, {"*i5,L0", "*Lcm"}, areasOf("low"));
    row("high off and on, shallow", dualUnit, {"disableHF", "enableHF", "*i5"}, {"high manual"});
    row("low off and on, shallow", dualUnit, {"disableLF", "enableLF", "*i5"}, {"low manual"});
    row("high off and on, manual", dualUnit, {"*Hcm", "disableHF", "enableHF", "*i5"}, {});
    row("low off and on, manual", dualUnit, {"*Lcm", "disableLF", "enableLF", "*i5"}, {});
    row("reply's on leaves the channel off", dualUnit, {"*i5,H0,H1"}, areasOf("high"));

    row("KESTROLA", dualUnit, {"*i5,a6"}, fixedByKestrola);
    row("KESTROLA, then ODOM", dualUnit, {"*i5,a6", "*i5,a1"}, {});
    row("KESTROLA, then unknown", dualUnit, {"*i5,a6", "*i5,a0"}, fixedByKestrola);
    row("KESTROLA, high auto", dualUnit, {"*i5,a6", "*Hca"},
        fixedByKestrola + QStringList{"high manual"});
    row("KESTROLA, high off", dualUnit, {"*i5,a6,H0"}, fixedByKestrola + areasOf("high"));
    row("KESTROLA, low off, then ODOM", dualUnit, {"*i5,a6,L0", "*i5,a1"}, areasOf("low"));
    row("KESTROLA, high only", hfUnit, {"*i5,a6"}, fixedByKestrola + everythingOf("low"));
    row("KESTROLA, low only, then ODOM", lfUnit, {"*i5,a6", "*i5,a1"}, everythingOf("high"));
}

void TestControls::connectedOffersWhatTheUnitAllows()
{
    QFETCH(QByteArray, banner);
    QFETCH(QStringList, steps);
    QFETCH(QStringList, greyed);
    QVERIFY(bench->connectAs(banner));
    perform(steps);
    QCOMPARE(bench->usableGroups(), connectedGroupsWithout(greyed));
}

void TestControls::endOfTheConnectionOffersTheConnectionOnly_data()
{
    QTest::addColumn<QByteArray>("banner");
    QTest::addColumn<QStringList>("steps");
    QTest::newRow("dual unit") << QByteArray(dualUnit) << QStringList();
    QTest::newRow("high only") << QByteArray(hfUnit) << QStringList();
    QTest::newRow("low only") << QByteArray(lfUnit) << QStringList{"*Lca"};
    QTest::newRow("high off") << QByteArray(dualUnit) << QStringList{"*i5,H0", "*Lca"};
}

void TestControls::endOfTheConnectionOffersTheConnectionOnly()
{
    QFETCH(QByteArray, banner);
    QFETCH(QStringList, steps);
    QVERIFY(bench->connectAs(banner));
    perform(steps);
    bench->click("connectToDevice");
    QCOMPARE(bench->usableGroups(), offlineGroups());
}

void TestControls::nextUnitIsOfferedAfresh_data()
{
    QTest::addColumn<QByteArray>("banner");
    QTest::addColumn<QStringList>("steps");
    QTest::newRow("after high only") << QByteArray(hfUnit) << QStringList();
    QTest::newRow("after low only") << QByteArray(lfUnit) << QStringList();
    QTest::newRow("after both channels off") << QByteArray(dualUnit) << QStringList{"*i5,H0,L0"};
    QTest::newRow("after KESTROLA") << QByteArray(dualUnit) << QStringList{"*i5,a6"};
    QTest::newRow("after auto") << QByteArray(dualUnit) << QStringList{"*Hca", "*Lca"};
}

void TestControls::nextUnitIsOfferedAfresh()
{
    QFETCH(QByteArray, banner);
    QFETCH(QStringList, steps);
    QVERIFY(bench->connectAs(banner));
    perform(steps);
    bench->click("connectToDevice");
    QVERIFY(bench->connectAs(dualUnit));
    perform({"*i5,a1,H1,L1", "*Hcm", "*Lcm"});
    QCOMPARE(bench->usableGroups(), connectedGroupsWithout({}));
}

void TestControls::kestrolaChosenByTheOperatorFixesAndFrees()
{
    QVERIFY(bench->connectAs());
    bench->choose("formatComboBox", "KESTROLA");
    QCOMPARE(bench->usableGroups(), connectedGroupsWithout(fixedByKestrola));
    QVERIFY2(!bench->isEnabled("newBaudLabel"), "the rate's caption is greyed with its list");
    bench->choose("formatComboBox", "DESO 25");
    QCOMPARE(bench->usableGroups(), connectedGroupsWithout({}));
    QVERIFY(bench->isEnabled("newBaudLabel"));
}

void TestControls::emptyHeadingStaysGreyed()
{
    QVERIFY(!bench->isEnabled("label_30"));
    QVERIFY(bench->connectAs());
    QVERIFY(!bench->isEnabled("label_30"));
    perform({"*i5,a6", "*Hca", "*i5,H0", "*i5,a1", "*Hcm"});
    QVERIFY(!bench->isEnabled("label_30"));
}

void TestControls::headingHelpOpensForAChannelThatIsOff_data()
{
    QTest::addColumn<QByteArray>("banner");
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("topic");
    const auto row = [](const char *banner, const QStringList &steps, const char *button,
                        const char *topic) {
        QTest::addRow("%s %s", banner, button)
            << QByteArray(banner) << steps << QString(button) << QString(topic);
    };
    row(lfUnit, {}, "highEnableInfo", "Enable/Disable");
    row(lfUnit, {}, "highModeInfo", "Echo Sounder Mode");
    row(hfUnit, {}, "lowTVGInfo", "Time Variable Gain");
    row(dualUnit, {"*i5,H0,L0,a6"}, "highTVGInfo", "Time Variable Gain");
    row(dualUnit, {"*i5,H0,L0,a6"}, "lowModeInfo", "Echo Sounder Mode");
}

void TestControls::headingHelpOpensForAChannelThatIsOff()
{
    QFETCH(QByteArray, banner);
    QFETCH(QStringList, steps);
    QFETCH(QString, button);
    QFETCH(QString, topic);
    QVERIFY(bench->connectAs(banner));
    perform(steps);
    bench->clickOnItsTab(button);
    QStringList shownTopics;
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && qobject_cast<const InfoForm *>(window) != nullptr) {
            shownTopics.append(window->findChild<QLabel *>("title")->text());
        }
    }
    QCOMPARE(shownTopics, QStringList{topic});
}

void TestControls::greyedControlSendsNothing()
{
    QVERIFY(bench->connectAs());
    perform({"*Hca", "*i5,L0"});
    const QString gain = bench->text("highGainEdit");
    const QString draft = bench->text("lowDraft");
    bench->clickOnItsTab("highGainUp");
    bench->clickOnItsTab("lowDraftUp");
    bench->clickOnItsTab("lowManualRadio");
    QCOMPARE(bench->text("highGainEdit"), gain);
    QCOMPARE(bench->text("lowDraft"), draft);
    QVERIFY(!bench->isChecked("lowManualRadio"));
    QVERIFY(!bench->timer("commandTimer")->isActive());
    QCOMPARE(bench->line.received(), QByteArray());
}

/// Holders keep their own state, so that it does not outlast the reason for the greying.
void TestControls::greyingLeavesTheHolderItself()
{
    QVERIFY(bench->connectAs(lfUnit));
    QVERIFY(bench->isEnabled("highUpperRow"));
    QVERIFY(bench->isEnabled("highLowerPart"));
    QVERIFY(!bench->isEnabled("highModeColumn"));
    bench->click("connectToDevice");
    QVERIFY(bench->connectAs(dualUnit));
    perform({"*i5,a6,H0"});
    QVERIFY(bench->isEnabled("highModeColumn"));
    QVERIFY(bench->isEnabled("outputRateHolder"));
}

void TestControls::refreshClearsTheStatus()
{
    QVERIFY(bench->connectAs());
    QVERIFY(bench->text("temperatureLabel").contains("Voltage"));
    bench->clickOnItsTab("disableHF");
    QCOMPARE(bench->text("temperatureLabel"), QString());
}

void TestControls::refreshClearsTheLowDepthWhileLowIsOff()
{
    QVERIFY(bench->connectAs());
    QVERIFY(bench->tell(" et B 00123 00131"));
    bench->clickOnItsTab("disableHF");
    QCOMPARE(bench->text("lowDepthLabel"), QString("LF Depth: 1.31"));
    bench->clickOnItsTab("disableLF");
    QCOMPARE(bench->text("lowDepthLabel"), QString());
    QCOMPARE(bench->text("highDepthLabel"), QString("HF Depth: 1.23"));
}

QTEST_MAIN(TestControls)

#include "tst_controls.moc"
