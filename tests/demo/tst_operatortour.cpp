// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

bool holdsColour(const QImage &picture, const QRect &part, QRgb colour)
{
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            if (picture.pixel(x, y) == colour) {
                return true;
            }
        }
    }
    return false;
}

} // namespace

/// Plays the whole tour as `scripts/run` does on a machine without a display.
class TestOperatorTour : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void tourComesToItsEnd();
    void infoLineSaidWhatTheOperatorExpects_data();
    void infoLineSaidWhatTheOperatorExpects();
    void everyStepLeftAPicture();
    void graphShowsTheChannelsOfTheUnit_data();
    void graphShowsTheChannelsOfTheUnit();
    void folderThatCannotBeMadeIsReported();

private:
    QTemporaryDir folder;
    int exitCode = -1;
    QStringList lines;
};

void TestOperatorTour::initTestCase()
{
    QVERIFY(folder.isValid());
    QProcess demo;
    demo.start(DEMO_PROGRAM, {"--tour", folder.filePath("pictures")});
    constexpr int patienceMs = 100000;
    QVERIFY2(QTest::qWaitFor([&demo] { return demo.state() == QProcess::NotRunning; }, patienceMs),
             "the tour does not end");
    exitCode = demo.exitCode();
    lines = QString::fromUtf8(demo.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
}

void TestOperatorTour::tourComesToItsEnd()
{
    QVERIFY2(exitCode == 0, qPrintable(lines.join('\n')));
    QVERIFY2(lines.last().endsWith("pictures"), qPrintable(lines.last()));
}

void TestOperatorTour::infoLineSaidWhatTheOperatorExpects_data()
{
    QTest::addColumn<QString>("step");
    QTest::addColumn<QString>("said");
    const auto row = [](const char *step, const char *said) {
        QTest::newRow(step) << step << said;
    };
    row("Search the rate", "Trying 4800 baud");
    row("Connected", "Connected to TAL-VERO");
    row("Change the draft", "Setting High Frequency Draft to 0.50 m ... Success");
    row("Maximum depth refused",
        "Setting Maximum Depth to 80 m ... not applied. Reduce pings per second");
    row("Disconnect", "(the info line is empty)");
    row("The sounder is pulled away", "Lost Connection To Device");
    row("A unit with the high channel alone", "Connected to TAL-VERO");
}

void TestOperatorTour::infoLineSaidWhatTheOperatorExpects()
{
    QFETCH(QString, step);
    QFETCH(QString, said);
    const QStringList found = lines.filter(". " + step + ": ");
    QVERIFY2(found.size() == 1, qPrintable(lines.join('\n')));
    QCOMPARE(found.first().section(": ", 1), said);
}

void TestOperatorTour::everyStepLeftAPicture()
{
    const int steps = lines.size() - 1; // the last line names the folder
    const QDir pictures(folder.filePath("pictures"));
    const QStringList names = pictures.entryList({"*.png"}, QDir::Files, QDir::Name);
    QCOMPARE(names.size(), steps);
    for (const QString &name : names) {
        QVERIFY2(!QImage(pictures.filePath(name)).isNull(), qPrintable(name));
    }
}

void TestOperatorTour::graphShowsTheChannelsOfTheUnit_data()
{
    QTest::addColumn<bool>("hasLow");
    QTest::newRow("depth-graph.png") << true;
    QTest::newRow("depth-graph-in-feet.png") << true;
    QTest::newRow("depth-graph-of-the-high-channel.png") << false;
    QTest::newRow("depth-graph-of-the-high-channel-in-feet.png") << false;
}

void TestOperatorTour::graphShowsTheChannelsOfTheUnit()
{
    QFETCH(bool, hasLow);
    const QDir pictures(folder.filePath("pictures"));
    const QStringList names =
        pictures.entryList({QString("[0-9][0-9]-") + QTest::currentDataTag()});
    QCOMPARE(names.size(), 1);
    const QImage picture(pictures.filePath(names.first()));
    const QRect newest(picture.width() - 30, 60, 30, picture.height() - 60);
    QCOMPARE(holdsColour(picture, newest, qRgb(255, 0, 0)), hasLow);
    // The low channel's dots may lie on the high one's.
    QVERIFY2(hasLow || holdsColour(picture, newest, qRgb(0, 0, 255)), "no dots");
}

void TestOperatorTour::folderThatCannotBeMadeIsReported()
{
    QFile inTheWay(folder.filePath("file"));
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    QProcess demo;
    demo.start(DEMO_PROGRAM, {"--tour", folder.filePath("file/pictures")});
    QTRY_COMPARE_WITH_TIMEOUT(demo.state(), QProcess::NotRunning, 20000);
    QCOMPARE(demo.exitCode(), 1);
    QVERIFY(demo.readAllStandardError().contains("Could not make the folder"));
}

QTEST_GUILESS_MAIN(TestOperatorTour)

#include "tst_operatortour.moc"
