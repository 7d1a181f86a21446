// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "resources.h"

#include <QDir>

void useTalVeroResources()
{
    Q_INIT_RESOURCE(resources);
    Q_INIT_RESOURCE(resources_2x);
    Q_INIT_RESOURCE(resources_boxes);
}
