// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "pixelstrokes.h"

#include "chartcomparison.h"

#include <QImage>
#include <QPainter>
#include <QtTest>

#include <cmath>
#include <functional>
#include <random>

namespace {

constexpr QRgb blue = qRgb(0, 0, 255);
constexpr QRgb pink = qRgb(255, 192, 192);

/// Stripes: a stroke that blends wrongly shows on one of the colours.
QImage striped(const QSize &size)
{
    QImage paper(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            paper.setPixel(x, y, x % 4 < 2 ? qRgb(255, 255, 255) : qRgb(x * 7, y * 5, 90));
        }
    }
    return paper;
}

QPen strokePen(QRgb colour, qreal width)
{
    return QPen(QColor(colour), width, Qt::SolidLine, Qt::SquareCap, Qt::RoundJoin);
}

/// What QPainter makes of a drawing on stripes.
QImage painted(const QSize &size, const std::function<void(QPainter &)> &draw)
{
    QImage canvas = striped(size);
    QPainter painter(&canvas);
    painter.setRenderHint(QPainter::Antialiasing);
    draw(painter);
    return canvas;
}

QImage stroked(const QSize &size, const std::function<void(PixelStrokes &)> &draw)
{
    QImage canvas = striped(size);
    PixelStrokes strokes(canvas);
    draw(strokes);
    return canvas;
}

QImage paintedDot(const QSize &size, double distance, double y)
{
    return painted(size, [&](QPainter &painter) {
        painter.translate(size.width(), 0.0);
        painter.scale(-1.0, 1.0);
        painter.setPen(strokePen(blue, 3.0));
        painter.drawPoint(QPointF(distance, y));
    });
}

QImage strokedDot(const QSize &size, double distance, double y)
{
    return stroked(
        size, [&](PixelStrokes &strokes) { strokes.dot(strokes.dotColumn(distance), y, blue); });
}

QImage paintedLine(const QSize &size, const QLineF &line)
{
    return painted(size, [&](QPainter &painter) {
        painter.setPen(strokePen(pink, 1.0));
        painter.drawLine(line);
    });
}

QImage strokedUpright(const QSize &size, int x, double y1, double y2)
{
    return stroked(size, [&](PixelStrokes &strokes) { strokes.verticalLine(x, y1, y2, pink); });
}

constexpr QSize paperSize{40, 30};

} // namespace

class TestPixelStrokes : public QObject
{
    Q_OBJECT

private slots:
    void dotIsThePaintersOwn_data();
    void dotIsThePaintersOwn();
    void anyDotIsThePaintersOwn();
    void uprightLineIsThePaintersOwn_data();
    void uprightLineIsThePaintersOwn();
    void anyUprightLineIsThePaintersOwn();
    void anyLyingLineIsThePaintersOwn();
    void bandsTogetherGiveTheWhole();
    void nothingIsDrawnOutsideItsRows();
    void onlyItsRowsAreWiped();
    void cleanupTestCase() { comparison.report(); }

private:
    PainterComparison comparison;
};

void TestPixelStrokes::dotIsThePaintersOwn_data()
{
    QTest::addColumn<double>("distance");
    QTest::addColumn<double>("y");
    const double places[] = {0.0, 0.25, 0.5, 0.999, 1.0, 1.5, 2.0, 15.0, 15.5, 15.75, 16.015625};
    for (const double distance : places) {
        for (const double y :
             {-2.0, -1.5, -1.49, 0.0, 0.5, 1.5, 14.0, 14.25, 28.5, 29.0, 31.49, 31.5}) {
            QTest::addRow("%g from the right edge, %g down", distance, y) << distance << y;
            QTest::addRow("%g from the left edge, %g down", distance, y)
                << paperSize.width() - distance << y;
        }
    }
}

void TestPixelStrokes::dotIsThePaintersOwn()
{
    QFETCH(double, distance);
    QFETCH(double, y);
    const QByteArray difference = comparison.difference(strokedDot(paperSize, distance, y),
                                                        paintedDot(paperSize, distance, y));
    QVERIFY2(difference.isEmpty(), difference);
}

void TestPixelStrokes::anyDotIsThePaintersOwn()
{
    std::mt19937 random(768);
    for (int i = 0; i < 20000; ++i) {
        const QSize size(1 + int(random() % 12), 1 + int(random() % 12));
        const double distance = size.width() * std::uniform_real_distribution<>(0.0, 1.0)(random);
        const double y = std::uniform_real_distribution<>(-4.0, size.height() + 4.0)(random);
        const auto place = QStringLiteral("%1 x %2, %3 from the right, %4 down: ")
                               .arg(size.width())
                               .arg(size.height())
                               .arg(distance, 0, 'g', 17)
                               .arg(y, 0, 'g', 17);
        const QByteArray difference =
            comparison.difference(strokedDot(size, distance, y), paintedDot(size, distance, y));
        QVERIFY2(difference.isEmpty(), qPrintable(place + difference));
    }
}

void TestPixelStrokes::uprightLineIsThePaintersOwn_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<double>("y1");
    QTest::addColumn<double>("y2");
    for (const int x : {0, 1, 20, 39, 40}) {
        QTest::addRow("downwards at %d", x) << x << 3.5 << 20.25;
        QTest::addRow("upwards at %d", x) << x << 20.25 << 3.5;
        QTest::addRow("one pixel long at %d", x) << x << 7.5 << 8.5;
        QTest::addRow("from a point to itself at %d", x) << x << 7.5 << 7.5;
        QTest::addRow("from a whole row to itself at %d", x) << x << 7.0 << 7.0;
        QTest::addRow("over all and beyond at %d", x) << x << -500.0 << 900.5;
        QTest::addRow("above the picture at %d", x) << x << -9.0 << -4.0;
        QTest::addRow("below the picture at %d", x) << x << 31.0 << 60.0;
        QTest::addRow("to the top edge at %d", x) << x << 4.0 << -0.5;
        QTest::addRow("to the bottom edge at %d", x) << x << 25.0 << 30.25;
    }
}

void TestPixelStrokes::uprightLineIsThePaintersOwn()
{
    QFETCH(int, x);
    QFETCH(double, y1);
    QFETCH(double, y2);
    const QByteArray difference = comparison.difference(
        strokedUpright(paperSize, x, y1, y2), paintedLine(paperSize, QLineF(x, y1, x, y2)));
    QVERIFY2(difference.isEmpty(), difference);
}

void TestPixelStrokes::anyUprightLineIsThePaintersOwn()
{
    std::mt19937 random(769);
    std::uniform_real_distribution<> row(-8.0, paperSize.height() + 8.0);
    for (int i = 0; i < 5000; ++i) {
        const int x = int(random() % 41);
        const double y1 = row(random);
        const double y2 = y1 + (int(random() % 30) - 15);
        const auto place =
            QStringLiteral("at %1 from %2 to %3: ").arg(x).arg(y1, 0, 'g', 17).arg(y2, 0, 'g', 17);
        const QByteArray difference = comparison.difference(
            strokedUpright(paperSize, x, y1, y2), paintedLine(paperSize, QLineF(x, y1, x, y2)));
        QVERIFY2(difference.isEmpty(), qPrintable(place + difference));
    }
}

void TestPixelStrokes::anyLyingLineIsThePaintersOwn()
{
    std::mt19937 random(770);
    std::uniform_real_distribution<> row(-3.0, paperSize.height() + 3.0);
    std::uniform_real_distribution<> column(-3.0, paperSize.width() + 3.0);
    for (int i = 0; i < 5000; ++i) {
        const double y = row(random);
        const double x1 = column(random);
        const double x2 = x1 + 0.1 + std::abs(column(random));
        const QImage actual = stroked(
            paperSize, [&](PixelStrokes &strokes) { strokes.horizontalLine(x1, x2, y, pink); });
        const auto place = QStringLiteral("%1 down from %2 to %3: ")
                               .arg(y, 0, 'g', 17)
                               .arg(x1, 0, 'g', 17)
                               .arg(x2, 0, 'g', 17);
        const QByteArray difference =
            comparison.difference(actual, paintedLine(paperSize, QLineF(x2, y, x1, y)));
        QVERIFY2(difference.isEmpty(), qPrintable(place + difference));
    }
}

namespace {

void drawAllKinds(PixelStrokes &strokes)
{
    for (int i = 0; i < 10; ++i) {
        strokes.dot(strokes.dotColumn(i * 3.7), i * 3.1, blue);
        strokes.verticalLine(i * 4, 2.0 + i, 29.0 - i, pink);
        strokes.horizontalLine(2.5, 36.0, i * 2.9, blue);
    }
}

} // namespace

void TestPixelStrokes::bandsTogetherGiveTheWhole()
{
    const QImage whole = stroked(paperSize, drawAllKinds);
    for (const int band : {1, 2, 7, 29, 30, 64}) {
        const QImage inBands = stroked(paperSize, [band](PixelStrokes &strokes) {
            for (int row = 0; row < paperSize.height(); row += band) {
                strokes.limitToRows(row, row + band);
                drawAllKinds(strokes);
            }
        });
        QVERIFY2(inBands == whole, qPrintable(QStringLiteral("bands of %1 rows").arg(band)));
    }
}

void TestPixelStrokes::nothingIsDrawnOutsideItsRows()
{
    const QImage canvas = stroked(paperSize, [](PixelStrokes &strokes) {
        strokes.limitToRows(10, 20);
        drawAllKinds(strokes);
    });
    const QRect above(0, 0, paperSize.width(), 10);
    const QRect below(0, 20, paperSize.width(), 10);
    QCOMPARE(canvas.copy(above), striped(paperSize).copy(above));
    QCOMPARE(canvas.copy(below), striped(paperSize).copy(below));
}

void TestPixelStrokes::onlyItsRowsAreWiped()
{
    const QImage canvas = stroked(paperSize, [](PixelStrokes &strokes) {
        strokes.limitToRows(-5, 4);
        strokes.wipe();
        strokes.limitToRows(28, 99);
        strokes.wipe();
    });
    for (int y = 0; y < paperSize.height(); ++y) {
        const QRgb expected =
            y < 4 || y >= 28 ? qRgb(255, 255, 255) : striped(paperSize).pixel(7, y);
        QCOMPARE(canvas.pixel(7, y), expected);
    }
}

QTEST_MAIN(TestPixelStrokes)

#include "tst_pixelstrokes.moc"
