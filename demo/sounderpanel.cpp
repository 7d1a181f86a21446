// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "sounderpanel.h"

#include "ptysounder.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

struct FaultRow
{
    const char *fault; ///< as SounderFaults calls it, and the check box's object name
    double strength;   ///< while it is checked
    const char *caption;
    const char *toolTip; ///< what the operator will see
};

// clang-format off
constexpr FaultRow faultRows[] = {
    {"silent", 1, "Falls silent",
     "It obeys, but says nothing. The depths stop. A change ends in \"Command Timed Out\" after two "
     "seconds; without one, \"Lost Connection To Device\" comes within a quarter of a minute."},
    {"refuse", 1, "Refuses every change",
     "Each change is answered by an error: \"Received Error - Command Not Applied\", and the control "
     "gets a red frame. The settings stay as they were."},
    {"garble", 0.3, "Noise on the line",
     "Three lines in ten arrive spoilt. A depth is missing or 0.00 for a moment, a change whose "
     "answer is spoilt ends in \"Command Timed Out\", and the link may be lost. Then connect again."},
};

struct ChannelRow
{
    const char *name; ///< object name
    SounderFit fit;
    const char *caption;
    const char *toolTip;
};

constexpr ChannelRow channelRows[] = {
    {"fitDual", SounderFit::Dual,     "High and low frequency",
     "Another unit is put in, with both channels. It takes two seconds to start, with the settings "
     "that were stored. Disconnect and connect: nothing of the channels is grey."},
    {"fitHigh", SounderFit::HighOnly, "High frequency alone",
     "Another unit is put in, which has no low channel. It takes two seconds to start, with the "
     "settings that were stored. Disconnect and connect: what belongs to the low channel is grey."},
    {"fitLow",  SounderFit::LowOnly,  "Low frequency alone",
     "Another unit is put in, which has no high channel. It takes two seconds to start, with the "
     "settings that were stored. Disconnect and connect: what belongs to the high channel is grey."},
};
// clang-format on

/// What the panel says of the cable.
struct CableRow
{
    const char *caption;
    const char *toolTip;
    const char *advice;
};

constexpr CableRow cableIn = {
    "Pull the cable",
    "A link is lost at once: \"Lost Connection To Device\". The port leaves the list.",
    "Choose this port, rate Auto, press Connect."};
constexpr CableRow cableOut = {
    "Plug the cable in",
    "The port comes back into the list within a second. Choose it, rate Auto, press Connect: the "
    "sounder has all its settings still.",
    "Plug it in; the port comes back."};

/// Markup lets a tooltip wrap, which it does not as plain text.
QString wrapped(const char *text)
{
    return QStringLiteral("<p>%1</p>").arg(QString::fromUtf8(text).toHtmlEscaped());
}

template <typename Row>
void describe(QWidget &control, const char *name, const Row &row)
{
    control.setObjectName(QLatin1String(name));
    control.setToolTip(wrapped(row.toolTip));
    control.setAccessibleDescription(QString::fromUtf8(row.toolTip));
}

/// A group box whose contents stand below each other.
QGroupBox *makeBox(const char *title)
{
    auto *const box = new QGroupBox(QString::fromUtf8(title));
    new QVBoxLayout(box);
    return box;
}

} // namespace

QStringList portsOf(const PtySounder &sounder)
{
    return sounder.isOpen() ? QStringList(sounder.portPath()) : QStringList();
}

SounderPanel::SounderPanel(PtySounder &itsSounder, QWidget *parent)
    : QWidget(parent, Qt::Window)
    , sounder(itsSounder)
{
    setWindowTitle(QStringLiteral("Simulated Sounder"));
    setAttribute(Qt::WA_QuitOnClose, false);
    setAttribute(Qt::WA_AlwaysShowToolTips); // the keyboard stays with the program's window
    auto *const column = new QVBoxLayout(this);
    column->setSizeConstraint(QLayout::SetFixedSize);
    for (QWidget *const part : std::initializer_list<QWidget *>{makePortBox(), makeCableBox(),
                                                                makeFaultBox(), makeChannelBox()}) {
        column->addWidget(part);
    }
    column->addWidget(
        new QLabel(QStringLiteral("Point at a control: it tells what will be seen.")));
    connect(&sounder, &SounderLine::hungUp, this, &SounderPanel::showCable);
    showCable();
}

QGroupBox *SounderPanel::makePortBox()
{
    QGroupBox *const box = makeBox("Port");
    port = new QLabel;
    port->setObjectName(QStringLiteral("port"));
    port->setAccessibleName(QStringLiteral("Port of the simulated sounder"));
    port->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QFont font = port->font();
    font.setBold(true);
    port->setFont(font);
    box->layout()->addWidget(port);
    advice = new QLabel;
    advice->setObjectName(QStringLiteral("advice"));
    box->layout()->addWidget(advice);
    return box;
}

QGroupBox *SounderPanel::makeCableBox()
{
    QGroupBox *const box = makeBox("Cable");
    cable = new QPushButton;
    cable->setObjectName(QStringLiteral("cable"));
    connect(cable, &QPushButton::clicked, this, &SounderPanel::pullOrPlugIn);
    box->layout()->addWidget(cable);
    return box;
}

QGroupBox *SounderPanel::makeFaultBox()
{
    QGroupBox *const box = makeBox("Faults");
    for (const FaultRow &row : faultRows) {
        auto *const fault = new QCheckBox(QLatin1String(row.caption));
        describe(*fault, row.fault, row);
        connect(fault, &QCheckBox::toggled, this, [this, &row](bool on) {
            sounder.model().setFault(QLatin1String(row.fault), on ? row.strength : 0);
        });
        box->layout()->addWidget(fault);
    }
    return box;
}

QGroupBox *SounderPanel::makeChannelBox()
{
    QGroupBox *const box = makeBox("Channels");
    auto *const choice = new QButtonGroup(this);
    for (const ChannelRow &row : channelRows) {
        auto *const channels = new QRadioButton(QLatin1String(row.caption));
        describe(*channels, row.name, row);
        channels->setChecked(row.fit == sounder.model().fit());
        choice->addButton(channels);
        connect(channels, &QRadioButton::toggled, this, [this, &row](bool on) {
            if (on) {
                sounder.model().setFit(row.fit);
            }
        });
        box->layout()->addWidget(channels);
    }
    return box;
}

void SounderPanel::pullOrPlugIn()
{
    if (sounder.isOpen()) {
        sounder.hangUp();
    } else {
        sounder.plugIn();
    }
    showCable();
}

void SounderPanel::showCable()
{
    const bool isIn = sounder.isOpen();
    const CableRow &row = isIn ? cableIn : cableOut;
    port->setText(isIn ? sounder.portPath() : QStringLiteral("The cable is out"));
    advice->setText(QLatin1String(row.advice));
    cable->setText(QLatin1String(row.caption));
    describe(*cable, "cable", row);
}
