// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef ANSWERBENCH_H
#define ANSWERBENCH_H

#include "reportbench.h"

#include <QMessageBox>
#include <QPushButton>
#include <QSerialPort>

/// The window on a bare line, for what the sounder answers to commands. A change is sent at once.
class AnswerBench : public ReportBench
{
public:
    AnswerBench() { timer("commandTimer")->setInterval(1); }

    /// The operator types a ping rate of 3; true when its command is out.
    bool setPings()
    {
        type("pingEdit", "3");
        return hears("*i03") && info() == "Setting Pings Per Second to 3";
    }

    /// The operator chooses a new rate for the device; true when its command is out.
    bool chooseNewRate(const QString &rate)
    {
        line.clearReceived();
        choose("newBaudComboBox", rate);
        return hears("*I") && info() == "Setting Baud Rate to " + rate;
    }

    /// The operator asks for a factory reset and says yes; true when its command is out.
    bool confirmReset()
    {
        QTimer answering;
        QObject::connect(&answering, &QTimer::timeout, &answering, [] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                box->button(QMessageBox::Yes)->click();
            }
        });
        answering.start(1);
        click("resetSettings");
        return hears("*R345678");
    }

    /// Whether the window shows no connection and has let go of the port: whoever has a port open
    /// keeps others from opening it.
    bool isClosed()
    {
        QSerialPort other(line.slavePath());
        return !showsConnected() && text("connectToDevice") == "Connect   " &&
               timer("portScanTimer")->isActive() && other.open(QIODevice::ReadWrite);
    }
};

#endif // ANSWERBENCH_H
