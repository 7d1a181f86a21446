// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef RESOURCES_H
#define RESOURCES_H

/// Makes the images and the template document under ":/resourcefiles/" available.
///
/// A linker leaves out the part of a static library that nobody calls, and the images with it.
/// Every library that shows images therefore calls this before it builds its form. It may be called
/// any number of times, before or after the application object is made; it cannot fail.
void useTalVeroResources();

#endif // RESOURCES_H
