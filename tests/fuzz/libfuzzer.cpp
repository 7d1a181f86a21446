// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// What libFuzzer drives. The variable FUZZ_TARGET names the target.

#include "fuzztargets.h"

#include <cstdint>

namespace {

const FuzzTarget *target = nullptr;

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    target = findFuzzTarget(qgetenv("FUZZ_TARGET"));
    if (target == nullptr) {
        std::fprintf(stderr, "FUZZ_TARGET names no target\n");
        std::exit(1);
    }
    prepareFuzzing(*argc, *argv);
    return 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    target->run(QByteArray(reinterpret_cast<const char *>(data), static_cast<int>(size)));
    return 0;
}
