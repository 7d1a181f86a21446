// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef SETTINGEDITOR_H
#define SETTINGEDITOR_H

#include "numberfield.h"

class CommandQueue;
class Settings;

/// Turns what the operator does with a control into a stored setting, a shown value and a queued
/// change. While the window fills itself it is paused: then nothing is stored or sent.
class SettingEditor
{
public:
    /// Both outlive the editor.
    SettingEditor(Settings &settings, CommandQueue &queue);

    /// Pauses the editor for as long as it lives. Pauses may be nested.
    class Pause
    {
    public:
        explicit Pause(SettingEditor &editor)
            : userEdits(editor.userEdits)
            , before(editor.userEdits)
        {
            userEdits = 0;
        }
        ~Pause() { userEdits = before; }

        Pause(const Pause &) = delete;
        Pause &operator=(const Pause &) = delete;

    private:
        int &userEdits;
        int before;
    };

    bool isPaused() const { return userEdits == 0; }

    /// A field's up button (`direction` 1) or down button (-1). Beside a slider nothing happens if
    /// the step would leave the slider's range.
    void step(const NumberField &field, int direction);

    /// Return in a field's edit: the typed number is taken as it is shown.
    void enter(const NumberField &field);

    /// The slider of a field that has no edit was moved to this position.
    void slide(const NumberField &field, int position);

    /// The blanking slider was moved.
    void slideBlanking(const NumberField &field);

    /// A word was chosen for a setting. A word that the setting does not know is only logged.
    void changeStringSetting(const QString &name, const QString &value);

    /// The same for an option of several, if it is the one that was checked.
    void chooseWord(bool checked, const QString &name, const QString &word);

private:
    struct Road;

    float changeField(const NumberField &field, float asked, const Road &road);
    void changeSliderWithClick(const NumberField &field, int delta);
    void setSliderField(const NumberField &field, int position);

    static const Road counterRoad;
    static const Road measureRoad;
    static const Road sliderRoad;
    static const Road typedBlankingRoad;
    static const Road stepBlankingRoad;
    static const Road slidBlankingRoad;

    Settings &settings;
    CommandQueue &queue;
    int userEdits = 1; ///< 0 while the window fills itself
};

#endif // SETTINGEDITOR_H
