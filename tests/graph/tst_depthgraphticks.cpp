// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "graphbench.h"

#include <functional>

namespace {

using Change = std::function<void(GraphBench &)>;

QString afterPings(int count)
{
    return QStringLiteral("after %1 pings the screen shows another chart").arg(count);
}

} // namespace

Q_DECLARE_METATYPE(Change)

class TestDepthGraphTicks : public QObject
{
    Q_OBJECT

private slots:
    void firstPictureIsWhite();
    void redrawsEveryFiftyMilliseconds();
    void colourKeysComeWithTheFirstTick();
    void unitChangesTextWithTheNextDepthAndChartWithTheNextTick();
    void hiddenWindowDrawsNothing();
    void hiddenWindowCollectsDepths();
    void unchangedChartIsNotDrawnAgain();
    void changedChartIsDrawnAgain_data();
    void changedChartIsDrawnAgain();
    void picturesDoNotDisturbEachOther();
    void picturesTakeTurnsInTwoBuffers();
    void everyPictureReachesTheScreen();
};

void TestDepthGraphTicks::firstPictureIsWhite()
{
    GraphBench bench;
    const QImage picture = bench.picture().toImage();
    QVERIFY(!picture.isNull());
    QImage white(picture.size(), picture.format());
    white.fill(Qt::white);
    QCOMPARE(picture, white);
}

void TestDepthGraphTicks::redrawsEveryFiftyMilliseconds()
{
    GraphBench bench;
    QCOMPARE(bench.timer()->interval(), 50);
    QVERIFY(!bench.timer()->isSingleShot());
    QVERIFY(bench.timer()->isActive());
    bench.show();
    const qint64 before = bench.picture().cacheKey();
    bench.window.addData(1.0F, 2.0F);
    QTRY_VERIFY(bench.picture().cacheKey() != before);
}

void TestDepthGraphTicks::colourKeysComeWithTheFirstTick()
{
    GraphBench bench;
    bench.show();
    bench.window.drawPic();
    const std::pair<const char *, QRgb> keys[] = {{"depthKeyHF", qRgb(0, 0, 255)},
                                                  {"depthKeyLF", qRgb(255, 0, 0)}};
    for (const auto &[name, colour] : keys) {
        const QImage key = bench.label(name)->pixmap(Qt::ReturnByValue).toImage();
        QCOMPARE(key.size(), QSize(20, 20));
        QImage expected(20, 20, key.format());
        expected.fill(colour);
        QCOMPARE(key, expected);
    }
}

void TestDepthGraphTicks::unitChangesTextWithTheNextDepthAndChartWithTheNextTick()
{
    GraphBench bench;
    bench.show();
    bench.window.addData(1.0F, 2.0F);
    bench.expected.samples = {{1.0F, 2.0F}};
    QVERIFY(bench.showsTheChart());

    bench.window.goToImperial(true);
    QCOMPARE(bench.hfText(), QStringLiteral("High Frequency Depth: <b>1.00m</b>"));
    bench.expected.unitFactor = 3.2808399200439453F;
    bench.expected.unitSuffix = QStringLiteral("ft");
    QVERIFY(bench.showsTheChart());

    bench.window.addData(1.0F, 2.0F);
    QCOMPARE(bench.hfText(), QStringLiteral("High Frequency Depth: <b>3.28ft</b>"));

    bench.window.goToImperial(false);
    bench.window.addData(1.0F, 2.0F);
    QCOMPARE(bench.hfText(), QStringLiteral("High Frequency Depth: <b>1.00m</b>"));
}

void TestDepthGraphTicks::hiddenWindowDrawsNothing()
{
    GraphBench bench;
    const qint64 before = bench.picture().cacheKey();
    bench.window.addData(1.0F, 2.0F);
    bench.window.drawPic();
    QCOMPARE(bench.picture().cacheKey(), before);
    QVERIFY(bench.label("depthKeyHF")->pixmap(Qt::ReturnByValue).isNull());
}

void TestDepthGraphTicks::hiddenWindowCollectsDepths()
{
    GraphBench bench;
    bench.show();
    bench.window.addData(1.0F, 2.0F);
    bench.window.close();
    QVERIFY(!bench.window.isVisible());
    QVERIFY(bench.timer()->isActive());
    bench.window.addData(1.5F, 2.5F);
    bench.show();
    bench.expected.samples = {{1.5F, 2.5F}, {1.0F, 2.0F}};
    QVERIFY(bench.showsTheChart());
}

void TestDepthGraphTicks::unchangedChartIsNotDrawnAgain()
{
    GraphBench bench;
    bench.show();
    bench.window.addData(1.0F, 2.0F);
    bench.window.drawPic();
    const qint64 drawn = bench.picture().cacheKey();
    bench.window.drawPic();
    QCOMPARE(bench.picture().cacheKey(), drawn);

    bench.window.setMaxDepth(5.9F);
    bench.window.drawPic();
    const qint64 withNewScale = bench.picture().cacheKey();
    bench.window.setMaxDepth(5.9F); // every settings reply of the device says it again
    bench.window.goToImperial(false);
    bench.window.drawPic();
    QCOMPARE(bench.picture().cacheKey(), withNewScale);
}

void TestDepthGraphTicks::changedChartIsDrawnAgain_data()
{
    QTest::addColumn<Change>("change");
    QTest::newRow("a depth") << Change([](GraphBench &b) { b.window.addData(1.0F, 2.0F); });
    QTest::newRow("the maximum depth") << Change([](GraphBench &b) { b.window.setMaxDepth(7.0F); });
    QTest::newRow("the unit") << Change([](GraphBench &b) { b.window.goToImperial(true); });
    QTest::newRow("the size") << Change([](GraphBench &b) {
        const QSize before = b.label("label")->size();
        b.window.resize(600, 400);
        QTRY_VERIFY(b.label("label")->size() != before);
    });
    QTest::newRow("another picture in the label") << Change(
        [](GraphBench &b) { b.label("label")->setPixmap(QPixmap(b.label("label")->size())); });
}

void TestDepthGraphTicks::changedChartIsDrawnAgain()
{
    QFETCH(Change, change);
    GraphBench bench;
    bench.show();
    bench.window.drawPic();
    bench.timer()->stop();
    change(bench);
    const qint64 before = bench.picture().cacheKey();
    bench.window.drawPic();
    QVERIFY(bench.picture().cacheKey() != before);
    const QLabel *const label = bench.label("label");
    QCOMPARE(bench.picture().size(), label->size() * label->devicePixelRatioF());
}

void TestDepthGraphTicks::picturesDoNotDisturbEachOther()
{
    GraphBench bench;
    bench.show();
    QList<QPixmap> kept;
    QList<QImage> copies;
    for (int i = 0; i < 6; ++i) {
        bench.window.addData(0.5F * float(i), 1.0F);
        bench.window.drawPic();
        kept << bench.picture();
        copies << bench.picture().toImage().copy();
    }
    for (int i = 0; i < kept.size(); ++i) {
        QVERIFY2(kept.at(i).toImage() == copies.at(i), "a picture changed after it was shown");
    }
}

void TestDepthGraphTicks::picturesTakeTurnsInTwoBuffers()
{
    GraphBench bench;
    bench.show();
    bench.timer()->stop();
    QList<const uchar *> buffers;
    QList<QImage> hoard; // takes whatever memory a tick gives back
    for (int i = 0; i < 6; ++i) {
        bench.window.addData(0.5F * static_cast<float>(i), 1.0F);
        bench.window.drawPic();
        bench.window.grab(); // the label has used the picture
        buffers << bench.picture().toImage().constBits();
        hoard << QImage(bench.picture().size(), QImage::Format_RGB32);
    }
    QVERIFY2(buffers.at(2) == buffers.at(4) && buffers.at(3) == buffers.at(5) &&
                 buffers.at(4) != buffers.at(5),
             "a tick allocates its picture");
}

// Only what differs from the picture before is painted.
void TestDepthGraphTicks::everyPictureReachesTheScreen()
{
    GraphBench bench;
    bench.show();
    bench.timer()->stop();
    for (int i = 0; i < 30; ++i) {
        if (i == 10) {
            bench.window.goToImperial(true);
        }
        if (i == 20) {
            bench.window.resize(bench.window.size() + QSize(31, 17));
            QCoreApplication::processEvents();
        }
        bench.window.addData(static_cast<float>(i % 5), 4.5F - static_cast<float>(i % 3));
        bench.window.drawPic();
        QCoreApplication::processEvents();
        bench.window.drawPic(); // the first one brings the colour keys, which take room
        QCoreApplication::processEvents();
        QVERIFY2(bench.onScreen() == bench.picture().toImage(), qPrintable(afterPings(i + 1)));
    }
}

QTEST_MAIN(TestDepthGraphTicks)
#include "tst_depthgraphticks.moc"
