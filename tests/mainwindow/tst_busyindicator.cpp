// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// What turns beside the connect button while the sounder has not answered.

#include "linkwatch.h"
#include "rawbench.h"

#include <QLabel>
#include <QMovie>
#include <QtTest>

using namespace LinkWatch;

namespace {

QLabel *indicator(WindowBench &bench) { return bench.find<QLabel>("busyIndicator"); }

bool turns(WindowBench &bench)
{
    const QMovie *const movie = indicator(bench)->movie();
    return indicator(bench)->isVisible() && movie != nullptr && movie->state() == QMovie::Running;
}

/// Neither seen nor awake.
bool rests(WindowBench &bench)
{
    const QMovie *const movie = indicator(bench)->movie();
    return !indicator(bench)->isVisible() &&
           (movie == nullptr || movie->state() == QMovie::NotRunning);
}

/// The places of all that stands in the window.
QHash<QWidget *, QRect> places(WindowBench &bench)
{
    QHash<QWidget *, QRect> all;
    const auto widgets = bench.window.centralWidget()->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (widget->isVisible() && widget->objectName() != "busyIndicator") {
            all.insert(widget, {widget->mapTo(&bench.window, QPoint()), widget->size()});
        }
    }
    return all;
}

} // namespace

class TestBusyIndicator : public QObject
{
    Q_OBJECT

private slots:
    void restsBeforeAnythingIsPressed();
    void turnsUntilTheSounderAnswers_data();
    void turnsUntilTheSounderAnswers();
    void restsAfterTheOperatorGivesUp_data() { turnsUntilTheSounderAnswers_data(); }
    void restsAfterTheOperatorGivesUp();
    void restsWhenNobodyAnswers();
    void showsOneFrameAfterAnother();
    void standsBesideTheButtonAndMovesNothing();
};

void TestBusyIndicator::restsBeforeAnythingIsPressed()
{
    RawBench bench;
    QVERIFY(rests(bench));
}

void TestBusyIndicator::turnsUntilTheSounderAnswers_data()
{
    QTest::addColumn<QString>("rate");
    QTest::newRow("connecting at a rate") << "9600";
    QTest::newRow("searching") << "Auto";
}

void TestBusyIndicator::turnsUntilTheSounderAnswers()
{
    QFETCH(QString, rate);
    RawBench bench;
    bench.pressConnectRaw(rate);
    QVERIFY(turns(bench));
    bench.say("TalVero New Dual 2.14.7");
    QTRY_COMPARE(bench.text("connectToDevice"), QString("Disconnect"));
    QTRY_VERIFY(rests(bench));
}

void TestBusyIndicator::restsAfterTheOperatorGivesUp()
{
    QFETCH(QString, rate);
    RawBench bench;
    bench.pressConnectRaw(rate);
    QVERIFY(turns(bench));
    bench.click("connectToDevice");
    QVERIFY(rests(bench));
    bench.pressConnectRaw(rate);
    QVERIFY2(turns(bench), "the second time");
}

void TestBusyIndicator::restsWhenNobodyAnswers()
{
    RawBench bench;
    bench.timer("answerTimer")->setInterval(50);
    bench.pressConnectRaw();
    QVERIFY(turns(bench));
    QTRY_COMPARE(bench.info(), QString(notConnectedInfo));
    QVERIFY(rests(bench));
}

void TestBusyIndicator::showsOneFrameAfterAnother()
{
    RawBench bench;
    bench.pressConnectRaw("Auto");
    const QImage first = indicator(bench)->grab().toImage();
    QTRY_VERIFY(indicator(bench)->grab().toImage() != first);
}

void TestBusyIndicator::standsBesideTheButtonAndMovesNothing()
{
    RawBench bench;
    bench.choose("portComboBox", bench.line.slavePath());
    bench.choose("baudComboBox", "9600");
    QCoreApplication::sendPostedEvents();
    const QHash<QWidget *, QRect> before = places(bench);
    bench.pressConnectRaw();
    QCoreApplication::sendPostedEvents();
    QCOMPARE(places(bench), before);
    const QRect shown(indicator(bench)->mapTo(&bench.window, QPoint()), indicator(bench)->size());
    const QRect button = before.value(bench.find<QWidget>("connectToDevice"));
    QVERIFY(shown.left() > button.right() && shown.left() - button.right() <= 12);
    QVERIFY(qAbs(shown.center().y() - button.center().y()) <= 1);
}

QTEST_MAIN(TestBusyIndicator)
#include "tst_busyindicator.moc"
