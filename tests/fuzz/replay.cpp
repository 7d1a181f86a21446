// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// Gives the files of folders to a target, one after the other, as a compiler without a fuzzer can.

#include "fuzztargets.h"

#include <QDir>
#include <QFile>

namespace {

constexpr int wrongUsage = 2;

/// The number of files replayed; negative if one cannot be read.
int replay(const FuzzTarget &target, const QDir &folder)
{
    const QStringList names = folder.entryList(QDir::Files, QDir::Name);
    for (const QString &name : names) {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly)) {
            std::fprintf(stderr, "Cannot read %s\n", qPrintable(file.fileName()));
            return -1;
        }
        // If the target ends the program, this is the last that is read.
        std::fprintf(stderr, "%s\n", qPrintable(file.fileName()));
        target.run(file.readAll());
    }
    return names.size();
}

} // namespace

int main(int argc, char **argv)
{
    const FuzzTarget *target = argc == 3 ? findFuzzTarget(argv[1]) : nullptr;
    if (target == nullptr) {
        std::fprintf(stderr, "Usage: fuzz_replay TARGET FOLDER, where TARGET is one of");
        for (const FuzzTarget &known : fuzzTargets()) {
            std::fprintf(stderr, " %s", known.name);
        }
        std::fprintf(stderr, "\n");
        return wrongUsage;
    }
    prepareFuzzing(argc, argv);
    const int replayed = replay(*target, QDir(QFile::decodeName(argv[2])));
    std::printf("%d inputs\n", replayed);
    return replayed > 0 ? 0 : 1;
}
