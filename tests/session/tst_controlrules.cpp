// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "controlrules.h"

#include <QtTest>

using namespace ControlRules;

Q_DECLARE_METATYPE(SessionState)
Q_DECLARE_METATYPE(ControlRules::ChannelState)

namespace {

/// A channel in which everything can be used while the device is connected.
constexpr ChannelState manual;

constexpr ChannelState automatic{true, true, false, false, true};
constexpr ChannelState missing{false, false, false, false, false};
constexpr ChannelState switchedOff{true, false, false, false, false};
constexpr ChannelState resting{true, true, true, false, false};
constexpr ChannelState held{true, true, false, true, false};

/// The groups as words, so that a failing row can be read.
QString words(CommonGroups groups)
{
    QStringList names;
    for (const auto &[group, name] : {std::pair{CommonGroup::Connection, "connection"},
                                      {CommonGroup::Device, "device"},
                                      {CommonGroup::OutputRate, "rate"}}) {
        if (groups.testFlag(group)) {
            names << name;
        }
    }
    return names.join(' ');
}

QString words(ChannelGroups groups)
{
    QStringList names;
    for (const auto &[group, name] : {std::pair{ChannelGroup::Enable, "enable"},
                                      {ChannelGroup::Mode, "mode"},
                                      {ChannelGroup::Tvg, "tvg"},
                                      {ChannelGroup::Inputs, "inputs"},
                                      {ChannelGroup::Manual, "manual"}}) {
        if (groups.testFlag(group)) {
            names << name;
        }
    }
    return names.join(' ');
}

/// One of the 32 states that a channel can have.
ChannelState channelStateOf(unsigned number)
{
    const auto has = [number](unsigned bit) { return (number >> bit & 1U) != 0; };
    return {has(0), has(1), has(2), has(3), has(4)};
}

constexpr unsigned channelStates = 32;

/// What a channel that can be used as a whole offers.
constexpr char everything[] = "enable mode tvg inputs manual";

} // namespace

/// What the operator can use when.
class ControlRulesTest : public QObject
{
    Q_OBJECT

private slots:
    void theLinkDecidesWhatCanBeUsedAtAll_data();
    void theLinkDecidesWhatCanBeUsedAtAll();
    void aConnectedChannelOffers_data();
    void aConnectedChannelOffers();
    void aChannelRestsForManyReasons_data();
    void aChannelRestsForManyReasons();
    void bothChannelsHaveTheSameRule();
    void noChannelDependsOnTheOther();
    void withoutAConnectionNoChannelOffersAnything();
    void uponIdentificationAChannelOffersAllOrNothing_data();
    void uponIdentificationAChannelOffersAllOrNothing();
    void uponIdentificationOnlyTheFitCounts();
};

void ControlRulesTest::theLinkDecidesWhatCanBeUsedAtAll_data()
{
    QTest::addColumn<SessionState>("link");
    QTest::addColumn<bool>("formatFixesOptions");
    QTest::addColumn<QString>("common");

    for (const bool isFixed : {false, true}) {
        const char *format = isFixed ? "format that fixes options" : "free format";
        QTest::addRow("offline, %s", format) << SessionState::Offline << isFixed << "connection";
        QTest::addRow("connecting, %s", format)
            << SessionState::Connecting << isFixed << "connection";
        QTest::addRow("searching, %s", format)
            << SessionState::Searching << isFixed << "connection";
    }
    QTest::newRow("connected, free format") << SessionState::Connected << false << "device rate";
    QTest::newRow("connected, format that fixes options")
        << SessionState::Connected << true << "device";
}

void ControlRulesTest::theLinkDecidesWhatCanBeUsedAtAll()
{
    QFETCH(SessionState, link);
    QFETCH(bool, formatFixesOptions);
    const State state{link, manual, missing, formatFixesOptions};
    QTEST(words(usable(state).common), "common");
    QTEST(words(usableUponIdentification(state).common), "common");
}

void ControlRulesTest::aConnectedChannelOffers_data()
{
    QTest::addColumn<ChannelState>("channel");
    QTest::addColumn<QString>("free");  // what it offers in most output formats
    QTest::addColumn<QString>("fixed"); // in a format that fixes rate, modes and gain law

    const auto row = [](const char *name, const ChannelState &channel, const char *free,
                        const char *fixed) {
        QTest::newRow(name) << channel << QString(free) << QString(fixed);
    };
    ChannelState offAndAutomatic = switchedOff;
    offAndAutomatic.automatic = true;
    ChannelState restingAndHeld = resting;
    restingAndHeld.switchHeld = true;
    ChannelState restingAndOff = resting;
    restingAndOff.switchedOn = false;
    ChannelState heldAndAutomatic = held;
    heldAndAutomatic.automatic = true;
    row("manual mode", manual, everything, "enable inputs manual");
    row("an automatic mode", automatic, "enable mode tvg inputs", "enable inputs");
    row("switched off", switchedOff, "enable", "enable");
    row("switched off, automatic", offAndAutomatic, "enable", "enable");
    row("resting", resting, "enable", "enable");
    row("resting, switch held", restingAndHeld, "", "");
    row("resting, switched off", restingAndOff, "enable", "enable");
    row("switch held", held, "mode tvg inputs manual", "inputs manual");
    row("switch held, automatic", heldAndAutomatic, "mode tvg inputs", "inputs");
    row("missing", missing, "", "");
}

void ControlRulesTest::aConnectedChannelOffers()
{
    QFETCH(ChannelState, channel);
    QTEST(words(usable({SessionState::Connected, channel, manual, false}).high), "free");
    QTEST(words(usable({SessionState::Connected, channel, manual, true}).high), "fixed");
}

void ControlRulesTest::aChannelRestsForManyReasons_data()
{
    QTest::addColumn<ChannelState>("channel");
    QTest::addColumn<bool>("isOff");
    QTest::newRow("manual mode") << manual << false;
    QTest::newRow("an automatic mode") << automatic << false;
    QTest::newRow("switch held") << held << false;
    QTest::newRow("missing") << missing << true;
    QTest::newRow("switched off") << switchedOff << true;
    QTest::newRow("resting") << resting << true;
}

void ControlRulesTest::aChannelRestsForManyReasons()
{
    QFETCH(ChannelState, channel);
    QTEST(channel.isOff(), "isOff");
}

void ControlRulesTest::bothChannelsHaveTheSameRule()
{
    for (unsigned number = 0; number < channelStates; ++number) {
        const ChannelState channel = channelStateOf(number);
        for (const bool isFixed : {false, true}) {
            const State state{SessionState::Connected, channel, channel, isFixed};
            QCOMPARE(words(usable(state).low), words(usable(state).high));
            const Usable fresh = usableUponIdentification(state);
            QCOMPARE(words(fresh.low), words(fresh.high));
        }
    }
}

void ControlRulesTest::noChannelDependsOnTheOther()
{
    for (unsigned number = 0; number < channelStates; ++number) {
        const ChannelState other = channelStateOf(number);
        QCOMPARE(words(usable({SessionState::Connected, manual, other, false}).high),
                 QString(everything));
        QCOMPARE(words(usable({SessionState::Connected, other, manual, false}).low),
                 QString(everything));
        QCOMPARE(words(usable({SessionState::Connected, manual, other, false}).common),
                 QString("device rate"));
    }
}

void ControlRulesTest::withoutAConnectionNoChannelOffersAnything()
{
    for (const SessionState link :
         {SessionState::Offline, SessionState::Connecting, SessionState::Searching}) {
        for (unsigned number = 0; number < channelStates; ++number) {
            const ChannelState channel = channelStateOf(number);
            const Usable found = usable({link, channel, channel, false});
            QCOMPARE(words(found.high), QString());
            QCOMPARE(words(found.low), QString());
        }
    }
}

void ControlRulesTest::uponIdentificationAChannelOffersAllOrNothing_data()
{
    QTest::addColumn<ChannelState>("high");
    QTest::addColumn<ChannelState>("low");
    QTest::addColumn<QString>("highOffers");
    QTest::addColumn<QString>("lowOffers");
    QTest::newRow("both channels") << manual << manual << everything << everything;
    QTest::newRow("high channel only") << manual << missing << everything << QString();
    QTest::newRow("low channel only") << missing << manual << QString() << everything;
}

void ControlRulesTest::uponIdentificationAChannelOffersAllOrNothing()
{
    QFETCH(ChannelState, high);
    QFETCH(ChannelState, low);
    const Usable found = usableUponIdentification({SessionState::Connected, high, low, false});
    QTEST(words(found.high), "highOffers");
    QTEST(words(found.low), "lowOffers");
}

/// Neither modes nor format are known before the unit's settings have come.
void ControlRulesTest::uponIdentificationOnlyTheFitCounts()
{
    for (unsigned number = 0; number < channelStates; ++number) {
        const ChannelState channel = channelStateOf(number);
        const QString offered = channel.fitted ? everything : "";
        for (const bool isFixed : {false, true}) {
            const State state{SessionState::Connected, channel, manual, isFixed};
            QCOMPARE(words(usableUponIdentification(state).high), offered);
        }
    }
}

QTEST_APPLESS_MAIN(ControlRulesTest)

#include "tst_controlrules.moc"
