// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "appearance.h"
#include "readybench.h"

#include <QLabel>
#include <QPushButton>

namespace {

struct HelpButton
{
    const char *name;
    const char *topic;
};

// The setup and the pulse cycles have a topic of their own for each channel, the others share one.
constexpr HelpButton helpButtons[] = {
    {"selectRateInfo", "Port and Rate"},
    {"commonSettingsInfo", "Common Settings"},
    {"highModeInfo", "Echo Sounder Mode"},
    {"lowModeInfo", "Echo Sounder Mode"},
    {"highTVGInfo", "Time Variable Gain"},
    {"lowTVGInfo", "Time Variable Gain"},
    {"highInputsInfo", "HF Setup"},
    {"lowInputsInfo", "LF Setup"},
    {"highDetectInfo", "Detect Threshold"},
    {"lowDetectInfo", "Detect Threshold"},
    {"highPulseInfo", "HF Pulse Cycles"},
    {"lowPulseInfo", "LF Pulse Cycles"},
    {"highGainInfo", "Gain"},
    {"lowGainInfo", "Gain"},
    {"highEnableInfo", "Enable/Disable"},
    {"lowEnableInfo", "Enable/Disable"},
};

/// Notes whether a window is put in front of the others.
class RaiseWatch : public QObject
{
public:
    explicit RaiseWatch(QWidget *window) { window->installEventFilter(this); }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        raised = raised || event->type() == QEvent::ZOrderChange;
        return QObject::eventFilter(watched, event);
    }
    bool raised = false;
};

QWidget *helpWindow()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->inherits("InfoForm")) {
            return window;
        }
    }
    qFatal("there is no help window");
}

} // namespace

class HelpButtonsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { bench.reset(); }

    void aButtonShowsItsTopicInFront_data();
    void aButtonShowsItsTopicInFront();
    void aClosedHelpOpensAgain();
    void everyInfoButtonOfTheFormIsTested();

private:
    std::unique_ptr<ReadyBench> bench;
};

void HelpButtonsTest::initTestCase()
{
    giveProgramStyle();
    bench = std::make_unique<ReadyBench>();
}

void HelpButtonsTest::aButtonShowsItsTopicInFront_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("topic");
    for (const HelpButton &row : helpButtons) {
        QTest::addRow("%s", row.name) << QString(row.name) << QString(row.topic);
    }
}

void HelpButtonsTest::aButtonShowsItsTopicInFront()
{
    QFETCH(QString, button);
    QFETCH(QString, topic);
    bench->openTab(button.startsWith("low") ? "low" : "high");
    const QString info = bench->info();
    QWidget *const help = helpWindow();
    help->show(); // behind the window, where an earlier look at it has left it
    bench->window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&bench->window));
    const RaiseWatch watch(help);
    bench->click(button);
    QVERIFY(help->isVisible());
    QVERIFY2(watch.raised, "the help stays behind the window");
    QVERIFY2(QTest::qWaitForWindowActive(help), "the help does not take the keyboard");
    QCOMPARE(help->findChild<QLabel *>("title")->text(), topic);
    QVERIFY2(!help->findChild<QLabel *>("text")->text().isEmpty(), "the topic has no text");
    QVERIFY2(!bench->hasPendingChange(), "help has changed a setting");
    QCOMPARE(bench->info(), info);
}

void HelpButtonsTest::aClosedHelpOpensAgain()
{
    bench->click("selectRateInfo");
    helpWindow()->close();
    QVERIFY(!helpWindow()->isVisible());
    bench->click("selectRateInfo");
    QVERIFY(helpWindow()->isVisible());
}

void HelpButtonsTest::everyInfoButtonOfTheFormIsTested()
{
    QStringList onForm;
    const auto buttons = bench->window.findChildren<QPushButton *>(QRegularExpression("Info$"));
    for (const QPushButton *button : buttons) {
        onForm.append(button->objectName());
    }
    QStringList tested;
    for (const HelpButton &row : helpButtons) {
        tested.append(row.name);
    }
    onForm.sort();
    tested.sort();
    QCOMPARE(tested, onForm);
}

QTEST_MAIN(HelpButtonsTest)
#include "tst_helpbuttons.moc"
