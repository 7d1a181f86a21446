// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "formbench.h"

#include "resources.h"

// In a file of its own, since setting the form up takes most of the time of compiling it.
FormBench::FormBench()
{
    useTalVeroResources();
    ui.setupUi(&window);
}
