// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "resources.h"

#include <QFile>
#include <QTest>
#include <QXmlStreamReader>

namespace {

QByteArray templateBytes()
{
    QFile file(QStringLiteral(":/resourcefiles/settings/default.xml"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The document as lines in its own order: an element with its path and value
/// ("Group/Element=value", "Group/Element" if it holds none), a comment as "<!-- text -->"; last
/// the parser's complaint.
QStringList outline(const QByteArray &document)
{
    QStringList lines;
    QStringList path;
    QXmlStreamReader xml(document);
    while (!xml.atEnd()) {
        switch (xml.readNext()) {
        case QXmlStreamReader::StartElement:
            path << xml.name().toString();
            lines << path.join(QLatin1Char('/'));
            break;
        case QXmlStreamReader::Characters:
            if (!xml.isWhitespace())
                lines.last() += QLatin1Char('=') + xml.text().toString();
            break;
        case QXmlStreamReader::Comment:
            lines << QStringLiteral("<!-- %1 -->").arg(xml.text().toString().trimmed());
            break;
        case QXmlStreamReader::EndElement:
            path.removeLast();
            break;
        default:
            break;
        }
    }
    if (xml.hasError())
        lines << xml.errorString();
    return lines;
}

// clang-format off
const QStringList templateOutline = {
    "Settings",
    "<!-- Leave Blank - these are for future revisions -->",
    "<!-- <DeviceType></DeviceType> <DeviceVersion></DeviceVersion> <SoftwareVersion></SoftwareVersion> <ProtocolVersion></ProtocolVersion> -->",
    "Settings/PortSettings",
    "Settings/PortSettings/Port",
    "Settings/PortSettings/BaudRate",
    "<!-- 9600 19200 38400 57600 115200 -->",
    "Settings/PortSettings/Mode=Active",
    "<!-- Standby Active -->",
    "Settings/PortSettings/OutputFormat=NMEA DBS",
    "<!-- NMEA DBT, NMEA DBS, ODOM, Atlas -->",
    "Settings/CommonSettings",
    "Settings/CommonSettings/PingsPerSecond=10",
    "<!-- [0-20] Device Dependant -->",
    "Settings/CommonSettings/SoundVelocity=1500",
    "<!-- [1300-1750] -->",
    "Settings/CommonSettings/MaxDepth=40",
    "<!-- [0-100] -->",
    "Settings/LowFrequencySettings",
    "Settings/LowFrequencySettings/OnOff=Off",
    "Settings/LowFrequencySettings/EchoSounderMode=Auto",
    "<!-- Auto Manual  - no shallow mode for low freq -->",
    "Settings/LowFrequencySettings/TimeVariableGain=log10",
    "Settings/LowFrequencySettings/Draft=50",
    "<!-- [0-1000cm] in manual -->",
    "Settings/LowFrequencySettings/Index=0",
    "<!-- [0-1000cm] in manual -->",
    "Settings/LowFrequencySettings/Frequency=33",
    "<!-- [30 - 36] -->",
    "Settings/LowFrequencySettings/Blanking=25",
    "<!-- [20 - 3000cm] in manual -->",
    "Settings/LowFrequencySettings/PulseCycles=10",
    "<!-- [1-32] -->",
    "Settings/LowFrequencySettings/Gain=30",
    "<!-- [30-100%] -->",
    "Settings/LowFrequencySettings/DetectThreshold=25",
    "<!-- [3-75%] -->",
    "Settings/HighFrequencySettings",
    "Settings/HighFrequencySettings/OnOff=On",
    "Settings/HighFrequencySettings/EchoSounderMode=Auto",
    "<!-- Auto Manual  - no shallow mode for low freq -->",
    "Settings/HighFrequencySettings/TimeVariableGain=log10",
    "Settings/HighFrequencySettings/Draft=50",
    "<!-- [0-1000cm] in manual -->",
    "Settings/HighFrequencySettings/Index=0",
    "<!-- [0-1000cm] in manual -->",
    "Settings/HighFrequencySettings/Frequency=200",
    "<!-- [190 - 210kHz] -->",
    "Settings/HighFrequencySettings/Blanking=25",
    "<!-- [20 - 3000cm] in manual -->",
    "Settings/HighFrequencySettings/PulseCycles=10",
    "<!-- [1-32] -->",
    "Settings/HighFrequencySettings/Gain=30",
    "<!-- [30-100%] -->",
    "Settings/HighFrequencySettings/DetectThreshold=25",
    "<!-- [3-75%] -->",
};
// clang-format on

} // namespace

class SettingsTemplateTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { useTalVeroResources(); }

    void isCompiledInByteForByte();
    void endsItsLinesWithCrLf();
    void isIndentedWithTabs();
    void holdsItsElementsCommentsAndValuesInOrder();
};

void SettingsTemplateTest::isCompiledInByteForByte()
{
    QCOMPARE(templateBytes().size(), 2076);
    QVERIFY(templateBytes().startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<Settings>"));
}

void SettingsTemplateTest::endsItsLinesWithCrLf()
{
    const QByteArray document = templateBytes();
    QVERIFY(document.count('\n') > 0);
    QCOMPARE(document.count("\r\n"), document.count('\n'));
    QCOMPARE(document.count("\r\n"), document.count('\r'));
}

void SettingsTemplateTest::isIndentedWithTabs()
{
    int indented = 0;
    for (const QByteArray &line : templateBytes().split('\n')) {
        QVERIFY2(!line.startsWith(' '), line.constData());
        indented += line.startsWith('\t');
    }
    QVERIFY(indented > 0);
}

void SettingsTemplateTest::holdsItsElementsCommentsAndValuesInOrder()
{
    QStringList found = outline(templateBytes());
    QCOMPARE(found.size(), templateOutline.size());
    const int blankDevice = 2;
    found[blankDevice] = found[blankDevice].simplified();
    for (int i = 0; i < found.size(); ++i)
        QCOMPARE(found[i], templateOutline[i]);
}

QTEST_GUILESS_MAIN(SettingsTemplateTest)
#include "tst_settingstemplate.moc"
