// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "settingspec.h"
#include "valuerules.h"

#include <QtTest>

/// The rules on ranges that no setting has; what each setting keeps is tested through `Settings`.
class ValueRulesTest : public QObject
{
    Q_OBJECT

private slots:
    void aNumberIsHeld_data();
    void aNumberIsHeld();
};

namespace {

struct Number
{
    const char *value;
    const char *text;
    float number;
    const char *why;
};

void addRows(ValueKind kind, float lowest, float highest, std::initializer_list<Number> numbers)
{
    for (const Number &number : numbers) {
        QTest::addRow("\"%s\" within %g to %g: %s", number.value, static_cast<double>(lowest),
                      static_cast<double>(highest), number.why)
            << static_cast<int>(kind) << lowest << highest << QString(number.value)
            << QString(number.text) << number.number;
    }
}

} // namespace

void ValueRulesTest::aNumberIsHeld_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<float>("lowest");
    QTest::addColumn<float>("highest");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("text");
    QTest::addColumn<float>("number");

    addRows(ValueKind::Whole, -4.0F, 7.0F,
            {{"-5", "-4", -4.0F, "below"},
             {"-4", "-4", -4.0F, "at the lowest"},
             {"-3", "-3", -3.0F, "negative, between"},
             {" 6 ", "6", 6.0F, "blanks around"},
             {"7", "7", 7.0F, "at the highest"},
             {"8", "7", 7.0F, "above"},
             {"2147483648", "0", 0.0F, "beyond 32 bits, no whole number"},
             {"5.0", "0", 0.0F, "a fraction, no whole number"},
             {"", "0", 0.0F, "no number"}});
    addRows(ValueKind::Whole, 3.0F, 7.0F, {{"fast", "3", 3.0F, "0 lies below"}});
    addRows(ValueKind::Real, -1.5F, 2.25F,
            {{"-1.51", "-1.5", -1.5F, "below"},
             {"-1.5", "-1.5", -1.5F, "at the lowest"},
             {"-1.4", "-1.4", -1.4F, "negative, between"},
             {" 0.5 ", "0.5", 0.5F, "blanks around"},
             {"1.2345678", "1.23457", 1.2345678F, "six digits are written, the number keeps all"},
             {"2.25", "2.25", 2.25F, "at the highest"},
             {"2.26", "2.25", 2.25F, "above"},
             {"0,5", "0", 0.0F, "a comma, no number"},
             {"nan", "0", 0.0F, "not a number"},
             {"inf", "0", 0.0F, "infinite"},
             {"1e39", "0", 0.0F, "beyond a 32-bit float"}});
    addRows(ValueKind::Real, 0.3F, 10.0F,
            {{"0.3", "0.3", 0.3F, "at a lowest that no float hits"},
             {"x", "0.3", 0.3F, "0 lies below"}});
    addRows(ValueKind::Real, 0.0F, 1e7F,
            {{"1234567", "1.23457e+06", 1234567.0F, "seven digits"},
             {"123456", "123456", 123456.0F, "six digits"}});
}

void ValueRulesTest::aNumberIsHeld()
{
    QFETCH(int, kind);
    QFETCH(float, lowest);
    QFETCH(float, highest);
    QFETCH(QString, value);
    SettingSpec spec;
    spec.kind = static_cast<ValueKind>(kind);
    spec.lowest = lowest;
    spec.highest = highest;
    const ValueRules::StoredNumber held = ValueRules::held(spec, value);
    QTEST(held.text, "text");
    QTEST(held.number, "number");
}

QTEST_MAIN(ValueRulesTest)
#include "tst_valuerules.moc"
