// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef CHANNELPANE_H
#define CHANNELPANE_H

#include "controlrules.h"
#include "numberfield.h"
#include "protocol.h"

#include <QList>
#include <QString>

#include <vector>

class ControlTips;
class QLabel;
class QRadioButton;
class QWidget;

/// One channel of the sounder on the form: its controls and the state that decides what can be used
/// of it. What the high and the low channel have in common is written once against this.
class ChannelPane
{
    const QWidget &form;
    QString prefix;

public:
    /// Gathers the channel's controls from the form. `prefix` ("high", "low") begins their names,
    /// `radioSuffix` ("HF", "LF") ends those of the enable and disable buttons. A control that is
    /// not there ends the program with its name.
    ChannelPane(const QWidget &form, const QString &prefix, const QString &radioSuffix);

    /// The setting's key for this channel: "highDraft" for "Draft".
    QString key(const char *setting) const { return prefix + QLatin1String(setting); }

    /// Stands for the channel's being switched on or off, which is no setting: "highSwitch".
    QString switchKey() const { return key("Switch"); }

    /// Lets exactly these groups be used. Of a channel that the unit lacks nothing can be.
    void allow(ControlRules::ChannelGroups groups) const;

    /// Lets what is locked tell why.
    void explain(const ControlRules::ChannelLocks &locks, ControlTips &tips) const;

    /// All its numbers.
    std::vector<const NumberField *> fields() const;

    /// Names the unit in the captions and shows these starting texts.
    struct StartingTexts
    {
        const char *unit;
        const char *draft;
        const char *index;
        const char *blanking;
        const char *blankingValue;
    };
    void showStartingTexts(const StartingTexts &texts) const;

    /// Fills the control that the piece of a settings reply speaks of, in feet if `imperial`. The
    /// sounder mode and letters that no control has change nothing. Whether it was shown.
    bool showReply(const Protocol::ReplyPiece &piece, bool imperial) const;

    /// Shows whether the unit pings on this channel: "1" or "0"; anything else changes nothing. "1"
    /// leaves the state alone: the banner has cleared it if the unit carries the channel. Whether
    /// the value was one of the two.
    bool showSwitch(const QString &value);

    /// The controls that show this setting's value, all options of a word; none if the setting is
    /// not this channel's.
    QList<QWidget *> controlsOf(const SettingSpec &setting) const;

    ControlRules::ChannelState state;

    QRadioButton *enable;
    QRadioButton *disable;
    QRadioButton *shallow;
    QRadioButton *automatic;
    QRadioButton *manual;
    QRadioButton *tvgOff;
    QRadioButton *tvgLog10;
    QRadioButton *tvgLog20;
    QLabel *depth;

    NumberField pulse;
    NumberField gain;
    NumberField detect;
    NumberField draft;
    NumberField index;
    NumberField frequency;
    NumberField blanking;

private:
    struct FieldRow;

    template <typename Widget>
    Widget *find(const char *name) const;

    bool showTvg(const QString &value) const;

    static const FieldRow fieldRows[];

    QWidget *upperRow; ///< holds the three columns
    QWidget *enableColumn;
    QWidget *modeColumn;
    QWidget *tvgColumn;
    QWidget *lowerPart; ///< holds the manual settings and the inputs
    QWidget *manualGroup;
    QLabel *draftCaption;
    QLabel *indexCaption;
    QLabel *blankingCaption;
};

/// Lets all that stands below this widget be used, or nothing of it; the widget itself stays as it
/// is.
void setChildrenDisabled(const QWidget *widget, bool disabled);

#endif // CHANNELPANE_H
