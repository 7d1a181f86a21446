// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "ptyopeners.h"

PtyOpeners::~PtyOpeners() = default;

void PtyOpeners::forget() { count = 0; }

void PtyOpeners::watch(const QString &) { forget(); }

bool PtyOpeners::update() { return false; }

void PtyOpeners::noteSign() { count = 1; }
