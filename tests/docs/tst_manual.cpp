// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// The manual's numbers, lists, examples, pictures and links.

#include "depthformats.h"
#include "manualpage.h"
#include "numbertext.h"
#include "outputformat.h"
#include "settingspec.h"
#include "soundspeed.h"
#include "sourcetexts.h"
#include "units.h"

#include <QtTest>

#include <algorithm>

using ManualPage::section;

Q_DECLARE_METATYPE(const SettingSpec *)
Q_DECLARE_METATYPE(const OutputFormat *)

class ManualTest : public QObject
{
    Q_OBJECT

private slots:
    void aSettingHasItsRow_data();
    void aSettingHasItsRow();
    void aSettingsSectionTellsItsValues_data() { aSettingHasItsRow_data(); }
    void aSettingsSectionTellsItsValues();
    void noRowIsLeftOver();
    void anOutputFormatHasItsSentence_data();
    void anOutputFormatHasItsSentence();
    void theFormatsStandInTheOrderOfTheList();
    void aSoundVelocityIsTheFormulas_data();
    void aSoundVelocityIsTheFormulas();
    void theFormulaIsTheOneTheTablesAreMadeBy();
    void everyPictureIsThere();
    void everyPictureIsShownAndCanBeRenewed();
    void everyLinkLeadsToAHeading();
    void everyChapterIsInTheContents();
    void theLastPageTellsWhereToWrite();
};

namespace {

const QString numbersHeading = QStringLiteral("Numbers");
const QString choicesHeading = QStringLiteral("Choices");

using Form = QList<SourceTexts::FormWidget>;

const Form &mainForm()
{
    static const Form widgets = SourceTexts::widgetsOf(QStringLiteral("mainwindow.ui"));
    return widgets;
}

/// What a slider without an edit beside it does not reach cannot be set; such a slider bears the
/// setting's name.
void narrowToSlider(const SettingSpec &spec, float &lowest, float &highest)
{
    for (const SourceTexts::FormWidget &widget : mainForm()) {
        if (widget.name == spec.key + "Slider") {
            lowest = std::max(lowest, widget.properties.value("minimum").toFloat());
            highest = std::min(highest, widget.properties.value("maximum").toFloat());
        }
    }
}

QString rangeOf(const SettingSpec &spec, bool imperial)
{
    float lowest = spec.lowest;
    float highest = spec.highest;
    narrowToSlider(spec, lowest, highest);
    const bool inFeet = imperial && spec.isConvertible();
    return NumberText::fixed(Units::shown(lowest, inFeet), spec.decimals) + " to " +
           NumberText::fixed(Units::shown(highest, inFeet), spec.decimals) + spec.suffix(imperial);
}

QList<QStringList> rowsOf(const SettingSpec &spec)
{
    const bool isChoice = spec.kind == ValueKind::Word;
    QList<QStringList> own;
    for (const QStringList &row :
         ManualPage::rows(section(isChoice ? choicesHeading : numbersHeading))) {
        if (row.first() == spec.prettyName) {
            own << row;
        }
    }
    return own;
}

/// What the form calls the setting is the one cell that no table of the program tells.
QStringList expectedRow(const SettingSpec &spec, const QString &onTheForm)
{
    if (spec.kind == ValueKind::Word) {
        return {spec.prettyName, onTheForm, spec.words.join(QStringLiteral(", "))};
    }
    return {spec.prettyName, onTheForm, rangeOf(spec, false), rangeOf(spec, true),
            NumberText::fromFloat(spec.step)};
}

/// "1 to 10" is not told by "1 to 100".
bool tells(const QString &text, const QString &words)
{
    return text.contains(
        QRegularExpression("(?<![\\d.])" + QRegularExpression::escape(words) + "(?!\\.?\\d)"));
}

/// "Draft (m)" is the form's caption "Draft".
bool isCaption(const QString &text)
{
    return std::any_of(mainForm().begin(), mainForm().end(), [&text](const auto &widget) {
        const QString caption = widget.properties.value("text");
        return caption == text || caption == text + ":" || caption.startsWith(text + " (");
    });
}

/// A setting without a command is none that an operator could set.
bool canBeSet(const SettingSpec &spec) { return !spec.commandFormat.isEmpty(); }

/// As GitHub and the build's own page make it of a heading.
QString anchorOf(const QString &heading)
{
    static const QRegularExpression dropped(QStringLiteral("[^a-z0-9 -]"));
    return heading.toLower().remove(dropped).replace(QLatin1Char(' '), QLatin1Char('-'));
}

QStringList allCaptured(const QString &pattern, const QString &text)
{
    QStringList captured;
    auto found = QRegularExpression(pattern).globalMatch(text);
    while (found.hasNext()) {
        captured << found.next().captured(1);
    }
    return captured;
}

const QString picturePattern = QStringLiteral(R"re(!\[[^\]]+\]\(([^)]+)\))re");
const QString linkPattern = QStringLiteral(R"re(\]\(#([^)]+)\))re");

} // namespace

void ManualTest::aSettingHasItsRow_data()
{
    QTest::addColumn<const SettingSpec *>("spec");
    for (const SettingSpec &spec : SettingSpecs::all()) {
        if (canBeSet(spec)) {
            QTest::newRow(qPrintable(spec.key)) << &spec;
        }
    }
}

void ManualTest::aSettingHasItsRow()
{
    QFETCH(const SettingSpec *, spec);
    const QList<QStringList> own = rowsOf(*spec);
    QCOMPARE(own.size(), 1);
    const QString onTheForm = own.first().value(1);
    QVERIFY2(isCaption(onTheForm), qPrintable(onTheForm));
    QCOMPARE(own.first(), expectedRow(*spec, onTheForm));
}

void ManualTest::aSettingsSectionTellsItsValues()
{
    QFETCH(const SettingSpec *, spec);
    QCOMPARE(rowsOf(*spec).size(), 1);
    const QString below = section(rowsOf(*spec).first().value(1)).simplified();
    QStringList expected;
    if (spec->kind == ValueKind::Word) {
        expected << "Choices: " + spec->words.join(QStringLiteral(", ")) + ".";
    } else {
        expected << rangeOf(*spec, false) << rangeOf(*spec, true)
                 << "in steps of " + NumberText::fromFloat(spec->step) + ".";
    }
    for (const QString &words : qAsConst(expected)) {
        QVERIFY2(tells(below, words), qPrintable(words + " is not in: " + below));
    }
}

void ManualTest::noRowIsLeftOver()
{
    const auto settable = std::count_if(SettingSpecs::all().begin(), SettingSpecs::all().end(),
                                        [](const SettingSpec &spec) { return canBeSet(spec); });
    const auto written = ManualPage::rows(section(numbersHeading)).size() +
                         ManualPage::rows(section(choicesHeading)).size();
    QCOMPARE(qint64(written), qint64(settable));
}

void ManualTest::anOutputFormatHasItsSentence_data()
{
    QTest::addColumn<const OutputFormat *>("format");
    for (const OutputFormat &format : OutputFormats::all()) {
        QTest::newRow(qPrintable(format.name)) << &format;
    }
}

void ManualTest::anOutputFormatHasItsSentence()
{
    QFETCH(const OutputFormat *, format);
    const double draft = format->deviceNumber == NmeaDbt ? 0.40 : 0; // left out there
    const DepthPair depths{12.34 - draft, 12.61 - draft};
    const QString below = section(format->name);
    QCOMPARE(ManualPage::fenced(below),
             QString::fromLatin1(DepthFormats::lines(format->deviceNumber, depths).join('\n')));
    QVERIFY(section("Output Format")
                .simplified()
                .contains("12.34 m and a low-frequency depth of "
                          "12.61 m, with a draft of 0.40 m in both"));
    if (format->fixedRate != 0) {
        QVERIFY(below.contains(QString("always runs at %1").arg(format->fixedRate)));
        QVERIFY(below.contains("Fixed by " + format->name));
    }
}

void ManualTest::theFormatsStandInTheOrderOfTheList()
{
    const QStringList expected = QStringList{"Baud Rate", "Output Format"} + OutputFormats::names();
    QCOMPARE(ManualPage::headings(section("The output of the sounder"), 3), expected);
}

void ManualTest::aSoundVelocityIsTheFormulas_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<bool>("imperial");
    QTest::addColumn<int>("temperature");
    for (int temperature = 0; temperature <= 30; temperature += 2) {
        QTest::addRow("%d °C, m/s", temperature) << "Metres per second" << false << temperature;
        QTest::addRow("%d °C, ft/s", temperature) << "Feet per second" << true << temperature;
    }
}

void ManualTest::aSoundVelocityIsTheFormulas()
{
    QFETCH(QString, table);
    QFETCH(bool, imperial);
    QFETCH(int, temperature);
    const QString below = section(table);
    QVERIFY(below.contains("| °C | 0 (fresh) | 10 | 20 | 30 | 35 (sea) | 40 |"));
    QStringList expected{QString::number(temperature)};
    for (const int salinity : {0, 10, 20, 30, 35, 40}) {
        const auto velocity = static_cast<float>(SoundSpeed::medwin(temperature, salinity, 0));
        expected << NumberText::fixed(Units::shown(velocity, imperial), 0);
    }
    const QList<QStringList> rows = ManualPage::rows(below);
    QCOMPARE(rows.size(), 16);
    QCOMPARE(rows.value(temperature / 2), expected);
}

void ManualTest::theFormulaIsTheOneTheTablesAreMadeBy()
{
    const QString below = section("Appendix B: sound velocity in water");
    QVERIFY2(below.contains(QString::fromUtf8(SoundSpeed::medwinInWords)), qPrintable(below));
}

void ManualTest::everyPictureIsThere()
{
    const QStringList pictures = allCaptured(picturePattern, ManualPage::text());
    QVERIFY(!pictures.isEmpty());
    for (const QString &picture : pictures) {
        QFile file(ManualPage::pathOf("docs/" + picture));
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(picture));
        QVERIFY2(file.read(4) == "\x89PNG", qPrintable(picture));
    }
}

void ManualTest::everyPictureIsShownAndCanBeRenewed()
{
    const QStringList files = QDir(ManualPage::pathOf("docs/pictures")).entryList(QDir::Files);
    QStringList shown = allCaptured(picturePattern, ManualPage::text()) +
                        allCaptured(picturePattern, ManualPage::fileText("README.md"));
    for (QString &picture : shown) {
        picture.remove(0, picture.lastIndexOf('/') + 1);
    }
    shown.removeDuplicates();
    shown.sort();
    QCOMPARE(shown, files);
    QCOMPARE(SourceTexts::manualPictures(), files);
}

void ManualTest::everyLinkLeadsToAHeading()
{
    const QStringList headings = ManualPage::headings(ManualPage::text());
    QStringList anchors;
    for (const QString &heading : headings) {
        anchors << anchorOf(heading);
    }
    QCOMPARE(QSet<QString>(anchors.begin(), anchors.end()).size(), anchors.size());
    const QStringList links = allCaptured(linkPattern, ManualPage::text());
    QVERIFY(!links.isEmpty());
    for (const QString &link : links) {
        QVERIFY2(anchors.contains(link), qPrintable(link));
    }
}

void ManualTest::everyChapterIsInTheContents()
{
    const QString contents = ManualPage::text().section("\n## ", 0, 0);
    QStringList expected;
    for (const QString &chapter : ManualPage::headings(ManualPage::text(), 2)) {
        expected << anchorOf(chapter);
    }
    QCOMPARE(allCaptured(linkPattern, contents), expected);
}

void ManualTest::theLastPageTellsWhereToWrite()
{
    QCOMPARE(ManualPage::headings(ManualPage::text()).last(), QString("Where to write"));
    int addresses = 0;
    for (const SourceTexts::FormWidget &widget : mainForm()) {
        const QString text = widget.properties.value("text");
        if (text.startsWith("support@") || text.startsWith("www.")) {
            ++addresses;
            QVERIFY2(section("Where to write").contains(text), qPrintable(text));
        }
    }
    QCOMPARE(addresses, 2);
}

QTEST_APPLESS_MAIN(ManualTest)
#include "tst_manual.moc"
