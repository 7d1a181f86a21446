// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "rowsmissing.h"
#include "settings.h"

#include <QtTest>

/// What a setting keeps of a number: nothing out of the device's range may ever be sent.
class NumberRangesTest : public QObject
{
    Q_OBJECT

private slots:
    void aNumberIsHeldToItsRange_data();
    void aNumberIsHeldToItsRange();
};

namespace {

struct Number
{
    const char *value;
    const char *stored;
    const char *why;
};

QSet<QString> keysWithRows;

void addNumberRows(const QStringList &keys, std::initializer_list<Number> numbers)
{
    keysWithRows += QSet<QString>(keys.begin(), keys.end());
    for (const QString &key : keys) {
        for (const Number &number : numbers) {
            QTest::addRow("%s = \"%s\": %s", qPrintable(key), number.value, number.why)
                << key << QString(number.value) << QString(number.stored)
                << QString(number.stored).toFloat();
        }
    }
}

/// The numbers, and texts that are no number: all of those count as 0.
void addRows(const QStringList &keys, std::initializer_list<Number> numbers,
             const char *storedForZero)
{
    addNumberRows(keys, numbers);
    for (const char *value : {"", "   ", "fast", "5 m", "0x20", "50,5", "5,000", "nan", "NaN",
                              "inf", "-inf", "infinity", "1e39"}) {
        addNumberRows(keys, {{value, storedForZero, "no number"}});
    }
}

/// The same for settings that take whole numbers only.
void addWholeNumberRows(const QStringList &keys, std::initializer_list<Number> numbers,
                        const char *lowest)
{
    addRows(keys, numbers, lowest);
    addNumberRows(keys, {{"-2147483648", lowest, "least of 32 bits"},
                         {"3000000000", lowest, "beyond 32 bits, no whole number"},
                         {"50.0", lowest, "a fraction, no whole number"},
                         {"5e1", lowest, "an exponent, no whole number"}});
}

void addPingRows()
{
    addWholeNumberRows({"Ping"},
                       {{"-3", "1", "negative"},
                        {"0", "1", "below"},
                        {"1", "1", "at the lowest"},
                        {"2", "2", "just above the lowest"},
                        {"5", "5", "between"},
                        {" 6 ", "6", "blanks around"},
                        {"9", "9", "just below the highest"},
                        {"10", "10", "at the highest"},
                        {"11", "10", "just above the highest"},
                        {"12", "10", "above"},
                        {"2147483647", "10", "most of 32 bits"}},
                       "1");
}

void addCommonRealRows()
{
    addRows({"Velocity"},
            {{"-1500", "1300", "negative"},
             {"1299.99", "1300", "just below the lowest"},
             {"1300", "1300", "at the lowest"},
             {"1300.01", "1300.01", "just above the lowest"},
             {"1500.5", "1500.5", "between"},
             {" 1482 ", "1482", "blanks around"},
             {"1.6e3", "1600", "an exponent"},
             {"1500.0449", "1500.04", "six digits are kept"},
             {"1749.99", "1749.99", "just below the highest"},
             {"1750", "1750", "at the highest"},
             {"1750.01", "1750", "just above the highest"},
             {"1e38", "1750", "far above"}},
            "1300");
    addRows({"Depth"},
            {{"-80", "3", "negative"},
             {"2.99", "3", "just below the lowest"},
             {"3", "3", "at the lowest"},
             {"3.01", "3.01", "just above the lowest"},
             {"45.7", "45.7", "between"},
             {"\t45.7\n", "45.7", "white space around"},
             {"99.99", "99.99", "just below the highest"},
             {"100", "100", "at the highest"},
             {"100.01", "100", "just above the highest"}},
            "3");
}

void addChannelRealRows()
{
    addRows({"highDraft", "lowDraft", "highIndex", "lowIndex"},
            {{"-0.01", "0", "just below the lowest"},
             {"-0", "0", "at the lowest, negative zero"},
             {"0", "0", "at the lowest"},
             {"0.001", "0.001", "just above the lowest"},
             {"0.45", "0.45", "between"},
             {" 1.25 ", "1.25", "blanks around"},
             {"99.999", "99.999", "just below the highest"},
             {"100", "100", "at the highest"},
             {"100.01", "100", "just above the highest"}},
            "0");
    addRows({"highBlank"},
            {{"-1", "0.3", "negative"},
             {"0.299", "0.3", "just below the lowest"},
             {"0.3", "0.3", "at the lowest"},
             {"0.301", "0.301", "just above the lowest"},
             {"0.4", "0.4", "allowed in the high channel only"},
             {" 2.5 ", "2.5", "between, blanks around"},
             {"9.999", "9.999", "just below the highest"},
             {"10", "10", "at the highest"},
             {"10.01", "10", "just above the highest"}},
            "0.3");
    addRows({"lowBlank"},
            {{"-1", "0.5", "negative"},
             {"0.4", "0.5", "below"},
             {"0.499", "0.5", "just below the lowest"},
             {"0.5", "0.5", "at the lowest"},
             {"0.501", "0.501", "just above the lowest"},
             {" 2.5 ", "2.5", "between, blanks around"},
             {"9.999", "9.999", "just below the highest"},
             {"10", "10", "at the highest"},
             {"10.01", "10", "just above the highest"}},
            "0.5");
}

void addFrequencyRows()
{
    addRows({"highFreq"},
            {{"33", "190", "the other channel's frequency"},
             {"189.99", "190", "just below the lowest"},
             {"190", "190", "at the lowest"},
             {"190.01", "190.01", "just above the lowest"},
             {" 200 ", "200", "between, blanks around"},
             {"209.99", "209.99", "just below the highest"},
             {"210", "210", "at the highest"},
             {"210.01", "210", "just above the highest"},
             {"250", "210", "above"}},
            "190");
    addRows({"lowFreq"},
            {{"20", "30", "below"},
             {"29.99", "30", "just below the lowest"},
             {"30", "30", "at the lowest"},
             {"30.01", "30.01", "just above the lowest"},
             {" 33 ", "33", "between, blanks around"},
             {"35.99", "35.99", "just below the highest"},
             {"36", "36", "at the highest"},
             {"36.01", "36", "just above the highest"},
             {"200", "36", "the other channel's frequency"}},
            "30");
}

void addSliderRows()
{
    addWholeNumberRows({"highDetect", "lowDetect", "highPulse", "lowPulse"},
                       {{"-1", "1", "negative"},
                        {"0", "1", "just below the lowest"},
                        {"1", "1", "at the lowest"},
                        {"2", "2", "just above the lowest"},
                        {" 50 ", "50", "between, blanks around"},
                        {"99", "99", "just below the highest"},
                        {"100", "100", "at the highest"},
                        {"101", "100", "just above the highest"},
                        {"2147483647", "100", "most of 32 bits"}},
                       "1");
    addWholeNumberRows({"highGain", "lowGain"},
                       {{"-1", "30", "negative"},
                        {"10", "30", "below"},
                        {"29", "30", "just below the lowest"},
                        {"30", "30", "at the lowest"},
                        {"31", "31", "just above the lowest"},
                        {" 65 ", "65", "between, blanks around"},
                        {"99", "99", "just below the highest"},
                        {"100", "100", "at the highest"},
                        {"101", "100", "just above the highest"},
                        {"2147483647", "100", "most of 32 bits"}},
                       "30");
}

} // namespace

void NumberRangesTest::aNumberIsHeldToItsRange_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<float>("returned");

    addPingRows();
    addCommonRealRows();
    addChannelRealRows();
    addFrequencyRows();
    addSliderRows();
    QCOMPARE(keysMissing(keysWithRows, isNumberSetting), QString());
}

void NumberRangesTest::aNumberIsHeldToItsRange()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    QFETCH(float, returned);
    Settings settings(QStringList{});
    const float result = settings.changeSetting(key, value);
    QTEST(settings.getSettingString(key), "stored");
    // The text is rounded to six digits, the number returned is not.
    QVERIFY2(qAbs(result - returned) <= returned * 5e-6F,
             qPrintable(QString("returned %1").arg(static_cast<double>(result))));
    QCOMPARE(settings.getSettingString(key).toFloat(), settings.getSetting(key));
}

QTEST_MAIN(NumberRangesTest)
#include "tst_numberranges.moc"
