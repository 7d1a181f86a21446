// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "settings.h"

#include "commandencoding.h"
#include "debuglog.h"
#include "numbertext.h"
#include "portlister.h"
#include "settingsreport.h"
#include "settingstable.h"
#include "valuerules.h"

#include <utility>

namespace {

constexpr float acceptedWord = 0.0F;
constexpr float refused = -1.0F;
constexpr float unknownKey = -1.0F;

} // namespace

Settings::Settings(QWidget *parent)
    : Settings(systemSerialPorts(), parent)
{}

Settings::Settings(const QStringList &portNames, QWidget *parent)
    : QWidget(parent)
    , ports(QStringList("Select Port") + portNames)
    , bauds(SettingsTable::baudRates())
    , formats(SettingsTable::chooserFormats())
    , table(SettingsTable::build())
{
    setDeviceType("TalVeroNew");
    initTalVeroNew();
}

void Settings::setDeviceType(const QString & /*type*/)
{
    device = "TalVeroNew";
    activeTable = &table;
}

void Settings::goToImperial(bool showsFeet)
{
    DEBUG_LOG << "SETTINGS TO IMPERIAL" << showsFeet;
    imperial = showsFeet;
}

const SettingRecord *Settings::record(const QString &key) const
{
    const auto found = activeTable->find(key);
    return found == activeTable->end() ? nullptr : &found->second;
}

QString Settings::getCommandString(const QString &key) const
{
    if (const SettingRecord *found = record(key)) {
        DEBUG_LOG << "Got a thing";
        return found->toCommand();
    }
    DEBUG_LOG << "ERROR: No match for field " << key;
    return {};
}

QString Settings::getPrettyString(const QString &key) const
{
    if (const SettingRecord *found = record(key)) {
        return found->prettyName;
    }
    DEBUG_LOG << "NO PRETTY STRING FOR " << key;
    return {};
}

QString Settings::getSettingString(const QString &key) const
{
    if (const SettingRecord *found = record(key)) {
        return found->value;
    }
    DEBUG_LOG << "ERROR Don't have setting for " << key;
    return {};
}

float Settings::getSetting(const QString &key) const
{
    if (const SettingRecord *found = record(key)) {
        DEBUG_LOG << " value is " << found->value << " Num is " << found->toNumber();
        return found->toNumber();
    }
    DEBUG_LOG << "ERROR: Don't have setting " << key;
    return unknownKey;
}

QString Settings::getFieldAtLine(const char *report, int line, int field) const
{
    if (!SettingsReport::isWithinBounds(line, field)) {
        DEBUG_LOG << "TRIED TO ACCESS LINE OUT OF BOUNDS";
        return {};
    }
    return SettingsReport::fieldAt(report, line, field);
}

float Settings::changeSetting(const QString &key, const QString &value)
{
    const auto found = activeTable->find(key);
    if (found == activeTable->end()) {
        DEBUG_LOG << "Unknown command" << key;
        return unknownKey;
    }
    DEBUG_LOG << "Changing " << key << " to " << value;
    if (isKnownWord(key, value)) {
        found->second.value = value;
        return acceptedWord;
    }
    return storeNumber(key, value, found->second.value);
}

bool Settings::isKnownWord(const QString &key, const QString &value) const
{
    const std::pair<const char *, const QStringList &> lists[] = {
        {"port", ports}, {"baud", bauds}, {"format", formats}};
    for (const auto &[word, list] : lists) {
        if (key.contains(word) && list.contains(value)) {
            return true;
        }
    }
    if (key.contains("SounderMode")) {
        DEBUG_LOG << "!!!!!!changing " << key << " to " << value;
    }
    const bool isKnown = ValueRules::wordsFor(key).contains(value);
    if (!isKnown && key.contains("TVG")) {
        DEBUG_LOG << " Doesn't contain value";
    }
    return isKnown;
}

float Settings::storeNumber(const QString &key, const QString &value, QString &stored)
{
    const auto held = ValueRules::numberFor(key, value);
    if (!held) {
        return refused;
    }
    if (ValueRules::isBlanking(key)) {
        DEBUG_LOG << "value is" << held->number;
    }
    stored = held->text;
    return held->number;
}

void Settings::initTalVeroNew()
{
    const auto unchanged = [](const QString &field) { return field; };
    for (const auto &entry : table) {
        installCommand(entry.first, CommandEncoding::whole);
        installReader(entry.first, unchanged);
        installNumber(entry.first, NumberText::toFloat);
    }
    installOwnCommands();
    installOwnReaders();
    installOwnNumbers();
}

void Settings::installCommand(const QString &key, qint32 (*encode)(float))
{
    table[key].toCommand = [this, key, encode]() {
        return CommandEncoding::fill(record(key)->commandFormat, encode(getSetting(key)));
    };
}

void Settings::installReader(const QString &key, const FieldMeaning &meaning)
{
    table[key].parseFromReport = [this, key, meaning](const char *report) {
        changeSetting(key, meaning(reportedField(key, report)));
    };
}

void Settings::installNumber(const QString &key, float (*number)(const QString &value))
{
    table[key].toNumber = [this, key, number]() { return number(record(key)->value); };
}

void Settings::installOwnCommands()
{
    using namespace CommandEncoding;
    installCommand("Depth", thousandths);
    table["baud"].toCommand = [this]() { return baudCommand(); };
    table["mode"].toCommand = [this]() { return getSetting("mode") > 0.0F ? "*b1" : "*h1"; };
    installCommand("Velocity", velocity);
    for (const char *key : {"highGain", "lowGain"}) {
        installCommand(key, gain);
    }
    for (const char *key :
         {"highBlank", "highDraft", "highIndex", "lowBlank", "lowDraft", "lowIndex"}) {
        installCommand(key, thousandths);
    }
}

void Settings::installOwnReaders()
{
    const auto withVelocity = [this](QString (*meaning)(const QString &field, float velocity)) {
        return [this, meaning](const QString &field) {
            return meaning(field, getSetting("Velocity"));
        };
    };
    installReader("highSounderMode", SettingsReport::sounderMode);
    installReader("lowSounderMode", SettingsReport::sounderMode);
    installReader("highBlank", withVelocity(SettingsReport::blanking));
    installReader("lowBlank", withVelocity(SettingsReport::blanking));
    installReader("Depth", withVelocity(SettingsReport::maximumDepth));
    installReader("highTVG", SettingsReport::tvg);
    installReader("lowTVG", SettingsReport::tvg);
    table["mode"].parseFromReport = [this](const char *) { changeSetting("mode", "Active"); };
    table["format"].parseFromReport = [this](const char *report) {
        readFormat(reportedField("format", report));
    };
}

void Settings::installOwnNumbers()
{
    installNumber("mode", CommandEncoding::modeNumber);
    installNumber("highTVG", CommandEncoding::tvgLetter);
    installNumber("lowTVG", CommandEncoding::tvgLetter);
    installNumber("format", CommandEncoding::formatNumber);
    table["baud"].toNumber = [this]() {
        return CommandEncoding::baudCode(record("baud")->value, bauds);
    };
    table["highSounderMode"].toNumber = [this]() {
        return sounderModeNumber("highSounderMode", "am in highsoundermode toint mode is");
    };
    table["lowSounderMode"].toNumber = [this]() {
        return sounderModeNumber("lowSounderMode", "am in lowsoundermode toint mode is");
    };
}

QString Settings::baudCommand() const
{
    const auto code = [this]() { return CommandEncoding::whole(getSetting("baud")); };
    const QByteArray format = record("baud")->commandFormat.toLatin1();
    return QString::asprintf(format.constData(), code(), code(), code());
}

float Settings::sounderModeNumber(const QString &key, const char *message) const
{
    const QString &mode = record(key)->value;
    DEBUG_LOG << message << mode;
    return CommandEncoding::sounderModeLetter(mode);
}

QString Settings::reportedField(const QString &key, const char *report) const
{
    const SettingRecord *place = record(key);
    return getFieldAtLine(report, place->reportLine, place->reportField);
}

void Settings::readFormat(const QString &field)
{
    const int number = NumberText::toInt(field);
    DEBUG_LOG << "Format is " << number;
    if (number < 1 || number > formats.size()) {
        DEBUG_LOG << "format out of range!!!";
        return;
    }
    // The report counts the formats in the chooser's order, the set command in the device's own.
    changeSetting("format", formats.at(number - 1));
}
