// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef SETTINGS_H
#define SETTINGS_H

#include "settingrecord.h"

#include <QStringList>
#include <QWidget>

struct SettingSpec;

/// The one holder of the sounder's settings. Everyone else names a setting by its key and never
/// keeps a value. Values are metric throughout and are held to the device's ranges when stored, so
/// that whatever stands here may be sent.
class Settings : public QWidget
{
    Q_OBJECT

public:
    /// Lists the serial ports that the computer has now; every setting is at its default.
    explicit Settings(QWidget *parent = nullptr);

    /// The same with these port names instead of the computer's.
    explicit Settings(const QStringList &portNames, QWidget *parent = nullptr);

    /// Gives every record its functions. Done at the end of construction.
    void initTalVeroNew();

    /// Chooses the table of a device generation. There is one generation, so the name is ignored.
    void setDeviceType(const QString &type);

    /// Stores a value, the only way to do so. Words must be among those that the setting knows, in
    /// the same letter case; numbers are metric and are held to the setting's range, and a text
    /// that is no number counts as 0. Returns the number stored, 0 for an accepted word, and -1 for
    /// a refused word or an unknown key, which leave everything as it was.
    float changeSetting(const QString &key, const QString &value);

    /// One value of a settings report whose lines read "name: first second": `line` counts from 0,
    /// `field` from 1. Empty when the report has no such place.
    QString getFieldAtLine(const char *report, int line, int field) const;

    /// The set command for the current value, not yet padded; empty for an unknown key.
    QString getCommandString(const QString &key) const;

    /// The name that the operator knows the setting by; empty for an unknown key.
    QString getPrettyString(const QString &key) const;

    /// The value as it is stored, metric; empty for an unknown key.
    QString getSettingString(const QString &key) const;

    /// The value as a number, metric; a word gives the number that stands for it in its command
    /// (a letter's code, a place in a list). -1 for an unknown key.
    float getSetting(const QString &key) const;

    /// "Select Port", then the serial ports that were present at construction.
    const QStringList &portList() const { return ports; }

    /// The rates of the device, slowest first.
    const QStringList &baudList() const { return bauds; }

    /// The output formats in the order in which the operator chooses from them, which is not the
    /// order of the device's own numbers.
    const QStringList &formatList() const { return formats; }

    /// The record of a key, to look at; nullptr for an unknown key.
    const SettingRecord *record(const QString &key) const;

    /// Which generation of the device the table describes.
    QString deviceType() const { return device; }

    /// Whether the operator sees feet. The values here are metric either way.
    bool isImperial() const { return imperial; }

public slots:
    /// Notes the unit that the operator sees; no value changes.
    void goToImperial(bool showsFeet);

private:
    float storeWord(const SettingSpec &spec, const QString &value, QString &stored);
    float storeNumber(const SettingSpec &spec, const QString &value, QString &stored);
    void readReport(const SettingSpec &spec, const char *report);
    QString commandOf(const SettingSpec &spec) const;
    float numberOf(const SettingSpec &spec) const;

    QStringList ports;
    QStringList bauds;
    QStringList formats;
    bool imperial = false;
    QString device;
    SettingTable *activeTable = nullptr;
    QString spare; ///< Not used by this device generation.
    SettingTable table;
};

#endif // SETTINGS_H
