// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// Noise on the line may read as any number, and as a text of any length. Neither moves what stands
// beside it, and no number ends in "inf".

#include "depthbench.h"
#include "depthgraph.h"
#include "toplevels.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QRegularExpression>
#include <QTabWidget>
#include <QtTest>

#include <memory>

namespace {

using Places = QHash<const QWidget *, QRect>;

/// Where everything on the form stands.
Places placesOf(const QWidget &window)
{
    Places places;
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        places.insert(widget, QRect(widget->mapTo(&window, QPoint()), widget->size()));
    }
    return places;
}

const QString greatest = "340282346638528859811704183484516925440";

} // namespace

class TestGreatNumbers : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void nothingMovesBesideALongText_data();
    void nothingMovesBesideALongText();
    void aLongPortNameMovesNothing();
    void overflowIsShownAsTheGreatestNumber_data();
    void overflowIsShownAsTheGreatestNumber();
    void graphHeaderIsFinite_data();
    void graphHeaderIsFinite();
    void graphHeaderStandsStill();
    void noNumberReadsInf_data();
    void noNumberReadsInf();

private:
    bool shows(const QByteArray &line);
    QString whatMoved(const Places &before);

    std::unique_ptr<DepthBench> bench;
};

void TestGreatNumbers::init() { bench = std::make_unique<DepthBench>(); }

void TestGreatNumbers::cleanup() { bench.reset(); }

/// The voltage that every line is followed by goes to the status label: its own lines are told
/// without it.
bool TestGreatNumbers::shows(const QByteArray &line)
{
    if (!line.contains("BoardTemp: ") && !line.contains("VSupply: ")) {
        return bench->tell(line);
    }
    const QString before = bench->text("temperatureLabel");
    bench->say(line);
    return QTest::qWaitFor([&] { return bench->text("temperatureLabel") != before; });
}

/// The names of the widgets that do not stand where they stood, except the labels that grow with
/// their texts in the middle of their columns.
QString TestGreatNumbers::whatMoved(const Places &before)
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    const QStringList growing{"label_34", "label_24"};
    QStringList moved;
    const Places after = placesOf(bench->window);
    for (auto place = before.begin(); place != before.end(); ++place) {
        const QString name = place.key()->objectName();
        const QRect now = after.value(place.key());
        const bool stands = growing.contains(name)
                                ? now.center().x() == place->center().x() &&
                                      now.y() == place->y() && now.height() == place->height()
                                : now == *place;
        if (!stands) {
            moved.append(name);
        }
    }
    return moved.join(' ');
}

void TestGreatNumbers::nothingMovesBesideALongText_data()
{
    QTest::addColumn<QByteArray>("ordinary");
    QTest::addColumn<QByteArray>("great");
    const auto row = [](const char *name, const QByteArray &ordinary, const QByteArray &great) {
        QTest::newRow(name) << ordinary << great;
    };
    const QByteArray digits(40, '9');
    const QByteArray count = "2147483647";
    row("NMEA depth", "$SDDBS,,f,12.34,M", "$SDDBS,,f,3.4e38,M");
    row("NMEA depth below transducer", "$SDDBT,,f,12.34,M", "$SDDBT,,f,3.4e38,M");
    row("ODOM depths", " et B 00123 00131", " et B 01e38 01e38");
    row("DESO high depth", "DA00001.23 m", "DA003.4e38");
    row("DESO low depth", "DB00001.23 m", "DB003.4e38");
    row("high pulse cycles of 40 digits", "*Hp16", "*Hp" + digits);
    row("high pulse cycles of 10000 letters", "*Hp16", "*Hp" + QByteArray(10000, 'W'));
    row("low pulse cycles of 10000 letters", "*Lp16", "*Lp" + QByteArray(10000, 'W'));
    row("pulse cycles of many lines", "*Hp16", "*Hp1" + QByteArray(60, '\v') + "2");
    row("gain", "*Hg064", "*Hg" + count);
    row("detection threshold", "*Ht50", "*Ht" + count);
    row("blanking in feet", "*Hm09144", "*Hm" + count);
    row("draft", "*Ho00400", "*Ho" + count);
    row("frequency", "*Hw0200", "*Hw" + count);
    row("pings of 40 digits", "*i5", "*i" + digits);
    row("pings of 10000 letters", "*i5", "*i" + QByteArray(10000, 'W'));
    row("maximum depth", "*i5,s30000", "*i5,s" + count);
    row("velocity", "*i5,v1500000", "*i5,v" + count);
    row("identifier of wide letters", "UID : 4A5B6C7D", "UID : WWWWWWWW");
    row("identifier of wider letters", "UID : 4A5B6C7D", "UID : \xC6\xC6\xC6\xC6\xC6\xC6\xC6\xC6");
    row("temperature", "BoardTemp: cold", "BoardTemp: 1e38");
    row("voltage", "BoardTemp: cold", "VSupply: 3e38");
}

void TestGreatNumbers::nothingMovesBesideALongText()
{
    QFETCH(QByteArray, ordinary);
    QFETCH(QByteArray, great);
    if (QByteArray(QTest::currentDataTag()).endsWith("in feet")) {
        bench->click("imperialRadio");
    }
    QVERIFY(bench->connectAs());
    QVERIFY(bench->tell("*i5,v1500000,s30000,a3,I9600,H1,L1"));
    if (great.startsWith("*L")) {
        bench->find<QTabWidget>("h")->setCurrentIndex(1);
    }
    QVERIFY(shows(ordinary));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    const Places before = placesOf(bench->window);
    const QSize hint = bench->window.minimumSizeHint();
    QVERIFY(shows(great));
    QCOMPARE(whatMoved(before), QString());
    QCOMPARE(bench->window.minimumSizeHint(), hint);
}

void TestGreatNumbers::aLongPortNameMovesNothing()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    const Places before = placesOf(bench->window);
    const QString name = "/dev/" + QString(200, 'W');
    bench->ports.prepend(name);
    QMetaObject::invokeMethod(&bench->window, "updateSerialPorts");
    bench->choose("portComboBox", name);
    QCOMPARE(whatMoved(before), QString());
    auto *const list = bench->find<QComboBox>("portComboBox");
    list->showPopup();
    QVERIFY(list->view()->window()->width() <= bench->window.width());
    list->hidePopup();
}

void TestGreatNumbers::overflowIsShownAsTheGreatestNumber_data()
{
    QTest::addColumn<bool>("imperial");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *line, bool imperial, const char *label, const QString &text) {
        QTest::addRow("%s%s", line, imperial ? " in feet" : "") << imperial << label << text;
    };
    row("$SDDBS,,f,3.4e38,M", true, "highDepthLabel", "HF Depth: " + greatest + ".00");
    row("DA003.4e38", true, "highDepthLabel", "HF Depth: " + greatest + ".00");
    row("DB003.4e38", true, "lowDepthLabel", "LF Depth: " + greatest + ".00");
    row("BoardTemp: 3.4e38", true, "temperatureLabel", "Temperature : " + greatest);
    row("BoardTemp: 3.4028234e38", false, "temperatureLabel", "Temperature : " + greatest);
    row("BoardTemp: 1e38", true, "temperatureLabel",
        "Temperature : " + QString::number(static_cast<double>(1.8e38F), 'f', 0));
}

void TestGreatNumbers::overflowIsShownAsTheGreatestNumber()
{
    QFETCH(bool, imperial);
    QFETCH(QString, label);
    QFETCH(QString, text);
    if (imperial) {
        bench->click("imperialRadio");
    }
    QVERIFY(bench->connectAs());
    const QByteArray line = QByteArray(QTest::currentDataTag()).replace(" in feet", "");
    QVERIFY(shows(line));
    QVERIFY2(bench->text(label).contains(text), qPrintable(bench->text(label)));
}

void TestGreatNumbers::graphHeaderIsFinite_data()
{
    QTest::addColumn<bool>("imperial");
    QTest::addColumn<QString>("shown");
    QTest::newRow("metres") << false << QString::number(static_cast<double>(3.4e38F), 'f', 2) + "m";
    QTest::newRow("feet") << true << greatest + ".00ft";
}

void TestGreatNumbers::graphHeaderIsFinite()
{
    QFETCH(bool, imperial);
    QFETCH(QString, shown);
    depthGraph graph;
    graph.goToImperial(imperial);
    graph.addData(3.4e38F, 3.4e38F);
    QCOMPARE(graph.findChild<QLabel *>("depthGraphFieldHF")->text(),
             "High Frequency Depth: <b>" + shown + "</b>");
    QCOMPARE(graph.findChild<QLabel *>("depthGraphFieldLF")->text(),
             "Low Frequency Depth: <b>" + shown + "</b>");
}

void TestGreatNumbers::graphHeaderStandsStill()
{
    depthGraph graph;
    graph.addData(12.3F, 12.4F);
    graph.show();
    QVERIFY(QTest::qWaitForWindowExposed(&graph));
    const Places before = placesOf(graph);
    const QSize size = graph.size();
    const QSize hint = graph.layout()->minimumSize();
    graph.addData(3.4e38F, 3.4e38F);
    graph.layout()->activate();
    QVERIFY(placesOf(graph) == before);
    QCOMPARE(graph.size(), size);
    QCOMPARE(graph.layout()->minimumSize(), hint);
}

void TestGreatNumbers::noNumberReadsInf_data()
{
    QTest::addColumn<QByteArrayList>("lines");
    for (const char *number : {"3.4e38", "1e39", "-3.4e38", "inf", "nan", "2147483647"}) {
        const QByteArray n(number);
        QTest::newRow(number) << QByteArrayList{
            "$SDDBS,,f," + n + ",M",
            " et B " + n.leftJustified(5).left(5) + " " + n.leftJustified(5).left(5),
            "DA" + n.leftJustified(8),
            "DB" + n.leftJustified(8),
            "BoardTemp: " + n,
            "*Hg" + n + ",Hm" + n + ",Ho" + n + ",Hq" + n + ",Ht" + n + ",Hw" + n,
            "*Lg" + n + ",Lm" + n + ",Lo" + n + ",Lq" + n + ",Lt" + n + ",Lw" + n,
            "*i5,s" + n + ",v" + n};
    }
}

void TestGreatNumbers::noNumberReadsInf()
{
    QFETCH(QByteArrayList, lines);
    bench->click("imperialRadio");
    QVERIFY(bench->connectAs());
    const QRegularExpression noNumber("\\b(inf|nan)", QRegularExpression::CaseInsensitiveOption);
    auto *const graph = topLevel<depthGraph>();
    QVERIFY(graph != nullptr);
    for (const QByteArray &line : lines) {
        QVERIFY(shows(line));
        for (const QWidget *window :
             {static_cast<QWidget *>(&bench->window), static_cast<QWidget *>(graph)}) {
            for (const QWidget *widget : window->findChildren<QWidget *>()) {
                const QString text = widget->property("text").toString();
                QVERIFY2(!noNumber.match(text).hasMatch(), qPrintable(line + " shows " + text));
            }
        }
    }
}

QTEST_MAIN(TestGreatNumbers)

#include "tst_greatnumbers.moc"
