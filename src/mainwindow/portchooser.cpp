// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "portchooser.h"

#include "fieldtips.h"
#include "linkchoices.h"

#include <QComboBox>

#include <chrono>

namespace {

using namespace std::chrono_literals;

constexpr auto scanInterval = 1s;

} // namespace

PortChooser::PortChooser(QComboBox &itsList, PortLister ports, PortDetails details, QObject *parent)
    : QObject(parent)
    , list(itsList)
    , listPorts(std::move(ports))
    , detailsOf(std::move(details))
{
    portScanTimer.setObjectName(QStringLiteral("portScanTimer"));
    portScanTimer.setInterval(scanInterval);
    portScanTimer.start();
}

void PortChooser::updateSerialPorts()
{
    const QString chosen = list.currentText();
    const QStringList found = listPorts();
    if (found == knownPorts) {
        return;
    }
    knownPorts = found;
    list.clear();
    list.addItem(LinkChoices::noPort);
    list.addItems(found);
    if (found.contains(chosen)) {
        list.setCurrentText(chosen);
    }
    describeEntries();
    emit listed();
}

void PortChooser::describeEntries()
{
    for (int entry = 1; entry < list.count(); ++entry) { // the first is no port
        list.setItemData(entry, literalToolTip(detailsOf(list.itemText(entry))), Qt::ToolTipRole);
    }
}

QString PortChooser::advice() const
{
    return list.count() > 1
               ? QString()
               : QStringLiteral("No serial port found. Check that the cable is plugged in at both "
                                "ends and that the driver of its adapter is installed.");
}
