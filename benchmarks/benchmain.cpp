// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "benchmain.h"

#include <QStringList>
#include <QTextStream>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <vector>

namespace {

class OnlyErrors : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &) override { return true; }

    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            if (run.error_occurred) {
                failures = true;
                QTextStream(stderr) << QString::fromStdString(run.benchmark_name()) << ": "
                                    << QString::fromStdString(run.error_message) << '\n';
            }
        }
    }

    bool failures = false;
};

} // namespace

ProgramWords::ProgramWords(int argc, char **argv)
{
    for (int i = 0; i < argc; ++i) {
        words.append(QString::fromLocal8Bit(argv[i]));
    }
}

QString ProgramWords::take(const QString &option)
{
    for (int i = 1; i < words.size(); ++i) {
        if (words.at(i).startsWith(option + '=')) {
            return words.takeAt(i).mid(option.size() + 1);
        }
        if (words.at(i) == option && i + 1 < words.size()) {
            words.removeAt(i);
            return words.takeAt(i);
        }
    }
    return {};
}

int ProgramWords::runBenchmarks(const QStringList &defaults) const
{
    const QStringList all = words.mid(0, 1) + defaults + words.mid(1);
    std::vector<QByteArray> texts(static_cast<std::size_t>(all.size()));
    std::transform(all.begin(), all.end(), texts.begin(),
                   [](const QString &word) { return word.toLocal8Bit(); });
    std::vector<char *> pointers(texts.size() + 1, nullptr);
    std::transform(texts.begin(), texts.end(), pointers.begin(),
                   [](QByteArray &text) { return text.data(); });
    int count = static_cast<int>(texts.size());
    benchmark::Initialize(&count, pointers.data());
    if (benchmark::ReportUnrecognizedArguments(count, pointers.data())) {
        return 2;
    }
    OnlyErrors reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return reporter.failures ? 1 : 0;
}
