// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// Stands in for the firmware updater: writes down what it was started with, and whether it gets the
// port, to which it says a word. The report appears under its name when it is complete.

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSerialPort>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments().mid(1);
    QSerialPort port(words.value(0));
    port.setBaudRate(QSerialPort::Baud9600);
    const bool isOpen = port.open(QIODevice::ReadWrite);
    port.write("*updater");
    port.waitForBytesWritten(5000);
    port.close();

    const QDir folder(QCoreApplication::applicationDirPath());
    QFile report(folder.filePath("report.part"));
    if (!report.open(QIODevice::WriteOnly)) {
        return 1;
    }
    report.write(QStringLiteral("%1 argument: %2\nopened it: %3\nfolder: %4\n")
                     .arg(QString::number(words.size()), words.join(' '),
                          QLatin1String(isOpen ? "yes" : "no"), folder.dirName())
                     .toUtf8());
    report.close();
    return report.rename(folder.filePath("report.txt")) ? 0 : 1;
}
