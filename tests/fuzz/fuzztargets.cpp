// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "fuzztargets.h"

#include <QApplication>

#include <algorithm>

namespace {

void fuzzCanary(const QByteArray &input) { FUZZ_REQUIRE(input != "fail"); }

} // namespace

const std::vector<FuzzTarget> &fuzzTargets()
{
    static const std::vector<FuzzTarget> targets = {
        {"receivebuffer", fuzzReceiveBuffer},   {"lines", fuzzLines},
        {"depthsentence", fuzzDepthSentence},   {"settingsreply", fuzzSettingsReply},
        {"settingsreport", fuzzSettingsReport}, {"commands", fuzzCommands},
        {"commandreader", fuzzCommandReader},   {"canary", fuzzCanary},
    };
    return targets;
}

const FuzzTarget *findFuzzTarget(const QByteArray &name)
{
    const auto &targets = fuzzTargets();
    const auto found = std::find_if(targets.begin(), targets.end(),
                                    [&](const FuzzTarget &target) { return name == target.name; });
    return found == targets.end() ? nullptr : &*found;
}

void prepareFuzzing(int &argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "*.debug=false\n*.warning=false");
    static const QApplication application(argc, argv);
}
