// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "fieldbench.h"
#include "reportbench.h"
#include "toplevels.h"

#include <QComboBox>
#include <QSlider>
#include <QTabWidget>
#include <QtTest>

namespace {

/// All that an operator or a test sees of a window, by the objects' names and in words.
using Look = QMap<QString, QString>;

bool isLookedAt(const QObject *object)
{
    const bool isShownOrTimed = qobject_cast<const QWidget *>(object) != nullptr ||
                                qobject_cast<const QTimer *>(object) != nullptr;
    return isShownOrTimed && !object->objectName().isEmpty() &&
           !object->objectName().startsWith("qt_");
}

QByteArrayList propertiesOf(const QObject *object)
{
    // clang-format off
    constexpr const char *looked[] = {
        "text", "checked", "value", "minimum", "maximum", "currentText", "currentIndex", "count",
        "enabled", "focus", "toolTip", "accessibleDescription", "minimumSize", "maximumSize",
        "updatesEnabled", "interval", "active", "singleShot", "timerType"};
    // clang-format on
    QByteArrayList names;
    for (const char *name : looked) {
        if (object->property(name).isValid()) {
            names.append(name);
        }
    }
    return names;
}

QString inWords(const QVariant &value)
{
    QString words;
    QDebug(&words).noquote() << value;
    return words;
}

Look lookOf(WindowBench &bench)
{
    Look look;
    const QObjectList objects = bench.window.findChildren<QObject *>();
    for (const QObject *object : objects) {
        if (!isLookedAt(object)) {
            continue;
        }
        const auto *const widget = qobject_cast<const QWidget *>(object);
        for (const QByteArray &property : propertiesOf(object)) {
            look.insert(object->objectName() + '.' + property, inWords(object->property(property)));
        }
        if (widget != nullptr) {
            look.insert(object->objectName() + ".visible", inWords(widget->isVisible()));
            look.insert(object->objectName() + ".mark", widget->property("mark").toString());
        }
    }
    look.remove("resizeTimer.active"); // ends by itself, sooner beside a busy machine
    look.insert("the window's size", inWords(bench.window.size()));
    look.insert("the graph", inWords(topLevel<depthGraph>()->isVisible()));
    look.insert("the help", inWords(topLevel<InfoForm>()->isVisible()));
    return look;
}

QString differences(const Look &first, const Look &second)
{
    QStringList words;
    for (auto at = first.begin(); at != first.end(); ++at) {
        if (second.value(at.key()) != at.value()) {
            words.append(at.key() + ": " + at.value() + " -> " + second.value(at.key()));
        }
    }
    return words.join("; ");
}

void connectDual(ReportBench &bench)
{
    QVERIFY(bench.connectAs());
    QVERIFY(bench.tell("*i7,v1485300,s45000,a3,I9600,H1,L1"));
}

// What tests do to a window.

void connectAndMeasure(ReportBench &bench)
{
    connectDual(bench);
    QVERIFY(bench.tell("UID : 12345678"));
    QVERIFY(bench.tell(" et B 00123 00131"));
}

void tellOtherSettings(ReportBench &bench)
{
    connectDual(bench);
    QVERIFY(bench.tell("*Hca,Hg064,HlW,Hm01234,Ho00777,Hp20,Hq00888,Ht63,Hw0199"));
    QVERIFY(bench.tell("*Lca,Lg050,LlN,Lm04321,Lo00100,Lp12,Lq00200,Lt44,Lw0035"));
    QVERIFY(bench.tell("*i2,a7,H0,L0"));
    bench.click("connectToDevice");
}

void changeAndLeaveWaiting(ReportBench &bench)
{
    connectDual(bench);
    bench.timer("commandTimer")->setInterval(60000);
    bench.type("pingEdit", "3");
    bench.click("soundVelocityUp");
    QTest::keyClicks(bench.find<QWidget>("maxDepthEdit"), "12");
    bench.find<QTabWidget>("h")->setCurrentIndex(1);
    bench.find<QSlider>("lowBlankingSlider")->setMinimum(0);
}

void restHighShallow(ReportBench &bench)
{
    connectDual(bench);
    QVERIFY(bench.tell("*Hcs,Hg064"));
    bench.click("highAutoRadio");
    bench.click("highShallowRadio");
}

void refuse(ReportBench &bench)
{
    connectDual(bench);
    bench.timer("commandTimer")->setInterval(1);
    bench.type("pingEdit", "3");
    QVERIFY(bench.hears("*i03"));
    QVERIFY(bench.tell("ERR"));
}

void lookAtFeet(ReportBench &bench)
{
    bench.click("imperialRadio");
    connectDual(bench);
    QVERIFY(bench.tell("*Lca,Lm04321,Lo00100"));
}

void connectLowOnly(ReportBench &bench) { QVERIFY(bench.connectAs("TalVero New LF 2.14.7")); }

void search(ReportBench &bench)
{
    bench.timer("answerTimer")->setInterval(300);
    bench.pressConnectRaw("Auto");
    QTRY_COMPARE(bench.info(), QString("Trying 9600 baud"));
}

void openOtherWindows(ReportBench &bench)
{
    connectDual(bench);
    bench.click("openGraph");
    bench.click("commonSettingsInfo");
    bench.click("hamburgerButton");
}

void losePort(ReportBench &bench)
{
    connectDual(bench);
    bench.line.hangUp();
    QTRY_COMPARE(bench.text("connectToDevice"), QString("Connect   "));
}

void resizeUnpainted(ReportBench &bench)
{
    bench.window.resize(1300, 900);
    bench.stopPainting();
}

using Deed = void (*)(ReportBench &bench);

} // namespace

Q_DECLARE_METATYPE(Deed)

/// A window that has served a bench is to the next one as a new window is.
class KeptWindowTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void aWindowLooksAsAtItsBeginning_data();
    void aWindowLooksAsAtItsBeginning();
    void aWindowIsUsedAgain();
    void aNewWindowIsNotTheLastOne();
    void twoBenchesHaveTwoWindows();
    void halfAPairOfDepthsIsForgotten();
    void changesThatWaitAreForgotten();
    void settingsAreForgotten();

private:
    Look first; ///< of a new window
};

void KeptWindowTest::initTestCase()
{
    qunsetenv("TALVERO_NEW_WINDOWS");
    ReportBench bench;
    first = lookOf(bench);
}

void KeptWindowTest::aWindowLooksAsAtItsBeginning_data()
{
    QTest::addColumn<Deed>("deed");
    const std::pair<const char *, Deed> deeds[] = {
        {"nothing", [](ReportBench & /*bench*/) {}},
        {"connected, depths shown", connectAndMeasure},
        {"all settings told", tellOtherSettings},
        {"changes wait to be sent", changeAndLeaveWaiting},
        {"low channel rests", restHighShallow},
        {"a change refused", refuse},
        {"feet", lookAtFeet},
        {"a unit without a high channel", connectLowOnly},
        {"searching for the rate", search},
        {"graph and help open", openOtherWindows},
        {"cable pulled", losePort},
        {"larger and not painted", resizeUnpainted},
    };
    for (const auto &[name, deed] : deeds) {
        QTest::newRow(name) << deed;
    }
}

/// Also after all that the rows before have done.
void KeptWindowTest::aWindowLooksAsAtItsBeginning()
{
    QFETCH(Deed, deed);
    const MainWindow *used = nullptr;
    {
        ReportBench bench;
        used = &bench.window;
        deed(bench);
        QVERIFY(!QTest::currentTestFailed());
    }
    ReportBench bench;
    QCOMPARE(&bench.window, used);
    QVERIFY2(first.size() > 1000, "too little is looked at to mean anything");
    const QString changed = differences(first, lookOf(bench));
    QVERIFY2(changed.isEmpty(), qPrintable(changed));
}

void KeptWindowTest::aWindowIsUsedAgain()
{
    const MainWindow *used = nullptr;
    {
        FieldBench bench;
        used = &bench.window;
    }
    FieldBench bench;
    QCOMPARE(&bench.window, used);
    QVERIFY2(bench.device().counts().value("identity") > 0, "the sounder is the last bench's");
}

void KeptWindowTest::aNewWindowIsNotTheLastOne()
{
    QPointer<const MainWindow> used;
    {
        WindowBench bench;
        used = &bench.window;
    }
    QVERIFY(used != nullptr);
    const NewWindow anew;
    QVERIFY(used == nullptr);
}

void KeptWindowTest::twoBenchesHaveTwoWindows()
{
    QPointer<const MainWindow> second;
    WindowBench bench;
    {
        WindowBench other;
        second = &other.window;
        QVERIFY(&other.window != &bench.window);
    }
    QVERIFY2(second == nullptr, "an idle window stands beside one in use");
}

void KeptWindowTest::halfAPairOfDepthsIsForgotten()
{
    {
        ReportBench bench;
        connectDual(bench);
        QVERIFY(bench.tell("DA00001.23 m"));
    }
    ReportBench bench;
    connectDual(bench);
    QVERIFY(bench.tell("DB00001.31 m"));
    QCOMPARE(bench.text("highDepthLabel"), QString());
}

void KeptWindowTest::changesThatWaitAreForgotten()
{
    {
        ReportBench bench;
        changeAndLeaveWaiting(bench);
    }
    ReportBench bench;
    connectDual(bench);
    QCOMPARE(bench.window.findChild<CommandQueue *>()->waiting(), QStringList());
}

void KeptWindowTest::settingsAreForgotten()
{
    QString before;
    {
        ReportBench bench;
        before = topLevel<Settings>()->getSettingString("Ping");
        changeAndLeaveWaiting(bench);
        QCOMPARE(topLevel<Settings>()->getSettingString("Ping"), QString("3"));
    }
    const ReportBench bench;
    QCOMPARE(topLevel<Settings>()->getSettingString("Ping"), before);
}

QTEST_MAIN(KeptWindowTest)

#include "tst_keptwindow.moc"
