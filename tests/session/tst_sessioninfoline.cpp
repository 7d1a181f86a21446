// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "infoline.h"

#include <QtTest>

#include <memory>
#include <utility>

Q_DECLARE_METATYPE(InfoColour)
Q_DECLARE_METATYPE(Topic)

namespace {

/// Colour and text, as they were to be seen.
using Shown = std::pair<InfoColour, QString>;

constexpr char pings[] = "Setting Pings Per Second to 6";

} // namespace

/// What the info line holds and tells, and what it is about.
class SessionInfoLineTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { line.reset(); }

    void atTheStartItIsEmptyAndAboutNothing();
    void aTextLastsTenSeconds();
    void aTopicIsAboutOneThing_data();
    void aTopicIsAboutOneThing();
    void aTextIsShownInItsColour_data();
    void aTextIsShownInItsColour();
    void anOutcomeIsAppendedAndTheTopicStays_data();
    void anOutcomeIsAppendedAndTheTopicStays();
    void aNewTextEndsTheTopicOfTheOneBefore();
    void clearingEndsTextAndTopic();
    void whateverIsShownBeginsTheTimeAnew();
    void theBeginningOfALongTextIsKept_data();
    void theBeginningOfALongTextIsKept();

private:
    std::unique_ptr<InfoLine> line;
    QVector<Shown> shown;
};

void SessionInfoLineTest::init()
{
    line = std::make_unique<InfoLine>();
    shown.clear();
    connect(line.get(), &InfoLine::shown, this, [this](InfoColour colour, const QString &text) {
        shown.append({colour, text});
    });
}

void SessionInfoLineTest::atTheStartItIsEmptyAndAboutNothing()
{
    QCOMPARE(line->text(), QString());
    QCOMPARE(line->topic().settingKey(), QString());
    QVERIFY(!line->topic().isFactoryReset());
    QVERIFY2(!line->timer().isActive(), "there is nothing to clear yet");
}

void SessionInfoLineTest::aTextLastsTenSeconds()
{
    QCOMPARE(line->timer().interval(), 10000);
    QVERIFY(line->timer().isSingleShot());
    QCOMPARE(line->timer().objectName(), QString("infoTimer"));
}

void SessionInfoLineTest::aTopicIsAboutOneThing_data()
{
    QTest::addColumn<Topic>("topic");
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("isReset");

    QTest::newRow("nothing") << Topic() << QString() << false;
    QTest::newRow("a setting") << Topic::setting("Ping") << QString("Ping") << false;
    QTest::newRow("the factory reset") << Topic::factoryReset() << QString() << true;
}

void SessionInfoLineTest::aTopicIsAboutOneThing()
{
    QFETCH(Topic, topic);
    QTEST(topic.settingKey(), "key");
    QTEST(topic.isFactoryReset(), "isReset");
}

void SessionInfoLineTest::aTextIsShownInItsColour_data()
{
    QTest::addColumn<InfoColour>("colour");
    QTest::newRow("progress") << InfoColour::Progress;
    QTest::newRow("success") << InfoColour::Success;
    QTest::newRow("failure") << InfoColour::Failure;
}

void SessionInfoLineTest::aTextIsShownInItsColour()
{
    QFETCH(InfoColour, colour);
    line->show(colour, pings, Topic::setting("Ping"));
    QCOMPARE(shown, (QVector<Shown>{{colour, pings}}));
    QCOMPARE(line->text(), QString(pings));
    QCOMPARE(line->topic().settingKey(), QString("Ping"));
}

void SessionInfoLineTest::anOutcomeIsAppendedAndTheTopicStays_data()
{
    aTopicIsAboutOneThing_data();
}

void SessionInfoLineTest::anOutcomeIsAppendedAndTheTopicStays()
{
    QFETCH(Topic, topic);
    line->show(InfoColour::Progress, pings, topic);
    line->append(InfoColour::Failure, " ... Command Timed Out");
    line->append(InfoColour::Success, " ... Success");
    const QString timedOut = "Setting Pings Per Second to 6 ... Command Timed Out";
    QCOMPARE(shown, (QVector<Shown>{{InfoColour::Progress, pings},
                                    {InfoColour::Failure, timedOut},
                                    {InfoColour::Success, timedOut + " ... Success"}}));
    QCOMPARE(line->text(), timedOut + " ... Success");
    QTEST(line->topic().settingKey(), "key");
    QTEST(line->topic().isFactoryReset(), "isReset");
}

void SessionInfoLineTest::aNewTextEndsTheTopicOfTheOneBefore()
{
    line->show(InfoColour::Progress, pings, Topic::setting("Ping"));
    line->show(InfoColour::Progress, "Sending Save Command to Device");
    QCOMPARE(line->text(), QString("Sending Save Command to Device"));
    QVERIFY2(line->topic().settingKey().isEmpty(), "a refused save would be told of the pings");

    line->show(InfoColour::Progress, "Sending Factory Reset to Device", Topic::factoryReset());
    line->show(InfoColour::Progress, pings, Topic::setting("Ping"));
    QVERIFY2(!line->topic().isFactoryReset(), "accepted pings would close the link");
}

void SessionInfoLineTest::clearingEndsTextAndTopic()
{
    line->show(InfoColour::Failure, pings, Topic::setting("Ping"));
    line->clear();
    QCOMPARE(shown.last(), Shown(InfoColour::Progress, QString()));
    QCOMPARE(line->text(), QString());
    QVERIFY2(line->topic().settingKey().isEmpty(), "the topic outlives its text");

    line->append(InfoColour::Success, " ... Success");
    QCOMPARE(line->text(), QString(" ... Success"));
}

void SessionInfoLineTest::whateverIsShownBeginsTheTimeAnew()
{
    QTimer &timer = line->timer();
    line->show(InfoColour::Progress, pings);
    QVERIFY2(timer.isActive(), "show()");
    timer.stop();
    line->append(InfoColour::Success, " ... Success");
    QVERIFY2(timer.isActive(), "append()");
    timer.stop();
    line->clear();
    QVERIFY2(timer.isActive(), "clear()");
}

void SessionInfoLineTest::theBeginningOfALongTextIsKept_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("kept");
    QTest::newRow("3999 characters") << 3999 << 3999;
    QTest::newRow("4000 characters") << 4000 << 4000;
    QTest::newRow("4001 characters") << 4001 << 4000;
    QTest::newRow("100000 characters") << 100000 << 4000;
}

/// A line full of noise may answer without end.
void SessionInfoLineTest::theBeginningOfALongTextIsKept()
{
    QFETCH(int, length);
    QFETCH(int, kept);
    line->show(InfoColour::Progress, "S" + QString(length - 1, 'x'));
    line->append(InfoColour::Failure, " ... end");
    QCOMPARE(line->text(), "S" + QString(kept - 1, 'x') + " ... end");
}

QTEST_GUILESS_MAIN(SessionInfoLineTest)

#include "tst_sessioninfoline.moc"
