// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef COMMANDLINE_H
#define COMMANDLINE_H

#include "sounderoptions.h"

/// What the command line of tal-vero-sounder asks for.
struct CommandLine
{
    SounderOptions options;
    QString linkPath;       ///< a symbolic link to make to the pseudo-terminal; empty: none
    QString portName;       ///< a real serial port to serve; empty: a pseudo-terminal
    QString transcriptPath; ///< where to log the traffic; empty: nowhere
    QString problem;        ///< what is wrong with it; empty: nothing
    QString wantedText;     ///< the help or version text, if that is all that was asked for
};

/// Reads the arguments, the program's name first. Where `problem` is set, the rest means nothing.
CommandLine readCommandLine(const QStringList &arguments);

#endif // COMMANDLINE_H
