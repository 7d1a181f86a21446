// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// What a screen reader says of each control, so that an operator knows what it is.

#include "keyhand.h"
#include "readybench.h"
#include "toplevels.h"

#include <QLabel>

using namespace KeyHand;

namespace {

QWidgetList allInteractiveWidgets(const ReadyBench &bench)
{
    return interactiveWidgets(bench.window) + interactiveWidgets(*topLevel<InfoForm>()) +
           interactiveWidgets(*topLevel<depthGraph>());
}

QMap<QString, QString> namesOfAll(const ReadyBench &bench)
{
    QMap<QString, QString> names;
    const QWidgetList controls = allInteractiveWidgets(bench);
    for (QWidget *control : controls) {
        names.insert(nameOf(control), spoken(control));
    }
    return names;
}

} // namespace

class TestSpokenNames : public QObject
{
    Q_OBJECT

private slots:
    void everyControlHasItsOwn();
    void controlIsCalled_data();
    void controlIsCalled();
    void highAndLowAreToldApart();
    void nameIsTheSameInFeet();
    void connectButtonSaysWhatItDoesNow();
    void valueBesideASliderIsSpoken_data();
    void valueBesideASliderIsSpoken();
    void boxSaysWhatItIs_data();
    void boxSaysWhatItIs();
    void listThatPopsUpIsCalledAsItsBox();
    void messagesAreSpokenWithoutTheirMarkUp();
    void logosAreSpokenAsTheyRead();
};

void TestSpokenNames::everyControlHasItsOwn()
{
    const ReadyBench bench;
    QMap<QString, QString> owners;
    const QWidgetList controls = allInteractiveWidgets(bench);
    for (QWidget *control : controls) {
        const QString name = spoken(control);
        QVERIFY2(!name.trimmed().isEmpty(), qPrintable(nameOf(control) + " has no name"));
        QVERIFY2(!owners.contains(name), qPrintable(nameOf(control) + " is called \"" + name +
                                                    "\", as " + owners.value(name) + " is"));
        owners.insert(name, nameOf(control));
    }
    qInfo("%d interactive widgets, %d names", int(controls.size()), int(owners.size()));
    QVERIFY2(controls.size() > 90, "the forms hold more than was found");
}

void TestSpokenNames::controlIsCalled_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("name");
    const auto called = [](const char *control, const char *name) {
        QTest::newRow(control) << control << name;
    };
    called("selectRateInfo", "Help: Port and Rate");
    called("portComboBox", "Port");
    called("baudComboBox", "Rate");
    called("imperialRadio", "Imperial units");
    called("metricRadio", "Metric units");
    called("pingEdit", "Pings per second");
    called("maxDepthEdit", "Maximum depth");
    called("maxDepthUp", "Increase maximum depth");
    called("soundVelocityDown", "Decrease sound velocity");
    called("qt_tabwidget_tabbar", "High Frequency");
    called("highModeInfo", "Help: High frequency mode");
    called("lowModeInfo", "Help: Low frequency mode");
    called("disableLF", "Disable low frequency");
    called("lowLog20Tvg", "Low frequency time variable gain: Log 20");
    called("highGainSlider", "High frequency gain");
    called("highDraftUp", "Increase high frequency draft");
    called("highFreq", "High frequency transducer frequency");
    called("openGraph", "Open Graph");
    called("newBaudComboBox", "Device baud rate");
    called("resetSettings", "Reset settings");
    called("saveSettingsToDevice", "Save settings to device");
    called("hamburgerButton", "Show or hide the unit's details");
    called("pushButton", "Close");
}

void TestSpokenNames::controlIsCalled()
{
    QFETCH(QString, control);
    QFETCH(QString, name);
    const ReadyBench bench;
    QCOMPARE(namesOfAll(bench).value(control), name);
}

void TestSpokenNames::highAndLowAreToldApart()
{
    ReadyBench bench;
    int compared = 0;
    const QWidgetList controls = interactiveWidgets(bench.window);
    for (QWidget *control : controls) {
        const QString name = control->objectName();
        const bool isSwitch = name.endsWith("ableHF");
        if (!name.startsWith("high") && !isSwitch) {
            continue;
        }
        const QString twin =
            isSwitch ? QString(name).replace("HF", "LF") : "low" + name.mid(qstrlen("high"));
        const QString expected =
            spoken(control).replace("High freq", "Low freq").replace("high freq", "low freq");
        QCOMPARE(spoken(bench.find<QWidget>(twin)), expected);
        QVERIFY2(spoken(control).contains("high frequency", Qt::CaseInsensitive),
                 qPrintable(name + " does not say which channel"));
        ++compared;
    }
    QVERIFY2(compared > 30, "the high frequency's page holds more than was found");
}

/// The captions change ("Max Depth (m)" to "(ft)"); a name with a unit would be wrong in one.
void TestSpokenNames::nameIsTheSameInFeet()
{
    const QMap<QString, QString> inMetres = namesOfAll(ReadyBench(false));
    const QMap<QString, QString> inFeet = namesOfAll(ReadyBench(true));
    QCOMPARE(inFeet, inMetres);
    for (const QString &name : inFeet) {
        QVERIFY2(!name.contains("(m)") && !name.contains("(ft)"), qPrintable(name));
    }
}

void TestSpokenNames::connectButtonSaysWhatItDoesNow()
{
    ReadyBench bench;
    auto *const button = bench.find<QWidget>("connectToDevice");
    QCOMPARE(spoken(button), QString("Disconnect"));
    bench.click("connectToDevice");
    QCOMPARE(spoken(button).trimmed(), QString("Connect"));
}

void TestSpokenNames::valueBesideASliderIsSpoken_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("description");
    QTest::newRow("highPulseEdit") << "highPulseEdit"
                                   << "16"
                                   << "High frequency pulse cycles";
    QTest::newRow("highGainEdit") << "highGainEdit"
                                  << "75%"
                                  << "High frequency gain";
    QTest::newRow("lowDetectEdit") << "lowDetectEdit"
                                   << "50%"
                                   << "Low frequency detect threshold";
    QTest::newRow("lowBlankEdit") << "lowBlankEdit"
                                  << "0.50 m"
                                  << "Low frequency blanking";
}

/// A name of its own would be spoken instead of the value.
void TestSpokenNames::valueBesideASliderIsSpoken()
{
    QFETCH(QString, label);
    QFETCH(QString, value);
    QFETCH(QString, description);
    ReadyBench bench;
    auto *const valueLabel = bench.find<QLabel>(label);
    QCOMPARE(spoken(valueLabel), value);
    QCOMPARE(spoken(valueLabel, QAccessible::Description), description);
}

void TestSpokenNames::boxSaysWhatItIs_data()
{
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("description");
    const auto row = [](const char *box, const char *label, const char *description) {
        QTest::newRow(box) << box << label << description;
    };
    row("portComboBox", "Select Port and Rate:", "Serial port of the sounder");
    row("baudComboBox", "", "Baud rate of the connection");
    row("newBaudComboBox", "Baud Rate:", "Baud rate of the sounder's output");
    row("formatComboBox", "Output Format:", "Format of the sounder's output");
}

/// Where its name is its choice: by its label, if it has one, and by its description.
void TestSpokenNames::boxSaysWhatItIs()
{
    QFETCH(QString, box);
    QFETCH(QString, label);
    QFETCH(QString, description);
    ReadyBench bench;
    auto *const list = bench.find<QComboBox>(box);
    QString labels;
    const auto relations = QAccessible::queryAccessibleInterface(list)->relations();
    for (const auto &relation : relations) {
        if (relation.second == QAccessible::Label) {
            labels += relation.first->text(QAccessible::Name);
        }
    }
    QCOMPARE(labels, label);
    QCOMPARE(spoken(list, QAccessible::Description), description);
}

void TestSpokenNames::listThatPopsUpIsCalledAsItsBox()
{
    ReadyBench bench;
    for (const char *name : {"portComboBox", "baudComboBox", "newBaudComboBox", "formatComboBox"}) {
        auto *const box = bench.find<QComboBox>(name);
        QCOMPARE(spoken(box->view()), spoken(box));
        QCOMPARE(spoken(box, QAccessible::Value), box->currentText());
    }
}

void TestSpokenNames::messagesAreSpokenWithoutTheirMarkUp()
{
    ReadyBench bench;
    QVERIFY(!bench.info().isEmpty());
    QCOMPARE(spoken(bench.find<QLabel>("infoLabel")), bench.info());
}

void TestSpokenNames::logosAreSpokenAsTheyRead()
{
    ReadyBench bench;
    auto *const footerLogo = topLevel<InfoForm>()->findChild<QLabel *>("footerLabel");
    QVERIFY(footerLogo != nullptr);
    QCOMPARE(spoken(bench.find<QLabel>("headerLabel")), QStringLiteral("TAL-VERO"));
    QCOMPARE(spoken(footerLogo), QStringLiteral("TAL-VERO"));
}

QTEST_MAIN(TestSpokenNames)
#include "tst_spokennames.moc"
