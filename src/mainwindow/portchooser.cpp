// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "portchooser.h"

#include "linkchoices.h"

#include <QComboBox>

#include <chrono>

namespace {

using namespace std::chrono_literals;

constexpr auto scanInterval = 1s;

} // namespace

PortChooser::PortChooser(QComboBox &itsList, PortLister ports, QObject *parent)
    : QObject(parent)
    , list(itsList)
    , listPorts(std::move(ports))
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
}
