// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// That the manual has every text that the operator meets: whoever looks one up finds it.

#include "announcement.h"
#include "helptopics.h"
#include "manualpage.h"
#include "porttrouble.h"
#include "settingspec.h"
#include "sourcetexts.h"

#include <QtTest>

#include <algorithm>
#include <iterator>

using ManualPage::section;
using SourceTexts::FormWidget;
using SourceTexts::Literal;

Q_DECLARE_METATYPE(PortTrouble::Facts)

class ManualTextsTest : public QObject
{
    Q_OBJECT

private slots:
    void aTextOfTheProgramIsInTheManual_data();
    void aTextOfTheProgramIsInTheManual();
    void noExcuseIsLeftOver_data();
    void noExcuseIsLeftOver();
    void anOutcomeIsListed_data();
    void anOutcomeIsListed();
    void aReasonOfThePortIsListed_data();
    void aReasonOfThePortIsListed();
    void aCaptionOfTheFormIsInTheManual_data();
    void aCaptionOfTheFormIsInTheManual();
    void aHelpTopicIsListedWithItsControls_data();
    void aHelpTopicIsListedWithItsControls();
    void noHelpTopicIsLeftOver();
};

namespace {

/// Texts that no operator looks up.
struct Excuse
{
    const char *file;
    const char *beginning;
    const char *reason;
};

constexpr Excuse excuses[] = {
    {"devicelabels.cpp", "", "the longest texts, for which labels need room"},
    {"keyboardaccess.cpp", "Scroll ", "spoken by a screen reader only"},
    {"mainwindow.cpp", "QListView::item", "a style sheet"},
    {"numberfield.cpp", "There is no setting ", "ends the program of a developer"},
    {"settingsfilename.cpp", "", "the form has no button for it"},
    {"soundings.cpp", " et B ", "a sentence made up for developers"},
};

bool covers(const Excuse &excuse, const Literal &literal)
{
    return literal.file == QLatin1String(excuse.file) &&
           literal.text.startsWith(QLatin1String(excuse.beginning));
}

bool isExcused(const Literal &literal)
{
    return std::any_of(std::begin(excuses), std::end(excuses),
                       [&literal](const Excuse &excuse) { return covers(excuse, literal); });
}

/// Sources whose texts stand beside the controls or in a window's title: the manual explains them
/// where it comes to the control. All others speak in the info line, in boxes and in tooltips.
constexpr const char *sourcesOfCaptions[] = {
    "channelpane.cpp",        "fieldtips.cpp", "mainwindow.cpp", "mainwindow_link.cpp",
    "mainwindow_options.cpp", "marks.cpp",     "soundings.cpp",  "unitstatus.cpp",
};

bool isHelpTopic(const QString &text)
{
    const QVector<HelpTopic> topics = helpTopics();
    return std::any_of(topics.begin(), topics.end(),
                       [&text](const HelpTopic &topic) { return topic.title == text; });
}

bool isChoice(const QString &text)
{
    const std::vector<SettingSpec> &specs = SettingSpecs::all();
    return std::any_of(specs.begin(), specs.end(),
                       [&text](const SettingSpec &spec) { return spec.words.contains(text); });
}

bool isCaption(const Literal &literal)
{
    return isHelpTopic(literal.text) || isChoice(literal.text) ||
           std::any_of(std::begin(sourcesOfCaptions), std::end(sourcesOfCaptions),
                       [&literal](const char *file) { return literal.file == file; });
}

/// What stands in a text for good, without mark-up, a folder's end, and the places that are filled
/// in. Less than a word is no text.
QStringList fixedPieces(const QString &text)
{
    static const QRegularExpression filledIn(QStringLiteral(R"re(<[^>]*>?|%\w+|^/| \($)re"));
    static const QRegularExpression word(QStringLiteral("[A-Za-z]{3}"));
    QStringList pieces;
    for (const QString &piece : text.split(filledIn)) {
        if (piece.contains(word)) {
            pieces << piece.simplified();
        }
    }
    return pieces;
}

QString told() { return section("What the program says"); }

PortTrouble::Facts facts(QSerialPort::SerialPortError error, bool isOffLimits, const char *group)
{
    return {error, QStringLiteral("…"), isOffLimits, QLatin1String(group)};
}

/// The form's text without what is filled in behind it and the colon.
QString captionOf(QString text)
{
    static const QRegularExpression ending(QStringLiteral(R"re((:| \([^)]*\))$)re"));
    return text.remove(ending).simplified();
}

/// The controls beside the buttons that open a topic, in the form's order.
QStringList controlsBeside(const QString &topic)
{
    static const QHash<QString, QString> topics = SourceTexts::topicsByButton();
    QStringList controls;
    for (const FormWidget &widget : SourceTexts::widgetsOf("mainwindow.ui")) {
        if (topics.value(widget.name) == topic) {
            QString name = widget.properties.value("accessibleName");
            controls << name.remove("Help: ");
        }
    }
    return controls;
}

} // namespace

void ManualTextsTest::aTextOfTheProgramIsInTheManual_data()
{
    QTest::addColumn<QStringList>("pieces");
    QTest::addColumn<QString>("place");
    for (const Literal &literal : SourceTexts::spoken()) {
        const QStringList pieces = fixedPieces(literal.text);
        if (!isExcused(literal) && !pieces.isEmpty()) {
            QTest::addRow("%s: %s", qPrintable(literal.file), qPrintable(literal.text))
                << pieces << (isCaption(literal) ? ManualPage::flowing() : told().simplified());
        }
    }
}

void ManualTextsTest::aTextOfTheProgramIsInTheManual()
{
    QFETCH(QStringList, pieces);
    QFETCH(QString, place);
    for (const QString &piece : qAsConst(pieces)) {
        QVERIFY2(place.contains(piece), qPrintable(piece));
    }
}

void ManualTextsTest::noExcuseIsLeftOver_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("beginning");
    for (const Excuse &excuse : excuses) {
        QTest::addRow("%s: %s", excuse.file, excuse.beginning)
            << QString(excuse.file) << QString(excuse.beginning);
    }
}

void ManualTextsTest::noExcuseIsLeftOver()
{
    QFETCH(QString, file);
    QFETCH(QString, beginning);
    const QList<Literal> literals = SourceTexts::spoken();
    QVERIFY(std::any_of(literals.begin(), literals.end(), [&](const Literal &literal) {
        return literal.file == file && literal.text.startsWith(beginning);
    }));
}

void ManualTextsTest::anOutcomeIsListed_data()
{
    QTest::addColumn<QString>("text");
    const SettingSpec *draft = SettingSpecs::find("highDraft");
    QTest::newRow("announced") << Announcement::text(*draft, "0.50 m");
    QTest::newRow("search") << "Trying 9600 baud";
    for (const char *outcome :
         {"Success", "Received Error - Command Not Applied", "Command Timed Out"}) {
        QTest::newRow(outcome) << QString(" ... ") + outcome;
    }
    for (const SettingSpec &spec : SettingSpecs::all()) {
        if (!spec.refusalAdvice.isEmpty()) {
            QTest::addRow("%s refused", qPrintable(spec.key))
                << " ... not applied. " + spec.refusalAdvice;
        }
    }
}

void ManualTextsTest::anOutcomeIsListed()
{
    QFETCH(QString, text);
    QVERIFY2(told().contains("| `" + text + "` |"), qPrintable(text));
}

void ManualTextsTest::aReasonOfThePortIsListed_data()
{
    QTest::addColumn<PortTrouble::Facts>("facts");
    QTest::newRow("gone") << facts(QSerialPort::DeviceNotFoundError, false, "");
    QTest::newRow("held by another program") << facts(QSerialPort::PermissionError, false, "");
    QTest::newRow("not in the group") << facts(QSerialPort::PermissionError, true, "dialout");
    QTest::newRow("not allowed") << facts(QSerialPort::PermissionError, true, "");
    QTest::newRow("anything else") << facts(QSerialPort::UnknownError, false, "");
}

void ManualTextsTest::aReasonOfThePortIsListed()
{
    QFETCH(PortTrouble::Facts, facts);
    QVERIFY2(told().contains("| `" + PortTrouble::words(facts) + "` |"),
             qPrintable(PortTrouble::words(facts)));
}

void ManualTextsTest::aCaptionOfTheFormIsInTheManual_data()
{
    QTest::addColumn<QString>("caption");
    static const QRegularExpression word(QStringLiteral("[A-Za-z]{3}"));
    for (const char *form : {"mainwindow.ui", "depthgraph.ui", "infoform.ui"}) {
        for (const FormWidget &widget : SourceTexts::widgetsOf(form)) {
            const QString text = widget.properties.value("text", widget.properties.value("title"));
            const bool isShown = widget.name != "autoSave" && text != "TextLabel";
            if (isShown && text.contains(word)) {
                QTest::addRow("%s: %s", form, qPrintable(widget.name)) << captionOf(text);
            }
        }
    }
}

void ManualTextsTest::aCaptionOfTheFormIsInTheManual()
{
    QFETCH(QString, caption);
    QVERIFY2(ManualPage::flowing().contains(caption), qPrintable(caption));
}

void ManualTextsTest::aHelpTopicIsListedWithItsControls_data()
{
    QTest::addColumn<QString>("topic");
    for (const HelpTopic &topic : helpTopics()) {
        QTest::newRow(qPrintable(topic.title)) << topic.title;
    }
}

void ManualTextsTest::aHelpTopicIsListedWithItsControls()
{
    QFETCH(QString, topic);
    const QStringList controls = controlsBeside(topic);
    QVERIFY(!controls.isEmpty());
    const QStringList expected{topic, controls.join(", ")};
    const QList<QStringList> rows = ManualPage::rows(section("Help in the program"));
    QVERIFY2(rows.contains(expected), qPrintable(expected.join(" | ")));
}

void ManualTextsTest::noHelpTopicIsLeftOver()
{
    QCOMPARE(ManualPage::rows(section("Help in the program")).size(), helpTopics().size());
}

QTEST_APPLESS_MAIN(ManualTextsTest)
#include "tst_manualtexts.moc"
