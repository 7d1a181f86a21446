// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef CONTROLBENCH_H
#define CONTROLBENCH_H

#include "reportbench.h"

#include <QRegularExpression>
#include <QTabWidget>

#include <map>

/// The window on a bare line, for which of its controls can be used. Every control belongs to one
/// group, whose members are enabled and greyed together.
class ControlBench : public ReportBench
{
public:
    /// The groups and their members' names. A channel's groups begin with "high " or "low ".
    static std::map<QString, QStringList> groups()
    {
        std::map<QString, QStringList> all{
            {"always", {"connectToDevice", "selectRateInfo", "hamburgerButton", "BootloadButton"}},
            {"connection", {"portComboBox", "baudComboBox", "imperialRadio", "metricRadio"}},
            {"common",
             {"pingDown", "pingEdit", "pingUp", "soundVelocityDown", "soundVelocityEdit",
              "soundVelocityUp", "maxDepthDown", "maxDepthEdit", "maxDepthUp",
              "commonSettingsInfo"}},
            {"output", {"formatComboBox", "resetSettings", "saveSettingsToDevice", "openGraph"}},
            {"rate", {"newBaudComboBox"}},
            {"high enable", {"enableHF", "disableHF"}},
            {"low enable", {"enableLF", "disableLF"}},
        };
        for (const QString channel : {"high", "low"}) {
            for (const auto &[group, members] : channelGroups()) {
                QStringList names = members;
                names.replaceInStrings(QRegularExpression("^"), channel);
                all[channel + " " + group] = names;
            }
        }
        return all;
    }

    /// The groups whose members can all be used. A group of which only some can be ends the test
    /// program.
    QStringList usableGroups()
    {
        QStringList usable;
        for (const auto &[group, members] : groups()) {
            QStringList enabled;
            for (const QString &member : members) {
                if (isEnabled(member)) {
                    enabled.append(member);
                }
            }
            if (enabled.size() == members.size()) {
                usable.append(group);
            } else if (!enabled.isEmpty()) {
                qFatal("Of the group \"%s\" only these can be used: %s", qPrintable(group),
                       qPrintable(enabled.join(' ')));
            }
        }
        return usable;
    }

    /// Clicks a control on the tab of either channel.
    void clickOnItsTab(const QString &name)
    {
        auto *const tabs = find<QTabWidget>("h");
        for (const char *tab : {"highFreqTab", "lowFreqTab"}) {
            if (find<QWidget>(tab)->isAncestorOf(find<QWidget>(name))) {
                tabs->setCurrentWidget(find<QWidget>(tab));
            }
        }
        click(name);
    }

private:
    static std::map<QString, QStringList> channelGroups()
    {
        return {
            {"headings", {"EnableInfo", "ModeInfo", "TVGInfo"}},
            {"mode", {"ShallowRadio", "AutoRadio", "ManualRadio"}},
            {"gain law", {"OffTvg", "Log10Tvg", "Log20Tvg"}},
            {"manual",
             {"ManualSettingsLabel", "PulseInfo", "PulseSlider", "PulseDown", "PulseEdit",
              "PulseUp", "GainInfo", "GainSlider", "GainDown", "GainEdit", "GainUp", "DetectInfo",
              "DetectSlider", "DetectDown", "DetectEdit", "DetectUp"}},
            {"inputs",
             {"InputsInfo", "DraftDown", "Draft", "DraftUp", "IndexDown", "Index", "IndexUp",
              "FreqDown", "Freq", "FreqUp", "BlankDown", "Blank", "BlankUp", "BlankingSlider",
              "BlankEdit"}},
        };
    }
};

#endif // CONTROLBENCH_H
