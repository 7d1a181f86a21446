// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef MODELBENCH_H
#define MODELBENCH_H

#include "soundermodel.h"

/// A sounder model on a table: a test speaks to it, lets time pass and looks at what came out.
struct ModelBench
{
    explicit ModelBench(const SounderOptions &options = quiet())
        : model(options)
    {}

    /// A sounder that answers only.
    static SounderOptions quiet()
    {
        SounderOptions options;
        options.soundings = false;
        return options;
    }

    /// Sends on a line that runs at this rate, by default the device's.
    void send(const QByteArray &bytes, int rate = 0)
    {
        model.receive(bytes, rate > 0 ? rate : model.lineRate(), now);
    }

    /// Lets time pass in steps of a millisecond; returns what somebody hears who listens at this
    /// rate, by default the device's at each moment.
    QByteArray listen(int milliseconds, int rate = 0)
    {
        QByteArray heard;
        for (int i = 0; i < milliseconds; ++i) {
            now += std::chrono::milliseconds(1);
            heard += model.transmit(rate > 0 ? rate : model.lineRate(), now);
        }
        return heard;
    }

    /// Sends and returns what comes back within a second.
    QByteArray ask(const QByteArray &command)
    {
        send(command);
        return listen(1000);
    }

    SounderModel model;
    std::chrono::milliseconds now{0};
};

#endif // MODELBENCH_H
