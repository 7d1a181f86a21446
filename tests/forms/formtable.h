// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef FORMTABLE_H
#define FORMTABLE_H

#include <Qt>

#include <vector>

/// What a control of the main window is when the window opens, in the order in which the operator
/// meets it: top to bottom, left to right, which is also the order of the tab key.
struct Control
{
    const char *name;
    const char *kind;
    const char *text = "";
    Qt::CursorShape cursor = Qt::PointingHandCursor;
    const char *group = "";
    bool checked = false;
    bool enabled = true;
};

/// The range and the steps of a slider when the window opens.
struct SliderSetting
{
    const char *name;
    int minimum;
    int maximum;
    int singleStep;
    int pageStep;
    int position;
};

/// A text that the operator reads, and the label that carries it.
struct Caption
{
    const char *label;
    const char *text;
    /// The control that the caption names; empty for headings.
    const char *control = "";
};

const std::vector<Control> &controlTable();
const std::vector<SliderSetting> &sliderTable();
const std::vector<Caption> &captionTable();

#endif // FORMTABLE_H
