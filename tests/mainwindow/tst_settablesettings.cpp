// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "depthformats.h"
#include "depthsentence.h"
#include "infoform.h"
#include "outputformat.h"
#include "readybench.h"
#include "settingspec.h"
#include "toplevels.h"

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
    void aNumberHasItsCaption_data() { aNumberIsSetByItsButtonsAndToldAnew_data(); }
    void aNumberHasItsCaption();
    void theHelpExplainsANumber_data() { aNumberIsSetByItsButtonsAndToldAnew_data(); }
    void theHelpExplainsANumber();
    void everyOptionOfAWordIsOnTheForm_data();
    void everyOptionOfAWordIsOnTheForm();
    void theSounderSpeaksEveryFormatAndIsRead_data();
    void theSounderSpeaksEveryFormatAndIsRead();

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

/// A screen reader takes a control's name and unit from the label whose buddy it is.
void SettableSettingsTest::aNumberHasItsCaption()
{
    QFETCH(QString, control);
    const auto *const label = bench->window.findChild<QLabel *>(control + "Label");
    QVERIFY2(label, "The form has no caption for the number");
    QVERIFY2(label->buddy(), "The caption names no control");
    QVERIFY2(label->buddy()->objectName().startsWith(control),
             qPrintable(label->buddy()->objectName()));
}

/// By a heading that reads as the caption. A slider has its own help, an edit that of its group.
void SettableSettingsTest::theHelpExplainsANumber()
{
    QFETCH(QString, control);
    QFETCH(QString, tab);
    const auto *const label = bench->find<QLabel>(control + "Label");
    const QString ofGroup = tab.isEmpty() ? "commonSettingsInfo" : tab + "InputsInfo";
    const bool hasOwn = bench->window.findChild<QPushButton *>(control + "Info") != nullptr;
    if (!tab.isEmpty()) {
        bench->openTab(tab);
    }
    bench->click(hasOwn ? control + "Info" : ofGroup);
    const QString help = topLevel<InfoForm>()->findChild<QLabel *>("text")->text();
    const QString heading = label->text().section(" (", 0, 0) + "</h";
    QVERIFY2(help.contains(heading), qPrintable("No heading \"" + heading + "\" in: " + help));
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

void SettableSettingsTest::theSounderSpeaksEveryFormatAndIsRead_data()
{
    QTest::addColumn<int>("number");
    for (const OutputFormat &format : OutputFormats::all()) {
        QTest::newRow(qPrintable(format.name)) << format.deviceNumber;
    }
}

void SettableSettingsTest::theSounderSpeaksEveryFormatAndIsRead()
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
    const QByteArrayList lines = DepthFormats::lines(number, both);
    QVERIFY2(!lines.isEmpty(), "The sounder says nothing in it");
    DepthSentence::Context context;
    context.outputFormat = name;
    const QString line = QString::fromLatin1(lines.first());
    QCOMPARE(DepthSentence::read(line, context).high, 1.23F);
}

QTEST_MAIN(SettableSettingsTest)

#include "tst_settablesettings.moc"
