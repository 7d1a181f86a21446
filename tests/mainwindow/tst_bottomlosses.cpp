// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "surveybench.h"

#include <QtTest>

#include <memory>

namespace {

using Bottom = SurveyBench::Bottom;

/// What the operator reads after a ping that lost the bottom on one channel or on both. "H" and "L"
/// stand for the depths of that ping, "h" and "l" for those of the ping before.
struct Losses
{
    const char *format;
    QStringList highLost;
    QStringList lowLost;
    QStringList bothLost;
};

} // namespace

/// A ping over weed or through a wake loses the bottom. Most formats cannot say so and send a depth
/// of 0; DESO 25 and KESTROLA leave the channel out.
class TestBottomLosses : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { bench = std::make_unique<SurveyBench>(SounderFit::Dual); }
    void pingWithoutBottomIsRead_data();
    void pingWithoutBottomIsRead();
    void cleanupTestCase() { bench.reset(); }

private:
    std::unique_ptr<SurveyBench> bench; // serves all rows
};

void TestBottomLosses::pingWithoutBottomIsRead_data()
{
    constexpr char transducer[] = "(Depth Below Transducer)";
    const QStringList zeros{"HF 0.00", "LF 0.00"};
    const Losses losses[] = {
        {"ODOM", {"HF 0.00", "LF L"}, {"HF H", "LF 0.00"}, zeros},
        {"NMEA DBT", {"HF 0.00", transducer}, {"HF H", transducer}, {"HF 0.00", transducer}},
        {"NMEA DBS", {"HF 0.00", ""}, {"HF H", ""}, {"HF 0.00", ""}},
        {"ORVANDO", {"HF 0.00", "LF L"}, {"HF H", "LF 0.00"}, zeros},
        {"DESO 25", {"HF h", "LF L"}, {"HF H", "LF l"}, {"HF h", "LF l"}},
        {"KESTROLA", {"", "LF L"}, {"HF H", ""}, {"HF h", "LF l"}},
        {"SONARMITE OLD", {"HF 0.00", ""}, {"HF H", ""}, {"HF 0.00", ""}},
        {"SONARMITE NEW", {"HF 0.00", ""}, {"HF H", ""}, {"HF 0.00", ""}},
        {"SONARMITE DUAL", {"HF 0.00", "LF L"}, {"HF H", "LF 0.00"}, zeros},
    };
    QTest::addColumn<QString>("format");
    QTest::addColumn<bool>("hasHigh");
    QTest::addColumn<bool>("hasLow");
    QTest::addColumn<QStringList>("labels");
    for (const Losses &loss : losses) {
        const auto row = [&loss](const char *lost, bool hasHigh, bool hasLow,
                                 const QStringList &labels) {
            QTest::addRow("%s, %s lost", loss.format, lost)
                << QString(loss.format) << hasHigh << hasLow << labels;
        };
        row("high", false, true, loss.highLost);
        row("low", true, false, loss.lowLost);
        row("both", false, false, loss.bothLost);
    }
}

void TestBottomLosses::pingWithoutBottomIsRead()
{
    QFETCH(QString, format);
    QFETCH(bool, hasHigh);
    QFETCH(bool, hasLow);
    QFETCH(QStringList, labels);
    QVERIFY2(bench->chooseFormat(format), "the sounder did not take the format");

    // Below the transducers; draft and index come to 0.40 m and 0.47 m.
    const bool isBelowTransducer = format == "NMEA DBT";
    const QMap<QString, QString> depths{{"h", isBelowTransducer ? "9.00" : "9.40"},
                                        {"l", "10.47"},
                                        {"H", isBelowTransducer ? "12.00" : "12.40"},
                                        {"L", "13.47"}};
    const bool isPair = format == "DESO 25";
    QVERIFY(bench->ping({{9000, 10000}}, isPair ? 2 : 1));

    const bool saysNothing = !hasHigh && !hasLow && (isPair || format == "KESTROLA");
    const Bottom bottom{hasHigh ? std::optional(12000) : std::nullopt,
                        hasLow ? std::optional(13000) : std::nullopt};
    QVERIFY2(bench->ping({bottom}, saysNothing ? 0 : 1), "not as many depths as the format sends");

    for (QString &label : labels) {
        const QString depth = label.section(' ', 1);
        if (label.startsWith("HF ") || label.startsWith("LF ")) {
            label = label.left(2) + " Depth: " + depths.value(depth, depth);
        }
    }
    QCOMPARE(bench->labels(), labels);
}

QTEST_MAIN(TestBottomLosses)

#include "tst_bottomlosses.moc"
