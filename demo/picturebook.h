// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef PICTUREBOOK_H
#define PICTUREBOOK_H

#include <QDir>

/// How much of the picture book is taken.
enum class PictureChoice {
    Usual,  ///< every state in the start size; offline and connected in every size
    Dense,  ///< offline and connected in every size, graph and help
    All,    ///< every state in every size
    Manual, ///< the states that the manual shows, in the start size, by the names that it calls
            ///< them
};

/// Takes a picture of every state of the program's windows and writes them to `folder`, which must
/// exist. The names tell state, size and scale factor, "dual-1136x800-2x.png"; the manual's, which
/// its text has to name, the state alone: "marks.png". Prints each name. Returns the number of
/// pictures that could not be taken.
int takePictures(const QDir &folder, PictureChoice choice);

#endif // PICTUREBOOK_H
