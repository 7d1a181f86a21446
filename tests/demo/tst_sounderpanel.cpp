// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "appearance.h"
#include "sounderpanel.h"
#include "windowbench.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QToolTip>
#include <QtTest>

namespace {

const QString draftTo50 = QStringLiteral("Setting High Frequency Draft to 0.50 m");

/// A sounder that pings ten times a second in a format with both depths.
SounderOptions soundingUnit()
{
    SounderOptions options = WindowBench::quietSounder();
    options.soundings = true;
    options.format = Odom;
    return options;
}

DepthPair alwaysBothDepths(double /*seconds*/) { return {12.0, 13.0}; }

/// The program's window and the panel beside it, and who works both.
struct Desk : WindowBench
{
    explicit Desk(const SounderOptions &options = quietSounder())
        : WindowBench(options)
        , panel(sounder)
    {
        panel.show();
        QObject::connect(&sounder, &SounderLine::hungUp, &panel,
                         [this] { ports = portsOf(sounder); });
    }

    template <typename Widget>
    Widget &control(const char *name)
    {
        auto *const widget = panel.findChild<Widget *>(name);
        if (widget == nullptr) {
            qFatal("The panel has no %s", name);
        }
        return *widget;
    }

    /// Where a check box or a radio button answers: at its left end.
    void press(const char *name)
    {
        auto &button = control<QAbstractButton>(name);
        constexpr int insideIndicator = 8;
        QTest::mouseClick(&button, Qt::LeftButton, {},
                          QPoint(insideIndicator, button.height() / 2));
    }

    void pullOrPlugIn()
    {
        press("cable");
        ports = portsOf(sounder);
    }

    bool lists(const QString &port) { return find<QComboBox>("portComboBox")->findText(port) >= 0; }

    bool comesToRead(const QString &words)
    {
        constexpr int patienceMs = 10000;
        return QTest::qWaitFor([&] { return info() == words; }, patienceMs);
    }

    SounderPanel panel;
};

} // namespace

/// What the operator reads in the window when somebody plays the faults on the panel.
class TestSounderPanel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { giveProgramStyle(); }

    void tellsThePortToChoose();
    void pulledCableLosesTheLinkAndThePort();
    void pluggedInAgainItConnectsAndKnowsItsSettings();
    void silenceTimesOutAndLosesTheLink();
    void refusedChangeIsTold();
    void channelsOfAnotherUnitAreGrey_data();
    void channelsOfAnotherUnitAreGrey();
    void noiseDoesNoHarm();
    void sounderIsNotHeldUpByAPressedButton();
    void everyControlTellsWhatWillBeSeen();
    void tellsItWhileTheWindowHasTheKeyboard();
    void panelMayBeClosedTheWindowEndsTheProgram();
};

void TestSounderPanel::tellsThePortToChoose()
{
    Desk desk;
    QCOMPARE(desk.control<QLabel>("port").text(), desk.sounder.portPath());
    QVERIFY(desk.lists(desk.sounder.portPath()));
    QVERIFY(desk.connectToSounder("Auto"));
}

void TestSounderPanel::pulledCableLosesTheLinkAndThePort()
{
    Desk desk;
    QVERIFY(desk.connectToSounder());
    const QString path = desk.sounder.portPath();
    desk.pullOrPlugIn();
    QVERIFY2(desk.comesToRead("Lost Connection To Device"), qPrintable(desk.info()));
    QTRY_VERIFY(!desk.lists(path));
    QCOMPARE(desk.control<QLabel>("port").text(), QString("The cable is out"));
    QCOMPARE(desk.control<QPushButton>("cable").text(), QString("Plug the cable in"));
    QCOMPARE(desk.control<QLabel>("advice").text(), QString("Plug it in; the port comes back."));
}

void TestSounderPanel::pluggedInAgainItConnectsAndKnowsItsSettings()
{
    Desk desk;
    QVERIFY(desk.connectToSounder());
    desk.click("highDraftUp");
    QVERIFY2(desk.comesToRead(draftTo50 + " ... Success"), qPrintable(desk.info()));
    desk.pullOrPlugIn();
    QVERIFY2(desk.comesToRead("Lost Connection To Device"), qPrintable(desk.info()));
    QTRY_COMPARE(desk.find<QComboBox>("portComboBox")->count(), 1);
    desk.pullOrPlugIn();
    QCOMPARE(desk.control<QLabel>("port").text(), desk.sounder.portPath());
    QTRY_VERIFY(desk.lists(desk.sounder.portPath()));
    QVERIFY2(desk.connectToSounder(), qPrintable(desk.info()));
    QCOMPARE(desk.text("highDraft"), QString("0.50"));
}

void TestSounderPanel::silenceTimesOutAndLosesTheLink()
{
    Desk desk;
    QVERIFY(desk.connectToSounder());
    desk.press("silent");
    desk.click("highDraftUp");
    QVERIFY2(desk.comesToRead(draftTo50 + " ... Command Timed Out"), qPrintable(desk.info()));
    QVERIFY(desk.showsConnected());
    desk.timer("infoTimer")->start(1); // the operator would read for ten seconds
    QTRY_COMPARE(desk.info(), QString());
    desk.timer("infoTimer")->setInterval(10000);
    desk.device().clearTranscript();
    desk.timer("temperatureTimer")->start(1);
    QTRY_VERIFY(!desk.device().received().isEmpty());
    desk.timer("temperatureTimer")->stop(); // the next poll would put off the end of this one
    QVERIFY2(desk.comesToRead("Lost Connection To Device"), qPrintable(desk.info()));

    desk.press("silent");
    QVERIFY2(desk.connectToSounder(), qPrintable(desk.info()));
}

void TestSounderPanel::refusedChangeIsTold()
{
    Desk desk;
    QVERIFY(desk.connectToSounder());
    desk.press("refuse");
    desk.click("highDraftUp");
    QVERIFY2(desk.comesToRead(draftTo50 + " ... Received Error - Command Not Applied"),
             qPrintable(desk.info()));
    desk.press("refuse");
    desk.click("highDraftUp");
    QVERIFY2(desk.comesToRead("Setting High Frequency Draft to 0.60 m ... Success"),
             qPrintable(desk.info()));
}

void TestSounderPanel::channelsOfAnotherUnitAreGrey_data()
{
    QTest::addColumn<QByteArray>("choice");
    QTest::addColumn<bool>("hasHigh");
    QTest::addColumn<bool>("hasLow");
    QTest::newRow("high alone") << QByteArray("fitHigh") << true << false;
    QTest::newRow("low alone") << QByteArray("fitLow") << false << true;
    QTest::newRow("both") << QByteArray("fitDual") << true << true;
}

void TestSounderPanel::channelsOfAnotherUnitAreGrey()
{
    QFETCH(QByteArray, choice);
    QFETCH(bool, hasHigh);
    QFETCH(bool, hasLow);
    const NewWindow remembersNoUnit;
    SounderOptions options = soundingUnit();
    options.fit = hasHigh && hasLow ? SounderFit::HighOnly : SounderFit::Dual;
    Desk desk(options);
    desk.device().setDepthSource(alwaysBothDepths);
    QVERIFY(desk.connectToSounder());
    desk.press(choice);
    const auto pingsOnItsChannels = [&] {
        const DepthPair depths = desk.device().lastSounding();
        return depths.high.has_value() == hasHigh && depths.low.has_value() == hasLow;
    };
    QTRY_VERIFY(pingsOnItsChannels()); // it has started
    QVERIFY(desk.showsConnected());
    desk.click("connectToDevice");
    QVERIFY2(desk.connectToSounder(), qPrintable(desk.info()));
    QCOMPARE(desk.isEnabled("highDraft"), hasHigh);
    QCOMPARE(desk.isEnabled("lowDraft"), hasLow);
}

void TestSounderPanel::noiseDoesNoHarm()
{
    Desk desk(soundingUnit());
    desk.device().settings().pings = 10;
    desk.device().setDepthSource(alwaysBothDepths);
    QVERIFY(desk.connectToSounder());
    int spoilt = 0;
    int wrong = 0;
    QSignalSpy soundings(&desk.window, &MainWindow::gotDepths);
    connect(&desk.window, &MainWindow::gotDepths, &desk.panel, [&](float high, float low) {
        const bool isWhole = high == 12.4F && low == 13.4F; // with the draft
        const bool isHigh = high == 12.4F || high <= 0;
        const bool isLow = low == 13.4F || low <= 0;
        spoilt += isWhole ? 0 : 1;
        wrong += isHigh && isLow ? 0 : 1;
    });
    desk.press("garble");
    QTRY_VERIFY_WITH_TIMEOUT(soundings.size() >= 30 && spoilt > 0, 20000);
    QCOMPARE(wrong, 0);
    QVERIFY(desk.showsConnected());

    desk.press("garble");
    desk.click("highDraftUp");
    QVERIFY2(desk.comesToRead(draftTo50 + " ... Success"), qPrintable(desk.info()));
}

void TestSounderPanel::sounderIsNotHeldUpByAPressedButton()
{
    Desk desk;
    auto &cable = desk.control<QPushButton>("cable");
    QTest::mousePress(&cable, Qt::LeftButton);
    QVERIFY(cable.isDown());
    QVERIFY(desk.connectToSounder());
    QTest::mouseRelease(&cable, Qt::LeftButton, {}, QPoint(-50, -50)); // thought better of it
    QVERIFY(desk.showsConnected());
}

void TestSounderPanel::everyControlTellsWhatWillBeSeen()
{
    Desk desk;
    const auto buttons = desk.panel.findChildren<QAbstractButton *>();
    QCOMPARE(buttons.size(), 7);
    for (const QAbstractButton *button : buttons) {
        QVERIFY2(!button->text().isEmpty(), qPrintable(button->objectName()));
        QVERIFY2(!button->toolTip().isEmpty(), qPrintable(button->text()));
        QVERIFY2(!button->accessibleDescription().isEmpty(), qPrintable(button->text()));
        QVERIFY2(button->focusPolicy() & Qt::TabFocus, qPrintable(button->text()));
    }
    QVERIFY(!desk.control<QLabel>("port").accessibleName().isEmpty());
}

void TestSounderPanel::tellsItWhileTheWindowHasTheKeyboard()
{
    Desk desk;
    desk.window.activateWindow();
    QTRY_VERIFY(desk.window.isActiveWindow());
    const auto &cable = desk.control<QPushButton>("cable");
    QTest::mouseMove(desk.panel.windowHandle(), cable.geometry().topLeft() / 2);
    QTest::mouseMove(desk.panel.windowHandle(), cable.mapTo(&desk.panel, cable.rect().center()));
    QTRY_COMPARE(QToolTip::text(), cable.toolTip());
    QVERIFY(!desk.panel.isActiveWindow());
    QToolTip::hideText();
}

void TestSounderPanel::panelMayBeClosedTheWindowEndsTheProgram()
{
    const NewWindow none; // one of an earlier test would still be open
    PtySounder sounder(WindowBench::quietSounder());
    MainWindow window([&sounder] { return portsOf(sounder); });
    SounderPanel panel(sounder);
    window.show();
    panel.show();
    bool isWindowLeft = false;
    QTimer::singleShot(0, &panel, [&] { panel.close(); });
    QTimer::singleShot(300, &window, [&] {
        isWindowLeft = window.isVisible();
        panel.show();
        window.close();
    });
    constexpr int neverEnded = 3;
    QTimer::singleShot(10000, &window, [] { QCoreApplication::exit(neverEnded); });
    QCOMPARE(QApplication::exec(), 0);
    QVERIFY2(isWindowLeft, "the program ended with the panel");
}

QTEST_MAIN(TestSounderPanel)
#include "tst_sounderpanel.moc"
