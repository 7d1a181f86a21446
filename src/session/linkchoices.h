// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef LINKCHOICES_H
#define LINKCHOICES_H

#include <QString>

#include <functional>

/// What stands in the lists from which the operator chooses how to reach the sounder, and how the
/// sounder is to speak.
struct LinkChoices
{
    /// The entry of the port list that is no port.
    static constexpr char noPort[] = "Select Port";

    QString port;       ///< as the port list names it
    QString rate;       ///< of the link: an entry of RateSearch::choices()
    QString deviceRate; ///< at which the sounder is to speak
    QString format;     ///< in which the sounder is to output its depths
};

/// Tells what stands there at this moment: all that the session ever asks of the window.
using ChoicesSource = std::function<LinkChoices()>;

#endif // LINKCHOICES_H
