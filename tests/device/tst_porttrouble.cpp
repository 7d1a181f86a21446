// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "porttrouble.h"

#include <QtTest>

/// What the operator reads for what the system said.
class PortTroubleTest : public QObject
{
    Q_OBJECT

private slots:
    void words_data();
    void words();
};

void PortTroubleTest::words_data()
{
    QTest::addColumn<QSerialPort::SerialPortError>("error");
    QTest::addColumn<bool>("isOffLimits");
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("words");
    QTest::newRow("vanished") << QSerialPort::DeviceNotFoundError << false << QString()
                              << "The port is no longer there. Check the cable, then choose the "
                                 "port again.";
    QTest::newRow("in use") << QSerialPort::PermissionError << false << "dialout"
                            << "Another program is using this port. Close that program, then try "
                               "again.";
    QTest::newRow("no permission, group dialout")
        << QSerialPort::PermissionError << true << "dialout"
        << "You have no permission to use this port. Join the group \"dialout\" (sudo usermod -a "
           "-G dialout $USER), then log out and in again.";
    QTest::newRow("no permission, no group") << QSerialPort::PermissionError << true << QString()
                                             << "You have no permission to use this port.";
    for (const QSerialPort::SerialPortError error :
         {QSerialPort::UnknownError, QSerialPort::UnsupportedOperationError,
          QSerialPort::ResourceError, QSerialPort::OpenError}) {
        QTest::addRow("error %d", error) << error << false << "dialout"
                                         << "The system says: Inappropriate ioctl for device";
    }
}

void PortTroubleTest::words()
{
    QFETCH(QSerialPort::SerialPortError, error);
    QFETCH(bool, isOffLimits);
    QFETCH(QString, group);
    const PortTrouble::Facts facts{error, "Inappropriate ioctl for device", isOffLimits, group};
    QTEST(PortTrouble::words(facts), "words");
}

QTEST_APPLESS_MAIN(PortTroubleTest)

#include "tst_porttrouble.moc"
