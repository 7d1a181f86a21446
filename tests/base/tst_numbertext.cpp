// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "numbertext.h"
#include "settings.h"

#include <QLocale>
#include <QtTest>

#include <clocale>
#include <cmath>
#include <limits>

class NumberTextTest : public QObject
{
    Q_OBJECT

private slots:
    void textsAsFloats_data();
    void textsAsFloats();
    void textsAsDoublesKeepTheirPrecision();
    void textsAsWholeNumbers_data();
    void textsAsWholeNumbers();
    void floatsAsTexts_data();
    void floatsAsTexts();
    void fixedDecimals_data();
    void fixedDecimals();
    void numbersAreMadeFinite_data();
    void numbersAreMadeFinite();
    void theLocaleOfTheToolkitChangesNothing();
    void theLocaleOfTheSystemChangesNothing();
};

namespace {

/// Sets both locales back however the test ends.
struct LocaleGuard
{
    LocaleGuard() = default;
    ~LocaleGuard()
    {
        QLocale::setDefault(toolkit);
        std::setlocale(LC_ALL, system.constData());
    }
    LocaleGuard(const LocaleGuard &) = delete;
    LocaleGuard &operator=(const LocaleGuard &) = delete;

    const QLocale toolkit;
    const QByteArray system = std::setlocale(LC_ALL, nullptr);
};

/// A locale that writes a comma where others write a point; false where the system has none.
bool setCommaLocaleOfTheSystem()
{
    for (const char *name : {"de_DE.UTF-8", "de_DE.utf8", "de_DE", "German_Germany.1252"}) {
        if (std::setlocale(LC_ALL, name)) {
            return true;
        }
    }
    return false;
}

void verifyThatAPointStaysAPoint()
{
    QCOMPARE(NumberText::toFloat("1500.5"), 1500.5F);
    QCOMPARE(NumberText::toFloat("1500,5"), 0.0F);
    QCOMPARE(NumberText::toFloat("1.500,5"), 0.0F);
    QCOMPARE(NumberText::toInt("1500"), 1500);
    QCOMPARE(NumberText::toInt("1.500"), 0);
    QCOMPARE(NumberText::fromFloat(0.3048F), QString("0.3048"));
    QCOMPARE(NumberText::fromFloat(123456.0F), QString("123456"));
    QCOMPARE(NumberText::fixed(1234.5F, 2), QString("1234.50"));

    Settings settings(QStringList{});
    QCOMPARE(settings.changeSetting("highDraft", "0.45"), 0.45F);
    QCOMPARE(settings.getSettingString("highDraft"), QString("0.45"));
    QCOMPARE(settings.getCommandString("highDraft"), QString("*o00450"));
    settings.changeSetting("Velocity", "1482.3");
    QCOMPARE(settings.getCommandString("Velocity"), QString("*v482300"));
}

} // namespace

void NumberTextTest::textsAsFloats_data()
{
    QTest::addColumn<float>("number");
    // clang-format off
    QTest::newRow("1500")       << 1500.0F;
    QTest::newRow("0.45")       << 0.45F;
    QTest::newRow("-2.5")       << -2.5F;
    QTest::newRow("+2.5")       << 2.5F;
    QTest::newRow(".5")         << 0.5F;
    QTest::newRow("5.")         << 5.0F;
    QTest::newRow("1e3")        << 1000.0F;
    QTest::newRow("  7.5  ")    << 7.5F;
    QTest::newRow("\t7.5\r\n")  << 7.5F;
    QTest::newRow("")           << 0.0F;
    QTest::newRow(" ")          << 0.0F;
    QTest::newRow("deep")       << 0.0F;
    QTest::newRow("5 m")        << 0.0F;
    QTest::newRow("1 5")        << 0.0F;
    QTest::newRow("1,5")        << 0.0F;
    QTest::newRow("1,500")      << 0.0F;
    QTest::newRow("1.5.0")      << 0.0F;
    QTest::newRow("0x10")       << 0.0F;
    QTest::newRow("nan")        << 0.0F;
    QTest::newRow("-nan")       << 0.0F;
    QTest::newRow("NaN")        << 0.0F;
    QTest::newRow("inf")        << 0.0F;
    QTest::newRow("+inf")       << 0.0F;
    QTest::newRow("-inf")       << 0.0F;
    QTest::newRow("infinity")   << 0.0F;
    QTest::newRow("3.4e38")     << 3.4e38F;
    QTest::newRow("3.5e38")     << 0.0F;
    QTest::newRow("-1e39")      << 0.0F;
    QTest::newRow("1e400")      << 0.0F;
    QTest::newRow("1e-400")     << 0.0F;
    // clang-format on
}

void NumberTextTest::textsAsFloats()
{
    QFETCH(float, number);
    const QString text = QTest::currentDataTag();
    QCOMPARE(NumberText::toFloat(text), number);
    QCOMPARE(static_cast<float>(NumberText::toDouble(text)), number);
}

void NumberTextTest::textsAsDoublesKeepTheirPrecision()
{
    QCOMPARE(NumberText::toDouble("1500.123456789"), 1500.123456789);
    QCOMPARE(NumberText::toDouble("0.1"), 0.1);
}

void NumberTextTest::textsAsWholeNumbers_data()
{
    QTest::addColumn<int>("number");
    // clang-format off
    QTest::newRow("5")            << 5;
    QTest::newRow("-5")           << -5;
    QTest::newRow("+5")           << 5;
    QTest::newRow("007")          << 7;
    QTest::newRow("  12  ")       << 12;
    QTest::newRow("\t12\r\n")     << 12;
    QTest::newRow("2147483647")   << 2147483647;
    QTest::newRow("-2147483648")  << -2147483647 - 1;
    QTest::newRow("2147483648")   << 0;
    QTest::newRow("-2147483649")  << 0;
    QTest::newRow("")             << 0;
    QTest::newRow(" ")            << 0;
    QTest::newRow("5.5")          << 0;
    QTest::newRow("5.0")          << 0;
    QTest::newRow("1e3")          << 0;
    QTest::newRow("1,000")        << 0;
    QTest::newRow("0x10")         << 0;
    QTest::newRow("12a")          << 0;
    QTest::newRow("1 2")          << 0;
    QTest::newRow("- 5")          << 0;
    // clang-format on
}

void NumberTextTest::textsAsWholeNumbers()
{
    QTEST(NumberText::toInt(QTest::currentDataTag()), "number");
}

void NumberTextTest::floatsAsTexts_data()
{
    QTest::addColumn<float>("number");
    // clang-format off
    QTest::newRow("1500")         << 1500.0F;
    QTest::newRow("0.3")          << 0.3F;
    QTest::newRow("0.5")          << 0.5F;
    QTest::newRow("0.3048")       << 0.3048F;
    QTest::newRow("1482.3")       << 1482.3F;
    QTest::newRow("1482.35")      << 1482.3456F;
    QTest::newRow("99.9999")      << 99.9999F;
    QTest::newRow("100")          << 99.99999F;
    QTest::newRow("0")            << 0.0F;
    QTest::newRow("-2.5")         << -2.5F;
    QTest::newRow("123457")       << 123456.7F;
    QTest::newRow("1.23457e+06")  << 1234567.0F;
    QTest::newRow("1.5e-05")      << 0.000015F;
    // clang-format on
}

void NumberTextTest::floatsAsTexts()
{
    QFETCH(float, number);
    QCOMPARE(NumberText::fromFloat(number), QString(QTest::currentDataTag()));
}

void NumberTextTest::fixedDecimals_data()
{
    QTest::addColumn<float>("number");
    QTest::addColumn<int>("decimals");
    // clang-format off
    QTest::newRow("1.48")     << 1.476378F  << 2;
    QTest::newRow("1.60")     << 1.6F       << 2;
    QTest::newRow("0.00")     << 0.0F       << 2;
    QTest::newRow("4921")     << 4921.26F   << 0;
    QTest::newRow("4922")     << 4921.75F   << 0;
    QTest::newRow("-0.25")    << -0.25F     << 2;
    QTest::newRow("1000000")  << 1000000.0F << 0;
    // clang-format on
}

void NumberTextTest::fixedDecimals()
{
    QFETCH(float, number);
    QFETCH(int, decimals);
    QCOMPARE(NumberText::fixed(number, decimals), QString(QTest::currentDataTag()));
}

void NumberTextTest::numbersAreMadeFinite_data()
{
    using Double = std::numeric_limits<double>;
    constexpr float greatest = std::numeric_limits<float>::max();
    const QString digits = "340282346638528859811704183484516925440.00";
    QTest::addColumn<double>("number");
    QTest::addColumn<float>("finite");
    QTest::addColumn<QString>("decimals");
    QTest::addColumn<QString>("digits");
    // clang-format off
    QTest::newRow("1.5")          << 1.5                 << 1.5F      << "1.50"       << "1.5";
    QTest::newRow("a great one")  << 3.4028234663852886e38 << greatest << digits      << "3.40282e+38";
    QTest::newRow("beyond")       << 1e39                << greatest  << digits       << "3.40282e+38";
    QTest::newRow("far beyond")   << -1e300              << -greatest << "-" + digits << "-3.40282e+38";
    QTest::newRow("inf")          << Double::infinity()  << greatest  << digits       << "3.40282e+38";
    QTest::newRow("-inf")         << -Double::infinity() << -greatest << "-" + digits << "-3.40282e+38";
    QTest::newRow("nan")          << Double::quiet_NaN() << 0.0F      << "0.00"       << "0";
    // clang-format on
}

void NumberTextTest::numbersAreMadeFinite()
{
    QFETCH(double, number);
    QFETCH(float, finite);
    QVERIFY(NumberText::finite(number) == finite);
    const bool holds = !(std::abs(number) > 3.4028234663852886e38);
    const auto narrow = holds ? static_cast<float>(number)
                              : std::copysign(std::numeric_limits<float>::infinity(),
                                              static_cast<float>(number > 0 ? 1 : -1));
    QTEST(NumberText::fixed(narrow, 2), "decimals");
    QTEST(NumberText::fromFloat(narrow), "digits");
}

void NumberTextTest::theLocaleOfTheToolkitChangesNothing()
{
    const LocaleGuard guard;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    QCOMPARE(QLocale().toString(0.5), QString("0,5"));
    verifyThatAPointStaysAPoint();
}

void NumberTextTest::theLocaleOfTheSystemChangesNothing()
{
    const LocaleGuard guard;
    if (!setCommaLocaleOfTheSystem()) {
        QSKIP("this system has no German locale (Debian: package locales-all)");
    }
    QCOMPARE(QByteArray(std::localeconv()->decimal_point), QByteArray(","));
    verifyThatAPointStaysAPoint();
}

QTEST_MAIN(NumberTextTest)
#include "tst_numbertext.moc"
