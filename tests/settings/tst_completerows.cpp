// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "settings.h"
#include "settingspec.h"

#include <QtTest>

Q_DECLARE_METATYPE(const SettingSpec *)

/// That no row of the settings forgets what others need of it: whoever adds one is told here.
class CompleteRowsTest : public QObject
{
    Q_OBJECT

private slots:
    void aRowIsComplete_data();
    void aRowIsComplete();
    void aRowOfNumbersHasARange_data();
    void aRowOfNumbersHasARange();
    void aRowOfWordsHasItsWords_data();
    void aRowOfWordsHasItsWords();
    void theSuffixFollowsTheUnit_data();
    void theSuffixFollowsTheUnit();
    void theKeyNamesTheChannel_data();
    void theKeyNamesTheChannel();
    void keysAndNamesAreUnique();
    void lettersAreUniqueInTheirChannel();
    void theReplyHasTheLetterOfTheCommand_data();
    void theReplyHasTheLetterOfTheCommand();
};

namespace {

bool isWord(const SettingSpec &spec) { return spec.kind == ValueKind::Word; }
bool isNumber(const SettingSpec &spec) { return !isWord(spec); }
bool isAny(const SettingSpec & /*spec*/) { return true; }

/// A test row for each row of the table that fits.
void addSpecs(bool (*fits)(const SettingSpec &spec))
{
    QTest::addColumn<const SettingSpec *>("spec");
    for (const SettingSpec &spec : SettingSpecs::all()) {
        if (fits(spec)) {
            QTest::newRow(qPrintable(spec.key)) << &spec;
        }
    }
}

const SettingSpec &fetchedSpec()
{
    return **static_cast<const SettingSpec **>(
        QTest::qData("spec", qMetaTypeId<const SettingSpec *>()));
}

/// What the sounder tells a setting's commands by. The mode has two of them and no template.
QStringList commandLetters(const SettingSpec &spec)
{
    return spec.key == "mode" ? QStringList{"b", "h"} : QStringList{spec.commandFormat.mid(1, 1)};
}

} // namespace

void CompleteRowsTest::aRowIsComplete_data() { addSpecs(isAny); }

void CompleteRowsTest::aRowIsComplete()
{
    const SettingSpec &spec = fetchedSpec();
    QCOMPARE(SettingSpecs::find(spec.key), &spec);
    QVERIFY2(!spec.prettyName.isEmpty(), "announcements would name nothing");
    QVERIFY2(!spec.prettyName.contains('%'), qPrintable(spec.prettyName));
    QVERIFY(spec.toCommand);
    QVERIFY(spec.toNumber);
    QVERIFY(spec.fromReport);
    const QRegularExpression form("^\\*[a-zA-Z](%0?\\d*[dc])+$");
    QVERIFY2(form.match(spec.commandFormat).hasMatch() != (spec.key == "mode"),
             spec.commandFormat.constData());
    const bool isReported = spec.key != "mode";
    QCOMPARE(spec.reportLine >= 0 && spec.reportLine < 16, isReported);
    QCOMPARE(spec.reportField == 1 || spec.reportField == 2, isReported);
}

void CompleteRowsTest::aRowOfNumbersHasARange_data() { addSpecs(isNumber); }

void CompleteRowsTest::aRowOfNumbersHasARange()
{
    const SettingSpec &spec = fetchedSpec();
    QVERIFY2(spec.lowest < spec.highest, "only one value could be stored");
    QVERIFY2(spec.step > 0.0F && spec.step < spec.highest - spec.lowest, "the buttons do nothing");
    QVERIFY(spec.unit != SettingUnit::None);
    QVERIFY(spec.words.isEmpty());
    Settings settings(QStringList{});
    QCOMPARE(settings.changeSetting(spec.key, "-100000"), spec.lowest);
    QCOMPARE(settings.changeSetting(spec.key, "100000"), spec.highest);
    if (!spec.defaultValue.isEmpty()) {
        settings.changeSetting(spec.key, spec.defaultValue);
        QCOMPARE(settings.getSettingString(spec.key), spec.defaultValue);
    }
}

void CompleteRowsTest::aRowOfWordsHasItsWords_data() { addSpecs(isWord); }

void CompleteRowsTest::aRowOfWordsHasItsWords()
{
    const SettingSpec &spec = fetchedSpec();
    QVERIFY2(spec.words.size() > 1, "there is nothing to choose");
    QCOMPARE(QSet<QString>(spec.words.begin(), spec.words.end()).size(), spec.words.size());
    QVERIFY(!spec.words.contains(QString()));
    QVERIFY(spec.unit == SettingUnit::None);
    Settings settings(QStringList{});
    for (const QString &word : spec.words) {
        QCOMPARE(settings.changeSetting(spec.key, word), 0.0F);
        QCOMPARE(settings.getSettingString(spec.key), word);
    }
    // The mode begins with a word that it does not take: the device is neither until it is told.
    const bool isDefaultAWord = spec.words.contains(spec.defaultValue);
    QCOMPARE(isDefaultAWord, !spec.defaultValue.isEmpty() && spec.key != "mode");
}

void CompleteRowsTest::theSuffixFollowsTheUnit_data() { addSpecs(isAny); }

void CompleteRowsTest::theSuffixFollowsTheUnit()
{
    const SettingSpec &spec = fetchedSpec();
    const QMap<SettingUnit, QStringList> suffixes = {
        {SettingUnit::None, {"", ""}},       {SettingUnit::Count, {"", ""}},
        {SettingUnit::Percent, {"%", "%"}},  {SettingUnit::Kilohertz, {" kHz", " kHz"}},
        {SettingUnit::Metre, {" m", " ft"}}, {SettingUnit::MetrePerSecond, {" m/s", " ft/s"}}};
    const QStringList own = {spec.suffix(false), spec.suffix(true)};
    QCOMPARE(own, suffixes.value(spec.unit));
    QCOMPARE(spec.isConvertible(), own.first() != own.last());
}

void CompleteRowsTest::theKeyNamesTheChannel_data() { addSpecs(isAny); }

void CompleteRowsTest::theKeyNamesTheChannel()
{
    const SettingSpec &spec = fetchedSpec();
    QCOMPARE(spec.key.startsWith("high"), spec.channel == SettingChannel::High);
    QCOMPARE(spec.key.startsWith("low"), spec.channel == SettingChannel::Low);
    QCOMPARE(spec.prettyName.startsWith("High "), spec.channel == SettingChannel::High);
    QCOMPARE(spec.prettyName.startsWith("Low "), spec.channel == SettingChannel::Low);
}

void CompleteRowsTest::keysAndNamesAreUnique()
{
    QSet<QString> keys;
    QSet<QString> names;
    for (const SettingSpec &spec : SettingSpecs::all()) {
        keys.insert(spec.key);
        names.insert(spec.prettyName);
    }
    QCOMPARE(keys.size(), static_cast<int>(SettingSpecs::all().size()));
    QCOMPARE(names.size(), static_cast<int>(SettingSpecs::all().size()));
}

void CompleteRowsTest::lettersAreUniqueInTheirChannel()
{
    QStringList inReplies;
    QStringList inCommands;
    for (const SettingSpec &spec : SettingSpecs::all()) {
        const QString channel = QString::number(static_cast<int>(spec.channel));
        if (spec.replyLetter != '\0') {
            inReplies << channel + QLatin1Char(spec.replyLetter);
        }
        for (const QString &letter : commandLetters(spec)) {
            inCommands << channel + letter;
        }
    }
    QCOMPARE(inReplies.removeDuplicates(), 0);
    QCOMPARE(inCommands.removeDuplicates(), 0);
    QCOMPARE(inReplies.size(), 23);
    QCOMPARE(inCommands.size(), 25);
}

void CompleteRowsTest::theReplyHasTheLetterOfTheCommand_data()
{
    addSpecs([](const SettingSpec &spec) { return spec.key != "mode"; });
}

void CompleteRowsTest::theReplyHasTheLetterOfTheCommand()
{
    const SettingSpec &spec = fetchedSpec();
    QCOMPARE(QString(QLatin1Char(spec.replyLetter)), commandLetters(spec).first());
    const Settings settings(QStringList{});
    QVERIFY(settings.getCommandString(spec.key).startsWith(QString("*") + spec.replyLetter));
}

QTEST_MAIN(CompleteRowsTest)
#include "tst_completerows.moc"
