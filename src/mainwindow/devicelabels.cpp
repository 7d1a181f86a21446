// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "devicelabels.h"

#include "labelroom.h"
#include "ui_mainwindow.h"

namespace {

/// A label in which the sounder speaks, and the longest text that a sounder in order says there
/// (nullptr: the form gives the room).
struct DeviceLabel
{
    QLabel *Ui::MainWindow::*label;
    Qt::TextFormat format;
    void (*giveRoom)(QLabel &label, const QString &longest);
    const char *longest;
};

// clang-format off
const DeviceLabel deviceLabels[] = {
    {&Ui::MainWindow::highPulseEdit,    Qt::PlainText, LabelRoom::growUpTo, "100"},
    {&Ui::MainWindow::highGainEdit,     Qt::PlainText, LabelRoom::growUpTo, "100%"},
    {&Ui::MainWindow::highDetectEdit,   Qt::PlainText, LabelRoom::growUpTo, "100%"},
    {&Ui::MainWindow::highBlankEdit,    Qt::PlainText, LabelRoom::growUpTo, "30.00 ft"},
    {&Ui::MainWindow::lowPulseEdit,     Qt::PlainText, LabelRoom::growUpTo, "100"},
    {&Ui::MainWindow::lowGainEdit,      Qt::PlainText, LabelRoom::growUpTo, "100%"},
    {&Ui::MainWindow::lowDetectEdit,    Qt::PlainText, LabelRoom::growUpTo, "100%"},
    {&Ui::MainWindow::lowBlankEdit,     Qt::PlainText, LabelRoom::growUpTo, "30.00 ft"},
    {&Ui::MainWindow::highDepthLabel,   Qt::PlainText, LabelRoom::keep, "HF Depth: 888.88"},
    {&Ui::MainWindow::lowDepthLabel,    Qt::PlainText, LabelRoom::keep, "LF Depth: 888.88"},
    {&Ui::MainWindow::label_34,         Qt::PlainText, LabelRoom::growUpTo, "TAL-VERO Firmware Version: 88.88.88 (High Frequency Only)"},
    {&Ui::MainWindow::label_24,         Qt::PlainText, nullptr, nullptr}, // never shows more than eight characters
    {&Ui::MainWindow::infoLabel,        Qt::RichText,  LabelRoom::holdAsItIs, nullptr}, // wraps in a room of its own
    {&Ui::MainWindow::temperatureLabel, Qt::RichText,  LabelRoom::growUpTo, "<font color=Green>TAL-VERO Temperature : -273\u00B0C</font>"},
};
// clang-format on

} // namespace

void prepareDeviceLabels(const Ui::MainWindow &form)
{
    for (const DeviceLabel &row : deviceLabels) {
        QLabel &label = *(form.*row.label);
        label.setTextFormat(row.format);
        if (row.giveRoom != nullptr) {
            row.giveRoom(label, QString::fromUtf8(row.longest));
        }
    }
}

void showLowDepth(QLabel &label, const QString &text)
{
    const bool mayWrap = !text.startsWith(QLatin1String("LF"));
    if (label.wordWrap() != mayWrap) {
        label.setWordWrap(mayWrap);
    }
    label.setText(text);
}
