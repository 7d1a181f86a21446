// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// A program without any hardening, so that scripts/check-hardening is seen to miss it.

#include <cstdio>

int main(int argc, char **argv)
{
    char name[16];
    std::sprintf(name, "%d", argc);
    return std::printf("%s %s\n", name, argv[0]) > 0 ? 0 : 1;
}
