// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "infoform.h"

#include "logcapture.h"

#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QtTest>

namespace {

struct HelpBench
{
    QLabel *title() { return window.findChild<QLabel *>(QStringLiteral("title")); }
    QLabel *text() { return window.findChild<QLabel *>(QStringLiteral("text")); }
    QPushButton *closeButton()
    {
        return window.findChild<QPushButton *>(QStringLiteral("pushButton"));
    }

    void show()
    {
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
    }

    QSize sizeOf(const QString &topic)
    {
        window.showTopic(topic);
        return window.size();
    }

    LogCapture log;
    InfoForm window;
};

struct Topic
{
    const char *title;
    const char *file;
};

constexpr Topic topics[] = {
    {"Port and Rate", "port-and-rate"},
    {"Common Settings", "common-settings"},
    {"Echo Sounder Mode", "echo-sounder-mode"},
    {"Enable/Disable", "enable-disable"},
    {"Time Variable Gain", "time-variable-gain"},
    {"HF Setup", "hf-setup"},
    {"LF Setup", "lf-setup"},
    {"LF Pulse Cycles", "lf-pulse-cycles"},
    {"HF Pulse Cycles", "hf-pulse-cycles"},
    {"Gain", "gain"},
    {"Detect Threshold", "detect-threshold"},
};

/// The topic's text as it was handed over, kept apart from the program's own copy.
QString wording(const QString &file)
{
    QFile document(QStringLiteral(TOPICS "/%1.html").arg(file));
    if (!document.open(QIODevice::ReadOnly)) {
        return QStringLiteral("no wording in %1").arg(document.fileName());
    }
    QString text = QString::fromUtf8(document.readAll());
    text.chop(1); // the line end of the file
    return text;
}

void addTopicRows()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("file");
    for (const Topic &topic : topics) {
        QTest::newRow(topic.title) << QString(topic.title) << QString(topic.file);
    }
}

const QString trace = QStringLiteral("HDHHDLKJDSH:SDHLF");

} // namespace

class TestInfoForm : public QObject
{
    Q_OBJECT

private slots:
    void beforeTheFirstTopic();
    void topicIsWordForWord_data() { addTopicRows(); }
    void topicIsWordForWord();
    void picturesOfTheTopicExist_data() { addTopicRows(); }
    void picturesOfTheTopicExist();
    void onlyPortAndRateHasNoSavePrompt();
    void setupTopicsHaveTheirOwnFrequencies();

    void topicIsTraced_data();
    void topicIsTraced();
    void unknownTitleChangesNothing_data();
    void unknownTitleChangesNothing();
    void unknownTitleFirst();

    void windowTakesTheSizeOfItsTopic_data() { addTopicRows(); }
    void windowTakesTheSizeOfItsTopic();
    void sizeIsRightBeforeTheFirstShow_data() { addTopicRows(); }
    void sizeIsRightBeforeTheFirstShow();
    void windowGrowsAndShrinks();

    void closeButtonHides();
    void topicIsRememberedWhileHidden();
};

void TestInfoForm::beforeTheFirstTopic()
{
    HelpBench bench;
    QVERIFY(bench.window.isWindow());
    QVERIFY(!bench.window.isVisible());
    QCOMPARE(bench.window.windowTitle(), QStringLiteral("Information"));
    QVERIFY2(!bench.window.windowIcon().pixmap(16).isNull(), "no window icon");
    QCOMPARE(bench.title()->text(), QStringLiteral("TextLabel"));
    QCOMPARE(bench.text()->text(), QStringLiteral("TextLabel"));
    QVERIFY(bench.text()->wordWrap());
    QCOMPARE(bench.closeButton()->text(), QStringLiteral("Close"));
}

void TestInfoForm::topicIsWordForWord()
{
    QFETCH(QString, title);
    QFETCH(QString, file);
    HelpBench bench;
    bench.window.showTopic(title);
    QCOMPARE(bench.title()->text(), title);
    QCOMPARE(bench.text()->text(), wording(file));
    QVERIFY2(!bench.window.isVisible(), "showing the window is up to the caller");
}

void TestInfoForm::picturesOfTheTopicExist()
{
    QFETCH(QString, title);
    HelpBench bench;
    bench.window.showTopic(title);
    QRegularExpressionMatchIterator pictures =
        QRegularExpression(QStringLiteral("src='([^']*)'")).globalMatch(bench.text()->text());
    QVERIFY2(pictures.hasNext(), "no icon before the heading");
    while (pictures.hasNext()) {
        const QString path = pictures.next().captured(1);
        QVERIFY2(QFile::exists(path), qPrintable(path));
    }
}

void TestInfoForm::onlyPortAndRateHasNoSavePrompt()
{
    HelpBench bench;
    for (const Topic &topic : topics) {
        bench.window.showTopic(topic.title);
        const bool hasPrompt = bench.text()->text().endsWith(
            QStringLiteral("Click the 'Save Settings To Device' button.</div>"));
        QVERIFY2(hasPrompt == (QLatin1String(topic.title) != QLatin1String("Port and Rate")),
                 topic.title);
    }
}

void TestInfoForm::setupTopicsHaveTheirOwnFrequencies()
{
    HelpBench bench;
    bench.window.showTopic(QStringLiteral("HF Setup"));
    QVERIFY(bench.text()->text().contains("at 200 kHz. Frequency range 190 - 210 kHz."));
    bench.window.showTopic(QStringLiteral("LF Setup"));
    QVERIFY(bench.text()->text().contains("at 33 kHz. Frequency range 30 - 36 kHz."));
}

void TestInfoForm::topicIsTraced_data()
{
    QTest::addColumn<QString>("title");
    QTest::newRow("known: Gain") << "Gain";
    QTest::newRow("unknown: Sonar") << "Sonar";
}

void TestInfoForm::topicIsTraced()
{
    QFETCH(QString, title);
    HelpBench bench;
    bench.log.clear();
    bench.window.showTopic(title);
    QCOMPARE(bench.log.lines().filter(trace), QStringList{trace}); // bare, and once
}

void TestInfoForm::unknownTitleChangesNothing_data()
{
    QTest::addColumn<QString>("title");
    QTest::newRow("only the case differs: gain") << "gain";
    QTest::newRow("blank at the end") << "Gain ";
    QTest::newRow("part of a title") << "Port";
    QTest::newRow("empty") << "";
}

void TestInfoForm::unknownTitleChangesNothing()
{
    QFETCH(QString, title);
    HelpBench bench;
    bench.show();
    bench.window.showTopic(QStringLiteral("Detect Threshold"));
    bench.window.resize(700, 600);
    bench.log.clear();
    bench.window.showTopic(title);
    QCOMPARE(bench.title()->text(), QStringLiteral("Detect Threshold"));
    QCOMPARE(bench.text()->text(), wording("detect-threshold"));
    QCOMPARE(bench.window.size(), QSize(700, 600));
    QCOMPARE(bench.log.lines(), QStringList{trace});
}

void TestInfoForm::unknownTitleFirst()
{
    HelpBench bench;
    const QSize size = bench.window.size();
    bench.window.showTopic(QStringLiteral("gain"));
    QCOMPARE(bench.title()->text(), QStringLiteral("TextLabel"));
    QCOMPARE(bench.text()->text(), QStringLiteral("TextLabel"));
    QCOMPARE(bench.window.size(), size);
}

void TestInfoForm::windowTakesTheSizeOfItsTopic()
{
    QFETCH(QString, title);
    HelpBench bench;
    bench.show();
    for (const QString before : {"Common Settings", "Enable/Disable"}) {
        bench.window.showTopic(before);
        bench.window.showTopic(title);
        QCOMPARE(bench.window.size(), bench.window.sizeHint());
        QVERIFY2(bench.text()->height() >= bench.text()->heightForWidth(bench.text()->width()),
                 "the end of the text is cut off");
    }
}

void TestInfoForm::sizeIsRightBeforeTheFirstShow()
{
    QFETCH(QString, title);
    HelpBench bench;
    bench.window.showTopic(title);
    const QSize before = bench.window.size();
    bench.show();
    QCOMPARE(bench.window.size(), bench.window.sizeHint());
    QCOMPARE(bench.window.size(), before);
}

void TestInfoForm::windowGrowsAndShrinks()
{
    HelpBench bench;
    bench.show();
    const QSize small = bench.sizeOf(QStringLiteral("Enable/Disable"));
    const QSize large = bench.sizeOf(QStringLiteral("Common Settings"));
    QVERIFY2(small.width() * small.height() < large.width() * large.height(),
             "a short topic fills as large a window as a long one");
    QVERIFY(small.height() < large.height());
    QCOMPARE(bench.sizeOf(QStringLiteral("Enable/Disable")), small);
    QCOMPARE(bench.sizeOf(QStringLiteral("Common Settings")), large);
}

void TestInfoForm::closeButtonHides()
{
    HelpBench bench;
    bench.show();
    bench.window.showTopic(QStringLiteral("Gain"));
    QCoreApplication::processEvents(); // the button takes its place
    QTest::mouseClick(bench.closeButton(), Qt::LeftButton);
    QVERIFY(!bench.window.isVisible());
}

void TestInfoForm::topicIsRememberedWhileHidden()
{
    HelpBench bench;
    bench.show();
    bench.window.showTopic(QStringLiteral("Gain"));
    bench.window.close();
    bench.show();
    QCOMPARE(bench.title()->text(), QStringLiteral("Gain"));
    QCOMPARE(bench.text()->text(), wording("gain"));
}

QTEST_MAIN(TestInfoForm)
#include "tst_infoform.moc"
