// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "soakjudge.h"

#include <algorithm>

namespace {

/// Over so many samples a value is taken: memory goes up and down with what is shown.
constexpr int window = 60;

/// The middle one of the values of this field.
template <typename Value>
Value median(const QVector<SoakSample> &samples, int from, int count, Value SoakSample::*field)
{
    QVector<Value> values;
    for (int i = std::max(0, from); i < std::min(static_cast<int>(samples.size()), from + count);
         ++i) {
        values.append(samples.at(i).*field);
    }
    if (values.isEmpty()) {
        return {};
    }
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

QString rounded(double value) { return QString::number(value, 'f', 1); }

} // namespace

int SoakJudge::firstSettled() const
{
    const auto first =
        std::find_if(samples.begin(), samples.end(),
                     [this](const SoakSample &sample) { return sample.seconds >= limits.settleS; });
    return static_cast<int>(std::distance(samples.begin(), first));
}

bool SoakJudge::canTellGrowth() const { return samples.size() - firstSettled() >= 2 * window; }

template <typename Value>
Value SoakJudge::settled(Value SoakSample::*field) const
{
    return median(samples, firstSettled(), window, field);
}

template <typename Value>
Value SoakJudge::last(Value SoakSample::*field) const
{
    return median(samples, int(samples.size()) - window, window, field);
}

template <typename Value>
Value SoakJudge::most(Value SoakSample::*field) const
{
    Value greatest = {};
    for (const SoakSample &sample : samples) {
        greatest = std::max(greatest, sample.*field);
    }
    return greatest;
}

QString SoakJudge::growth(const char *name, qint64 SoakSample::*field) const
{
    return QString("%1: %2 KiB after %3 s, %4 KiB at the end")
        .arg(name)
        .arg(settled(field))
        .arg(limits.settleS)
        .arg(last(field));
}

QStringList SoakJudge::complaints(const SoakTally::Counts &changes) const
{
    QStringList wrong;
    const auto memoryGrew = [&](const char *name, qint64 SoakSample::*field) {
        if (canTellGrowth() && last(field) - settled(field) > limits.growthKib) {
            wrong << "The memory grew. " + growth(name, field);
        }
    };
    memoryGrew("Resident", &SoakSample::residentKib);
    memoryGrew("Allocated", &SoakSample::heapKib);
    const int files = last(&SoakSample::openFiles);
    if (canTellGrowth() && files - settled(&SoakSample::openFiles) > limits.files) {
        wrong << QString("%1 files are open at the end.").arg(files);
    }
    const double absence = most(&SoakSample::absenceCpuMs);
    if (absence > limits.absenceCpuMs) {
        wrong << QString("The window's thread worked %1 ms in one go.").arg(rounded(absence));
    }
    if (changes.lost > 0) {
        wrong << QString("%1 changes had no outcome.").arg(changes.lost);
    }
    if (changes.confirmed == 0) {
        wrong << "No change was confirmed: nothing was tried.";
    }
    return wrong;
}

QStringList SoakJudge::summary(const SoakTally::Counts &changes) const
{
    QStringList lines;
    if (canTellGrowth()) {
        lines << growth("Resident", &SoakSample::residentKib)
              << growth("Allocated", &SoakSample::heapKib);
    } else {
        lines << "Too short to speak of growth.";
    }
    lines << QString("Open files at the end: %1").arg(last(&SoakSample::openFiles))
          << QString("Processor: %1 % of one core")
                 .arg(rounded(median(samples, 0, int(samples.size()), &SoakSample::cpuPercent)))
          << QString(
                 "The window's longest absence: %1 ms of its processor time, %2 ms by the clock")
                 .arg(rounded(most(&SoakSample::absenceCpuMs)),
                      rounded(most(&SoakSample::absenceMs)))
          << QString("Changes: %1 made, %2 confirmed, %3 refused, %4 timed out, %5 ended with the "
                     "link, %6 lost")
                 .arg(changes.made)
                 .arg(changes.confirmed)
                 .arg(changes.refused)
                 .arg(changes.timedOut)
                 .arg(changes.linkLost)
                 .arg(changes.lost);
    return lines;
}
