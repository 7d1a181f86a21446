// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "answerbench.h"
#include "toplevels.h"

#include <QLabel>

#include <memory>

namespace {

constexpr char odom[] = " et B 00123 00131";

/// Whether the text is drawn in grey: nothing of it is darker on white, or whiter on the dark
/// header, than the grey.
bool isDrawnGrey(QLabel *label)
{
    const QImage picture = label->grab().toImage();
    const bool isOnDark = qGray(picture.pixel(1, 1)) < 128;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const int shade = qGray(picture.pixel(x, y));
            if (isOnDark ? shade > 215 : shade < 100) {
                return false;
            }
        }
    }
    return true;
}

} // namespace

/// A depth of a link that is gone must not look alive.
class StaleDepthsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void depthsOfALostLinkKeepTheirTextAndTurnGrey_data();
    void depthsOfALostLinkKeepTheirTextAndTurnGrey();
    void theNextSoundingIsAlive();
    void reconnectingAloneBringsNothingToLife();

private:
    QList<QLabel *> labels();
    void sound();
    void end(const QString &how);

    std::unique_ptr<AnswerBench> bench;
};

void StaleDepthsTest::init()
{
    bench = std::make_unique<AnswerBench>();
    QVERIFY(bench->connectAs());
    QVERIFY(bench->tell("*i5,v1500000,s30000,a1,I9600,H1,L1"));
    topLevel<depthGraph>()->show();
    sound();
}

void StaleDepthsTest::cleanup() { bench.reset(); }

/// Where depths stand as text.
QList<QLabel *> StaleDepthsTest::labels()
{
    const auto *graph = topLevel<depthGraph>();
    return {bench->find<QLabel>("highDepthLabel"), bench->find<QLabel>("lowDepthLabel"),
            graph->findChild<QLabel *>("depthGraphFieldHF"),
            graph->findChild<QLabel *>("depthGraphFieldLF")};
}

void StaleDepthsTest::sound()
{
    QVERIFY(bench->tell(odom));
    QCOMPARE(bench->text("highDepthLabel"), QString("HF Depth: 1.23"));
}

void StaleDepthsTest::end(const QString &how)
{
    if (how == "the operator disconnects") {
        bench->click("connectToDevice");
    } else if (how == "the sounder falls silent") {
        bench->timer("resizeTimer")->stop();
        QMetaObject::invokeMethod(&bench->window, "serialTimeout");
    } else if (how == "the cable is pulled") {
        bench->line.hangUp();
    } else {
        QVERIFY(bench->chooseNewRate("38400"));
        bench->say("OK");
    }
    QTRY_VERIFY(!bench->showsConnected());
}

void StaleDepthsTest::depthsOfALostLinkKeepTheirTextAndTurnGrey_data()
{
    QTest::addColumn<QString>("how");
    for (const char *how : {"the operator disconnects", "the sounder falls silent",
                            "the cable is pulled", "the rate changes"}) {
        QTest::newRow(how) << how;
    }
}

void StaleDepthsTest::depthsOfALostLinkKeepTheirTextAndTurnGrey()
{
    QFETCH(QString, how);
    QStringList before;
    for (QLabel *label : labels()) {
        QVERIFY2(!isDrawnGrey(label), qPrintable(label->objectName()));
        before.append(label->text());
    }
    end(how);
    QStringList after;
    for (QLabel *label : labels()) {
        QVERIFY2(isDrawnGrey(label), qPrintable(label->objectName() + " looks alive"));
        after.append(label->text());
    }
    QCOMPARE(after, before);
}

void StaleDepthsTest::theNextSoundingIsAlive()
{
    end("the operator disconnects");
    QVERIFY(bench->connectAs());
    sound();
    for (QLabel *label : labels()) {
        QVERIFY2(!isDrawnGrey(label), qPrintable(label->objectName()));
    }
}

void StaleDepthsTest::reconnectingAloneBringsNothingToLife()
{
    end("the operator disconnects");
    QVERIFY(bench->connectAs());
    for (QLabel *label : labels()) {
        QVERIFY2(isDrawnGrey(label), qPrintable(label->objectName() + " looks alive"));
    }
}

QTEST_MAIN(StaleDepthsTest)

#include "tst_staledepths.moc"
