// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "depthformats.h"
#include "outputformat.h"
#include "readybench.h"
#include "settingspec.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QPushButton>

#include <memory>

namespace {

/// The controls of the settings that both channels share do not bear their keys' names.
const QMap<QString, QString> commonControls{
    {"Ping", "ping"}, {"Velocity", "soundVelocity"}, {"Depth", "maxDepth"}};

} // namespace

/// Walks the table of settings and that of the output formats: whoever adds a row learns here what
/// of the road from the form to the sounder and back is still missing.
class SettableSettingsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void aNumberIsSetByItsButtonsAndToldAnew_data();
    void aNumberIsSetByItsButtonsAndToldAnew();
    void everyOptionOfAWordIsOnTheForm_data();
    void everyOptionOfAWordIsOnTheForm();
    void theSounderSpeaksEveryFormat_data();
    void theSounderSpeaksEveryFormat();

private:
    QWidget *shownIn(const QString &control);

    std::unique_ptr<ReadyBench> bench;
};

void SettableSettingsTest::initTestCase() { bench = std::make_unique<ReadyBench>(); }

void SettableSettingsTest::cleanupTestCase() { bench.reset(); }

/// The edit or the label that shows the number with these buttons; null if there is none.
QWidget *SettableSettingsTest::shownIn(const QString &control)
{
    for (const QString &name : {control, control + "Edit"}) {
        if (auto *const edit = bench->window.findChild<QLineEdit *>(name)) {
            return edit;
        }
    }
    return bench->window.findChild<QLabel *>(control + "Edit");
}

void SettableSettingsTest::aNumberIsSetByItsButtonsAndToldAnew_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QString>("tab");
    for (const SettingSpec &setting : SettingSpecs::all()) {
        if (setting.kind == ValueKind::Word) {
            continue;
        }
        const bool isCommon = setting.channel == SettingChannel::Common;
        const QString tab = isCommon                                  ? ""
                            : setting.channel == SettingChannel::High ? "high"
                                                                      : "low";
        QTest::newRow(qPrintable(setting.key))
            << (isCommon ? commonControls.value(setting.key) : setting.key)
            << setting.commandFormat.left(2) << tab;
    }
}

void SettableSettingsTest::aNumberIsSetByItsButtonsAndToldAnew()
{
    QFETCH(QString, control);
    QFETCH(QByteArray, command);
    QFETCH(QString, tab);
    for (const char *direction : {"Down", "Up"}) {
        QVERIFY2(bench->window.findChild<QPushButton *>(control + direction),
                 qPrintable("The form has no button " + control + direction));
    }
    auto *const shown = shownIn(control);
    QVERIFY2(shown != nullptr, "Nothing on the form shows the number");
    if (!tab.isEmpty()) {
        bench->openTab(tab);
    }
    const QString before = shown->property("text").toString();
    bench->click(control + "Up");
    QVERIFY2(shown->property("text").toString() != before, "The button changes nothing");
    bench->click(control + "Down");
    QCOMPARE(shown->property("text").toString(), before);
    bench->click(control + "Up");
    const QString set = shown->property("text").toString();
    const QByteArrayList commands = bench->takeCommands();
    QCOMPARE(commands.size(), 1);
    QCOMPARE(commands.first().left(2), command);
    QVERIFY2(bench->info().endsWith(" ... Success"), qPrintable(bench->info()));

    shown->setProperty("text", QStringLiteral("?"));
    bench->click("connectToDevice");
    bench->reconnect();
    QCOMPARE(shown->property("text").toString(), set); // as the sounder tells it
}

void SettableSettingsTest::everyOptionOfAWordIsOnTheForm_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QStringList>("controls");
    QTest::newRow("SounderMode") << QStringList{"Shallow", "Auto", "Manual"}
                                 << QStringList{"ShallowRadio", "AutoRadio", "ManualRadio"};
    QTest::newRow("TVG") << QStringList{"OFF", "Log 20", "Log 10"}
                         << QStringList{"OffTvg", "Log20Tvg", "Log10Tvg"};
}

void SettableSettingsTest::everyOptionOfAWordIsOnTheForm()
{
    QFETCH(QStringList, words);
    QFETCH(QStringList, controls);
    for (const QString channel : {"high", "low"}) {
        QCOMPARE(SettingSpecs::find(channel + QTest::currentDataTag())->words, words);
        for (const QString &control : controls) {
            QVERIFY2(bench->window.findChild<QWidget *>(channel + control) != nullptr,
                     qPrintable(channel + control));
        }
    }
}

void SettableSettingsTest::theSounderSpeaksEveryFormat_data()
{
    QTest::addColumn<int>("number");
    for (const OutputFormat &format : OutputFormats::all()) {
        QTest::newRow(qPrintable(format.name)) << format.deviceNumber;
    }
}

void SettableSettingsTest::theSounderSpeaksEveryFormat()
{
    QFETCH(int, number);
    const QString name = QTest::currentDataTag();
    QCOMPARE(DepthFormats::number(name), number);
    const bool isShownAlready = bench->text("formatComboBox") == name;
    bench->choose("formatComboBox", name);
    if (!isShownAlready) {
        const QByteArrayList commands = bench->takeCommands();
        QCOMPARE(commands.size(), 1);
        QVERIFY(commands.first().startsWith("*a" + QByteArray::number(number)));
        QVERIFY2(bench->info().endsWith(" ... Success"), qPrintable(bench->info()));
    }
    QCOMPARE(bench->device().settings().format, number);
    const DepthPair both{1.23, 1.31};
    QVERIFY2(!DepthFormats::lines(number, both).isEmpty(), "The sounder says nothing in it");
}

QTEST_MAIN(SettableSettingsTest)

#include "tst_settablesettings.moc"
