// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef CHANNEL_H
#define CHANNEL_H

#include <QString>

class QLabel;
class QLineEdit;
class QRadioButton;
class QSlider;
class QWidget;

/// One channel of the sounder as the window shows it: its controls, and where its state is kept.
/// What the high and the low channel have in common is written once against this.
struct Channel
{
    QString prefix; ///< "high" or "low": begins the keys and the names of the controls

    QWidget *upperRow = nullptr; ///< holds the three columns
    QWidget *enableColumn = nullptr;
    QWidget *modeColumn = nullptr;
    QWidget *tvgColumn = nullptr;
    QWidget *lowerPart = nullptr; ///< holds the manual settings and the inputs
    QWidget *manualGroup = nullptr;

    QRadioButton *enable = nullptr;
    QRadioButton *disable = nullptr;
    QRadioButton *shallow = nullptr;
    QRadioButton *automatic = nullptr;
    QRadioButton *manual = nullptr;
    QRadioButton *tvgOff = nullptr;
    QRadioButton *tvgLog10 = nullptr;
    QRadioButton *tvgLog20 = nullptr;

    QSlider *pulseSlider = nullptr;
    QSlider *gainSlider = nullptr;
    QSlider *detectSlider = nullptr;
    QSlider *blankingSlider = nullptr;
    QLabel *pulseValue = nullptr;
    QLabel *gainValue = nullptr;
    QLabel *detectValue = nullptr;
    QLabel *blankingValue = nullptr;

    QLabel *draftCaption = nullptr;
    QLabel *indexCaption = nullptr;
    QLabel *blankingCaption = nullptr;
    QLineEdit *draft = nullptr;
    QLineEdit *index = nullptr;
    QLineEdit *frequency = nullptr;
    QLineEdit *blanking = nullptr;

    QLabel *depth = nullptr;

    bool *modeLocked = nullptr; ///< Auto or Shallow: the manual settings do not apply
    bool *disabled = nullptr;   ///< switched off, or not fitted

    /// The setting's key for this channel: "highDraft" for "Draft".
    QString key(const char *setting) const { return prefix + QLatin1String(setting); }

    /// Shows a blanking distance in its two places: the edit, and with its unit beside the slider.
    void showBlanking(const QString &distance, const QString &unitSuffix) const;
};

/// Gathers a channel's controls from the form by their names. `radioSuffix` ends the names of the
/// enable and disable buttons ("HF", "LF").
Channel channelOnForm(const QWidget &form, const QString &prefix, const QString &radioSuffix,
                      bool *modeLocked, bool *disabled);

#endif // CHANNEL_H
