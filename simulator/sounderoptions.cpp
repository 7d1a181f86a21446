// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "sounderoptions.h"

namespace {

enum class FaultKind { Probability, Time };

struct NamedFault
{
    const char *name;
    double SounderFaults::*value;
    FaultKind kind;
};

// clang-format off
constexpr NamedFault namedFaults[] = {
    {"silent",    &SounderFaults::silent,       FaultKind::Probability},
    {"late",      &SounderFaults::lateMs,       FaultKind::Time},
    {"refuse",    &SounderFaults::refuse,       FaultKind::Probability},
    {"garble",    &SounderFaults::garble,       FaultKind::Probability},
    {"split",     &SounderFaults::split,        FaultKind::Probability},
    {"burst",     &SounderFaults::burst,        FaultKind::Probability},
    {"drop-line", &SounderFaults::dropLine,     FaultKind::Probability},
    {"reboot",    &SounderFaults::rebootAfterS, FaultKind::Time},
    {"hang-up",   &SounderFaults::hangUpAfterS, FaultKind::Time},
};
// clang-format on

/// A day: a longer time is a slip of the keyboard, and milliseconds of it still fit an int.
constexpr double longestTimeMs = 24.0 * 60 * 60 * 1000;

QString problemWith(const NamedFault &fault, double value)
{
    if (fault.kind == FaultKind::Probability && !(value >= 0 && value <= 1)) {
        return QStringLiteral("the fault \"%1\" takes a probability from 0 to 1").arg(fault.name);
    }
    if (!(value >= 0 && value <= longestTimeMs)) {
        return QStringLiteral("the fault \"%1\" takes a time of 0 or more").arg(fault.name);
    }
    return {};
}

} // namespace

bool hasChannel(SounderFit fit, SounderChannel channel)
{
    const SounderFit other =
        channel == SounderChannel::High ? SounderFit::LowOnly : SounderFit::HighOnly;
    return fit != other;
}

QString SounderFaults::set(const QString &name, double value)
{
    for (const NamedFault &fault : namedFaults) {
        if (name != QLatin1String(fault.name)) {
            continue;
        }
        const QString problem = problemWith(fault, value);
        if (problem.isEmpty()) {
            this->*fault.value = value;
        }
        return problem;
    }
    return QStringLiteral("there is no fault \"%1\"; the faults are %2")
        .arg(name, names().join(QStringLiteral(", ")));
}

QStringList SounderFaults::names()
{
    QStringList result;
    for (const NamedFault &fault : namedFaults) {
        result << QLatin1String(fault.name);
    }
    return result;
}
