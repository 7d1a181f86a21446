// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "outputformat.h"
#include "settingspec.h"

#include <QtTest>

/// That the page about the wire speaks of every setting and every output format: who builds a
/// sounder or reads a recording has nothing else.
class ProtocolPageTest : public QObject
{
    Q_OBJECT

private slots:
    void aSetCommandHasItsLetter_data();
    void aSetCommandHasItsLetter();
    void aSettingsReplyHasItsLetter_data();
    void aSettingsReplyHasItsLetter();
    void aFormatHasItsNumberAndItsSentence_data();
    void aFormatHasItsNumberAndItsSentence();
};

namespace {

/// The page's text below this heading, up to the next one.
QString section(const QString &heading)
{
    QFile page(QStringLiteral(PROTOCOL_PAGE));
    const QString text = page.open(QIODevice::ReadOnly) ? QString::fromUtf8(page.readAll()) : "";
    return text.section("## " + heading + "\n", 1, 1).section("\n## ", 0, 0);
}

void addToldSettings()
{
    QTest::addColumn<SettingChannel>("channel");
    QTest::addColumn<char>("letter");
    for (const SettingSpec &spec : SettingSpecs::all()) {
        if (spec.replyLetter != '\0') {
            QTest::newRow(qPrintable(spec.key)) << spec.channel << spec.replyLetter;
        }
    }
}

/// What comes before a setting's letter in the lines of the settings reply.
const char *beginningOf(SettingChannel channel)
{
    if (channel == SettingChannel::Common) {
        return "[*,]";
    }
    return channel == SettingChannel::High ? "[*,]H" : "[*,]L";
}

} // namespace

Q_DECLARE_METATYPE(SettingChannel)

void ProtocolPageTest::aSetCommandHasItsLetter_data() { addToldSettings(); }

void ProtocolPageTest::aSetCommandHasItsLetter()
{
    QFETCH(char, letter);
    const QString commands = section("Set commands");
    QVERIFY2(commands.contains(QStringLiteral("`%1`").arg(letter)), qPrintable(commands));
}

void ProtocolPageTest::aSettingsReplyHasItsLetter_data() { addToldSettings(); }

void ProtocolPageTest::aSettingsReplyHasItsLetter()
{
    QFETCH(SettingChannel, channel);
    QFETCH(char, letter);
    const QRegularExpression piece(QString(beginningOf(channel)) + QLatin1Char(letter));
    const QString replies = section("What the sounder says");
    QVERIFY2(replies.contains(piece), qPrintable(piece.pattern() + " is not in: " + replies));
}

void ProtocolPageTest::aFormatHasItsNumberAndItsSentence_data()
{
    QTest::addColumn<int>("number");
    for (const OutputFormat &format : OutputFormats::all()) {
        QTest::newRow(qPrintable(format.name)) << format.deviceNumber;
    }
}

void ProtocolPageTest::aFormatHasItsNumberAndItsSentence()
{
    QFETCH(int, number);
    const QString name = QTest::currentDataTag();
    const QRegularExpression listed(QStringLiteral("\\b%1 %2\\b").arg(number).arg(name));
    QVERIFY(section("Set commands").contains(listed));
    const QRegularExpression row(QStringLiteral("\n\\| ([^|]*, )?%1[ ,].*\\|").arg(name));
    QVERIFY(section("Depth sentences").contains(row));
}

QTEST_APPLESS_MAIN(ProtocolPageTest)
#include "tst_protocolpage.moc"
