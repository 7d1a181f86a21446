// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "settings.h"

#include "debuglog.h"
#include "numbertext.h"
#include "outputformat.h"
#include "portlister.h"
#include "settingspec.h"
#include "settingsreport.h"
#include "valuerules.h"

namespace {

constexpr float acceptedWord = 0.0F;
constexpr float refused = -1.0F;
constexpr float unknownKey = -1.0F;

/// Every setting at its default, the functions of the records still empty.
SettingTable defaultTable()
{
    SettingTable table;
    table.reserve(SettingSpecs::all().size());
    for (const SettingSpec &spec : SettingSpecs::all()) {
        SettingRecord &record = table[spec.key];
        record.prettyName = spec.prettyName;
        record.commandFormat = QString::fromLatin1(spec.commandFormat);
        record.reportLine = spec.reportLine;
        record.reportField = spec.reportField;
        record.value = spec.defaultValue;
    }
    return table;
}

} // namespace

Settings::Settings(QWidget *parent)
    : Settings(systemSerialPorts(), parent)
{}

Settings::Settings(const QStringList &portNames, QWidget *parent)
    : QWidget(parent)
    , ports(QStringList("Select Port") + portNames)
    , bauds(SettingSpecs::find("baud")->words)
    , formats(OutputFormats::names())
    , table(defaultTable())
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
    const SettingSpec *spec = SettingSpecs::find(key);
    if (!spec) {
        DEBUG_LOG << "Unknown command" << key;
        return unknownKey;
    }
    DEBUG_LOG << "Changing " << key << " to " << value;
    const auto store =
        spec->kind == ValueKind::Word ? &Settings::storeWord : &Settings::storeNumber;
    return (this->*store)(*spec, value, activeTable->at(key).value);
}

float Settings::storeWord(const SettingSpec &spec, const QString &value, QString &stored)
{
    if (spec.log.change) {
        DEBUG_LOG << spec.log.change << spec.key << " to " << value;
    }
    if (spec.words.contains(value)) {
        stored = value;
        return acceptedWord;
    }
    if (spec.log.refusal) {
        DEBUG_LOG << spec.log.refusal;
    }
    return refused;
}

float Settings::storeNumber(const SettingSpec &spec, const QString &value, QString &stored)
{
    const ValueRules::StoredNumber held = ValueRules::held(spec, value);
    if (spec.log.stored) {
        DEBUG_LOG << spec.log.stored << held.number;
    }
    stored = held.text;
    return held.number;
}

void Settings::initTalVeroNew()
{
    for (const SettingSpec &spec : SettingSpecs::all()) {
        SettingRecord &entry = table[spec.key];
        entry.parseFromReport = [this, &spec](const char *report) { readReport(spec, report); };
        entry.toCommand = [this, &spec]() { return commandOf(spec); };
        entry.toNumber = [this, &spec]() { return numberOf(spec); };
    }
}

void Settings::readReport(const SettingSpec &spec, const char *report)
{
    const QString field = getFieldAtLine(report, spec.reportLine, spec.reportField);
    if (spec.log.report) {
        DEBUG_LOG << spec.log.report << NumberText::toInt(field);
    }
    const auto value = spec.fromReport(field, [this]() { return getSetting("Velocity"); });
    if (value) {
        changeSetting(spec.key, *value);
    } else if (spec.log.reportRefusal) {
        DEBUG_LOG << spec.log.reportRefusal;
    }
}

QString Settings::commandOf(const SettingSpec &spec) const
{
    return spec.toCommand(spec.commandFormat, [this, &spec]() { return getSetting(spec.key); });
}

float Settings::numberOf(const SettingSpec &spec) const
{
    const QString &value = record(spec.key)->value;
    if (spec.log.number) {
        DEBUG_LOG << qPrintable(QString(spec.log.number).arg(spec.key.toLower())) << value;
    }
    return spec.toNumber(value);
}
