// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// The Tab key leads an operator through all that can be used, in the order of reading.

#include "appearance.h"
#include "keyhand.h"
#include "readybench.h"
#include "toplevels.h"

#include <QButtonGroup>
#include <QRadioButton>
#include <QScrollBar>

#include <algorithm>

using namespace KeyHand;

namespace {

const QString tabBar = QStringLiteral("qt_tabwidget_tabbar");

const QStringList commonStops{
    "connectToDevice", "commonSettingsInfo", "pingDown",          "pingEdit",
    "pingUp",          "soundVelocityDown",  "soundVelocityEdit", "soundVelocityUp",
    "maxDepthDown",    "maxDepthEdit",       "maxDepthUp",        tabBar};

/// One stop for each set of options, at the one that is chosen.
QStringList channelStops(const QString &channel, const QStringList &chosen)
{
    const auto named = [&channel](const QStringList &names) {
        return QStringList(names).replaceInStrings(QRegularExpression("^"), channel);
    };
    return named({"EnableInfo", "ModeInfo", "TVGInfo"}) + chosen +
           named({"PulseInfo",     "PulseSlider", "PulseDown",  "PulseUp",    "GainInfo",
                  "GainSlider",    "GainDown",    "GainUp",     "DetectInfo", "DetectSlider",
                  "DetectDown",    "DetectUp",    "InputsInfo", "DraftDown",  "Draft",
                  "DraftUp",       "IndexDown",   "Index",      "IndexUp",    "FreqDown",
                  "Freq",          "FreqUp",      "BlankDown",  "Blank",      "BlankUp",
                  "BlankingSlider"});
}

const QStringList highStops = channelStops("high", {"enableHF", "highManualRadio", "highLog10Tvg"});
const QStringList lowStops = channelStops("low", {"enableLF", "lowManualRadio", "lowLog20Tvg"});
const QStringList outputStops{"openGraph", "newBaudComboBox", "formatComboBox", "resetSettings",
                              "saveSettingsToDevice"};
const QStringList footerStops{"hamburgerButton", "BootloadButton"};
const QStringList helpStop{"selectRateInfo"};
const QStringList connectionStops{"portComboBox", "baudComboBox"};

QStringList reversed(QStringList stops)
{
    std::reverse(stops.begin() + 1, stops.end());
    return stops;
}

/// The window active, with all that it can offer: the updater's button too.
bool getReady(WindowBench &bench)
{
    bench.find<QWidget>("BootloadButton")->show();
    bench.window.activateWindow();
    bench.find<QWidget>("connectToDevice")->setFocus();
    return QTest::qWaitForWindowActive(&bench.window);
}

QStringList alternativesTo(const QRadioButton *option)
{
    QStringList names;
    if (option->group() != nullptr) {
        const auto buttons = option->group()->buttons();
        for (const QAbstractButton *button : buttons) {
            names.append(button->objectName());
        }
        return names;
    }
    for (const QRadioButton *button : option->parentWidget()->findChildren<QRadioButton *>()) {
        names.append(button->objectName());
    }
    return names;
}

bool isRinged(WindowBench &bench, const QWidget *control)
{
    const auto *const ring = bench.find<QWidget>("focusRing");
    const QRect place(control->mapTo(&bench.window, QPoint()), control->size());
    const QRect seen(ring->mapTo(&bench.window, QPoint()), ring->size());
    return ring->isVisible() && seen.contains(place) && !ring->visibleRegion().isEmpty();
}

} // namespace

class TestTabKey : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { giveProgramStyle(); }

    void followsTheReadingOrder_data();
    void followsTheReadingOrder();
    void leadsThroughWhatIsUsableBeforeConnecting();
    void leavesNoControlOut();
    void stopsAtTheChosenOption_data();
    void stopsAtTheChosenOption();
    void bringsWhatItReachesIntoView_data();
    void bringsWhatItReachesIntoView();
    void staysInThePopupsThatHaveOneControl();
};

void TestTabKey::followsTheReadingOrder_data()
{
    QTest::addColumn<QString>("channel");
    QTest::addColumn<QStringList>("stops");
    QTest::newRow("high frequency")
        << "high" << commonStops + highStops + outputStops + footerStops + helpStop;
    QTest::newRow("low frequency")
        << "low" << commonStops + lowStops + outputStops + footerStops + helpStop;
}

void TestTabKey::followsTheReadingOrder()
{
    QFETCH(QString, channel);
    QFETCH(QStringList, stops);
    ReadyBench bench;
    bench.openTab(channel);
    QVERIFY(getReady(bench));
    QCOMPARE(walk(bench.window, Qt::Key_Tab), stops);
    QCOMPARE(walk(bench.window, Qt::Key_Tab, Qt::ShiftModifier), reversed(stops));
    QVERIFY2(!bench.hasPendingChange(), "looking round has changed a setting");
}

void TestTabKey::leadsThroughWhatIsUsableBeforeConnecting()
{
    WindowBench bench;
    QVERIFY(getReady(bench));
    const QStringList stops = QStringList{"connectToDevice", "metricRadio", tabBar} + footerStops +
                              helpStop + connectionStops;
    QCOMPARE(walk(bench.window, Qt::Key_Tab), stops);
    QCOMPARE(walk(bench.window, Qt::Key_Tab, Qt::ShiftModifier), reversed(stops));
}

/// Of a set of options one is a stop, and the arrow keys lead to the others. The scroll bars follow
/// the focus by themselves; the autosave switch is never offered.
void TestTabKey::leavesNoControlOut()
{
    QStringList reached;
    ReadyBench bench;
    QVERIFY(getReady(bench));
    for (const char *channel : {"high", "low"}) {
        bench.openTab(channel);
        bench.find<QWidget>("connectToDevice")->setFocus();
        reached += walk(bench.window, Qt::Key_Tab);
    }
    bench.click("connectToDevice");
    reached += walk(bench.window, Qt::Key_Tab);
    QStringList left;
    int count = 0;
    for (const QWidget *control : interactiveWidgets(bench.window)) {
        QStringList ways{nameOf(control)};
        const auto *const option = qobject_cast<const QRadioButton *>(control);
        if (option != nullptr && option->autoExclusive()) {
            ways = alternativesTo(option);
        }
        const bool isReached =
            std::any_of(ways.begin(), ways.end(),
                        [&reached](const QString &way) { return reached.contains(way); });
        const bool isScrollBar = qobject_cast<const QScrollBar *>(control) != nullptr;
        if (!isReached && !isScrollBar && control->objectName() != "autoSave") {
            left.append(nameOf(control));
        }
        ++count;
    }
    QVERIFY2(left.isEmpty(), qPrintable("the Tab key passes over " + left.join(", ")));
    QVERIFY2(count > 90, qPrintable(QStringLiteral("only %1 controls looked at").arg(count)));
}

void TestTabKey::stopsAtTheChosenOption_data()
{
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QString>("before");
    QTest::newRow("enableHF") << "enableHF"
                              << "highTVGInfo";
    QTest::newRow("disableHF") << "disableHF"
                               << "highTVGInfo";
    for (const char *mode : {"highShallowRadio", "highAutoRadio", "highManualRadio"}) {
        QTest::newRow(mode) << mode << "enableHF";
    }
    for (const char *law : {"highOffTvg", "highLog10Tvg", "highLog20Tvg"}) {
        QTest::newRow(law) << law << "highManualRadio";
    }
    QTest::newRow("imperialRadio") << "imperialRadio"
                                   << "connectToDevice";
    QTest::newRow("metricRadio") << "metricRadio"
                                 << "connectToDevice";
}

void TestTabKey::stopsAtTheChosenOption()
{
    QFETCH(QString, chosen);
    QFETCH(QString, before);
    ReadyBench bench;
    if (before == "connectToDevice") {
        bench.click("connectToDevice"); // the unit is chosen before connecting
    }
    QVERIFY(getReady(bench));
    bench.click(chosen);
    bench.find<QWidget>(before)->setFocus();
    press(bench.window, Qt::Key_Tab);
    QCOMPARE(focused(), chosen);
    press(bench.window, Qt::Key_Tab);
    press(bench.window, Qt::Key_Tab, Qt::ShiftModifier);
    QCOMPARE(focused(), chosen);
}

void TestTabKey::bringsWhatItReachesIntoView_data()
{
    QTest::addColumn<QString>("channel");
    QTest::newRow("high frequency") << "high";
    QTest::newRow("low frequency") << "low";
}

void TestTabKey::bringsWhatItReachesIntoView()
{
    QFETCH(QString, channel);
    ReadyBench bench;
    bench.openTab(channel);
    QVERIFY(getReady(bench));
    bench.window.resize(500, 300);
    QTRY_VERIFY(bench.window.width() <= 500);
    for (const Qt::KeyboardModifiers modifiers :
         {Qt::KeyboardModifiers(), Qt::KeyboardModifiers(Qt::ShiftModifier)}) {
        const int stops = commonStops.size() + highStops.size() + outputStops.size();
        for (int i = 0; i < stops; ++i) {
            press(bench.window, Qt::Key_Tab, modifiers);
            const QWidget *const reached = QApplication::focusWidget();
            const QRegion seen = reached->visibleRegion();
            QVERIFY2(seen.boundingRect() == reached->rect(),
                     qPrintable(focused() + " has the keyboard and cannot be seen"));
            QVERIFY2(isRinged(bench, reached), qPrintable("no ring around " + focused()));
        }
    }
}

void TestTabKey::staysInThePopupsThatHaveOneControl()
{
    ReadyBench bench;
    QVERIFY(getReady(bench));
    const QWidgetList inHelp = interactiveWidgets(*topLevel<InfoForm>());
    QCOMPARE(inHelp.size(), 1);
    QVERIFY2(interactiveWidgets(*topLevel<depthGraph>()).isEmpty(), "the Tab key must reach it");
    bench.click("selectRateInfo");
    QVERIFY(QTest::qWaitForWindowActive(topLevel<InfoForm>()));
    QCOMPARE(walk(*topLevel<InfoForm>(), Qt::Key_Tab), QStringList{"pushButton"});
}

QTEST_MAIN(TestTabKey)
#include "tst_tabkey.moc"
