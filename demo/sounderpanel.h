// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef SOUNDERPANEL_H
#define SOUNDERPANEL_H

#include <QWidget>

class PtySounder;
class QGroupBox;
class QLabel;
class QPushButton;

/// The port that a computer lists of this sounder: none while its cable is out.
QStringList portsOf(const PtySounder &sounder);

/// The controls of a simulated sounder, for whoever learns or teaches what the program says when
/// something goes wrong: pull the cable, fall silent, refuse, be noisy, be another unit. It stands
/// beside the program's window and does not keep the program running once that is closed.
class SounderPanel : public QWidget
{
    Q_OBJECT

public:
    /// The sounder outlives the panel.
    explicit SounderPanel(PtySounder &itsSounder, QWidget *parent = nullptr);

private:
    QGroupBox *makePortBox();
    QGroupBox *makeCableBox();
    QGroupBox *makeFaultBox();
    QGroupBox *makeChannelBox();

    void pullOrPlugIn();
    void showCable();

    PtySounder &sounder;
    QLabel *port = nullptr;
    QLabel *advice = nullptr;
    QPushButton *cable = nullptr;
};

#endif // SOUNDERPANEL_H
