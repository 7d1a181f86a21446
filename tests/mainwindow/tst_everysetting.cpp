// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "appearance.h"
#include "everysetting.h"
#include "outputformat.h"
#include "sliderbench.h"
#include "wirereckoning.h"

#include <QComboBox>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QPushButton>
#include <QRadioButton>
#include <QSet>
#include <QSignalSpy>

#include <memory>

namespace {

constexpr int buttonClicks = 30;

const SliderNames allSliders[] = {pulse, gain, detect, blanking};

QSet<QString> controlsOnTheForm(const QWidget &window)
{
    const QSet<QString> notForTheSounder{"autoSave", "imperialRadio", "metricRadio", "portComboBox",
                                         "baudComboBox"};
    QSet<QString> names;
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        const bool isStep = qobject_cast<const QPushButton *>(widget) != nullptr &&
                            widget->objectName().contains(QRegularExpression("(Up|Down)$"));
        if (isStep || qobject_cast<const QLineEdit *>(widget) != nullptr ||
            qobject_cast<const QSlider *>(widget) != nullptr ||
            qobject_cast<const QRadioButton *>(widget) != nullptr ||
            qobject_cast<const QComboBox *>(widget) != nullptr) {
            names.insert(widget->objectName());
        }
    }
    return names - notForTheSounder;
}

/// With a blank between them.
QString sorted(const QSet<QString> &names)
{
    QStringList list(names.begin(), names.end());
    list.sort();
    return list.join(' ');
}

QString asQString(const QByteArray &text) { return QString::fromLatin1(text); }

} // namespace

/// Walks every setting through its range with every control that sets it, in both units, and holds
/// each command that reaches the sounder against one that is reckoned here.
class EverySettingTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void everyControlOfTheFormIsWalked();
    void everyFormatIsWalked();
    void editsAndTheirButtons_data();
    void editsAndTheirButtons();
    void slidersAndTheirButtons_data();
    void slidersAndTheirButtons();
    void radioButtons_data() { addUnits(); }
    void radioButtons();
    void formatList_data() { addUnits(); }
    void formatList();
    void rateList_data() { addUnits(); }
    void rateList();

private:
    static void addUnits();
    static QSet<QString> controlsOfTheWalk();
    void useUnit();
    QString shownText(const EverySetting::Field &field, double metric) const;
    void walkEdit(const EverySetting::Field &field);
    void clickFieldButton(const EverySetting::Field &field, const char *direction);
    void walkSlider(const QString &channel, const SliderNames &names);
    void moveSlider(const QString &channel, const SliderNames &names, Qt::Key key);
    void clickSliderButton(const QString &channel, const SliderNames &names, const char *direction);
    QByteArray commandAt(const QString &channel, const SliderNames &names) const;

    /// Acts on a control and compares the one command that this sends.
    void drive(const QString &control, const std::function<void()> &act,
               const std::function<QByteArray()> &expected);

    std::unique_ptr<SliderBench> benches[2]; ///< metric, imperial
    SliderBench *bench = nullptr;            ///< the one of the row at hand
    bool imperial = false;
    QSet<QPair<QString, bool>> driven;
    int compared = 0;
    int rowsRun = 0;
};

void EverySettingTest::initTestCase()
{
    giveProgramStyle();
    // A hundred thousand lines of the debug log would bury the result.
    QLoggingCategory::setFilterRules("default.debug=false");
}

void EverySettingTest::addUnits()
{
    QTest::addColumn<bool>("imperial");
    QTest::newRow("metric") << false;
    QTest::newRow("imperial") << true;
}

void EverySettingTest::useUnit()
{
    imperial = *static_cast<const bool *>(QTest::qData("imperial", qMetaTypeId<bool>()));
    if (!benches[imperial]) {
        benches[imperial] = std::make_unique<SliderBench>(imperial);
        benches[imperial]->timer("commandTimer")->setInterval(0);
        benches[imperial]->stopPainting();
    }
    bench = benches[imperial].get();
    ++rowsRun;
}

QSet<QString> EverySettingTest::controlsOfTheWalk()
{
    QSet<QString> names{"formatComboBox", "newBaudComboBox"};
    for (const EverySetting::Field &field : EverySetting::fields) {
        names << field.edit;
        if (field.buttons != nullptr) {
            names << QString(field.buttons) + "Up" << QString(field.buttons) + "Down";
        }
    }
    for (const QString &channel : channels) {
        for (const SliderNames &slider : allSliders) {
            names << channel + slider.slider << channel + slider.buttons + "Up"
                  << channel + slider.buttons + "Down";
        }
    }
    for (const EverySetting::Option &radio : EverySetting::radios) {
        names << radio.name;
    }
    return names;
}

void EverySettingTest::everyControlOfTheFormIsWalked()
{
    const WindowBench window;
    const QSet<QString> onForm = controlsOnTheForm(window.window);
    QCOMPARE(sorted(onForm - controlsOfTheWalk()), QString());
    QCOMPARE(sorted(controlsOfTheWalk() - onForm), QString());
}

void EverySettingTest::everyFormatIsWalked()
{
    QStringList walked;
    for (const EverySetting::Option &option : EverySetting::formats) {
        walked << option.name;
    }
    QStringList known = OutputFormats::names();
    walked.sort();
    known.sort();
    QCOMPARE(walked.join(", "), known.join(", "));
}

void EverySettingTest::drive(const QString &control, const std::function<void()> &act,
                             const std::function<QByteArray()> &expected)
{
    if (QTest::currentTestFailed()) {
        return;
    }
    QByteArray command;
    const auto note = [&command](const QByteArray &taken) {
        if (!QByteArray("nGU").contains(taken.at(1))) { // a poll may come between
            command = taken;
        }
    };
    QObject receiver;
    connect(&bench->sounder, &SounderLine::commandReceived, &receiver, note);
    QSignalSpy spy(&bench->sounder, &SounderLine::commandReceived);
    act();
    while (command.isEmpty() && spy.wait()) {
    }
    const QByteArray reckoned = expected();
    QVERIFY2(
        command == reckoned,
        qPrintable(
            QString("%1: %2 instead of %3").arg(control, asQString(command), asQString(reckoned))));
    driven.insert({control, imperial});
    ++compared;
}

void EverySettingTest::editsAndTheirButtons_data()
{
    QTest::addColumn<bool>("imperial");
    QTest::addColumn<int>("place");
    for (const bool inFeet : {false, true}) {
        int place = 0;
        for (const EverySetting::Field &field : EverySetting::fields) {
            QTest::addRow("%s, %s", field.edit, inFeet ? "imperial" : "metric") << inFeet << place;
            ++place;
        }
    }
}

void EverySettingTest::editsAndTheirButtons()
{
    QFETCH(int, place);
    useUnit();
    const EverySetting::Field &field = EverySetting::fields[place];
    bench->openTab(QByteArray(field.key).startsWith("low") ? "low" : "high");
    walkEdit(field);
    if (field.buttons == nullptr) {
        return;
    }
    bench->find<QLineEdit>(field.edit)->setText(shownText(field, (field.first + field.last) / 2));
    for (const char *direction : {"Up", "Down"}) {
        for (int i = 0; i < buttonClicks; ++i) {
            clickFieldButton(field, direction);
        }
    }
}

QString EverySettingTest::shownText(const EverySetting::Field &field, double metric) const
{
    const double scale = field.hasUnit && imperial ? 3.28084 : 1.0;
    return QString::number(metric * scale, 'f', field.decimals);
}

void EverySettingTest::walkEdit(const EverySetting::Field &field)
{
    const int strides = static_cast<int>((field.last - field.first) / field.stride);
    for (int i = 0; i <= strides; ++i) {
        const QString text = shownText(field, field.first + i * field.stride);
        drive(
            field.edit, [&] { bench->type(field.edit, text); },
            [&] { return WireReckoning::command(field.key, text.toLatin1(), imperial); });
    }
}

void EverySettingTest::clickFieldButton(const EverySetting::Field &field, const char *direction)
{
    const bool isUp = QByteArray(direction) == "Up";
    const QByteArray before = bench->text(field.edit).toLatin1();
    const QString button = QString(field.buttons) + direction;
    drive(
        button, [&] { bench->click(button); },
        [&] {
            return WireReckoning::command(field.key, before, imperial,
                                          isUp ? field.buttonStep : -field.buttonStep);
        });
}

void EverySettingTest::slidersAndTheirButtons_data()
{
    QTest::addColumn<bool>("imperial");
    QTest::addColumn<QString>("channel");
    QTest::addColumn<SliderNames>("names");
    for (const bool inFeet : {false, true}) {
        for (const QString &channel : channels) {
            for (const SliderNames &names : allSliders) {
                QTest::addRow("%s %s, %s", qPrintable(channel), names.slider,
                              inFeet ? "imperial" : "metric")
                    << inFeet << channel << names;
            }
        }
    }
}

void EverySettingTest::slidersAndTheirButtons()
{
    QFETCH(QString, channel);
    QFETCH(SliderNames, names);
    useUnit();
    bench->useChannel(channel);
    moveSlider(channel, names, Qt::Key_End);
    walkSlider(channel, names);
    clickSliderButton(channel, names, "Down");
    moveSlider(channel, names, Qt::Key_Home);
    clickSliderButton(channel, names, "Up");
}

QByteArray EverySettingTest::commandAt(const QString &channel, const SliderNames &names) const
{
    const int position = bench->slider(names)->value();
    const bool isBlanking = QByteArray(names.buttons) == "Blank";
    const QString shown =
        isBlanking ? QString::number(position / 100.0, 'f', 2) : QString::number(position);
    return WireReckoning::command((channel + names.buttons).toLatin1(), shown.toLatin1(), imperial);
}

/// Presses a key and compares the command, if the slider moves.
void EverySettingTest::moveSlider(const QString &channel, const SliderNames &names, Qt::Key key)
{
    const int before = bench->slider(names)->value();
    bench->hand(names).press(key);
    if (bench->slider(names)->value() != before) {
        drive(
            channel + names.slider, [] {}, [&] { return commandAt(channel, names); });
    }
}

/// From the left end to the right by keys: every position of the short sliders, and of the long
/// ones as many as pages and single steps in turn come by.
void EverySettingTest::walkSlider(const QString &channel, const SliderNames &names)
{
    QSlider *const slider = bench->slider(names);
    const bool isLong = slider->maximum() - slider->minimum() > 100;
    Qt::Key key = Qt::Key_Home;
    do {
        moveSlider(channel, names, key);
        key = isLong && key == Qt::Key_Right ? Qt::Key_PageUp : Qt::Key_Right;
    } while (slider->value() < slider->maximum() && !QTest::currentTestFailed());
}

/// From where the slider stands until a step would leave its range.
void EverySettingTest::clickSliderButton(const QString &channel, const SliderNames &names,
                                         const char *direction)
{
    const bool isUp = QByteArray(direction) == "Up";
    const QString button = channel + names.buttons + direction;
    const QSlider *const slider = bench->slider(names);
    int before = 0;
    do {
        before = slider->value();
        bench->click(button);
        if (slider->value() != before) {
            drive(
                button, [] {}, [&] { return commandAt(channel, names); });
        }
    } while (slider->value() != before && !QTest::currentTestFailed());
    QVERIFY2(!bench->hasPendingChange(), "a step out of the range is sent");
    QVERIFY(isUp ? before > slider->maximum() - 10 : before < slider->minimum() + 10);
}

void EverySettingTest::radioButtons()
{
    useUnit();
    for (const EverySetting::Option &option : EverySetting::radios) {
        const QString name = option.name;
        bench->openTab(name.startsWith("low") || name.endsWith("LF") ? "low" : "high");
        drive(
            name, [&] { bench->click(name); }, [&] { return QByteArray(option.wire); });
    }
}

void EverySettingTest::formatList()
{
    useUnit();
    for (const EverySetting::Option &option : EverySetting::formats) {
        drive(
            "formatComboBox", [&] { bench->choose("formatComboBox", option.name); },
            [&] { return QByteArray(option.wire); });
        QVERIFY(bench->settles());
    }
}

void EverySettingTest::rateList()
{
    useUnit();
    bench->click("connectToDevice"); // no answer from before may be taken for that to a new rate
    bench->reconnect();
    for (const EverySetting::Option &option : EverySetting::rates) {
        drive(
            "newBaudComboBox", [&] { bench->choose("newBaudComboBox", option.name); },
            [&] { return QByteArray(option.wire); });
        QTRY_VERIFY2(!bench->showsConnected(), "the new rate does not close the link");
        bench->reconnect();
    }
}

void EverySettingTest::cleanupTestCase()
{
    qInfo("%d pairs of a control and a unit system driven, %d commands compared",
          int(driven.size()), compared);
    for (auto &made : benches) {
        made.reset();
    }
    constexpr int units = 2;
    const int allRows =
        units * static_cast<int>(std::size(EverySetting::fields) + std::size(allSliders) * 2 + 3);
    if (rowsRun == allRows) {
        QCOMPARE(driven.size(), units * controlsOfTheWalk().size());
    }
}

QTEST_MAIN(EverySettingTest)
#include "tst_everysetting.moc"
