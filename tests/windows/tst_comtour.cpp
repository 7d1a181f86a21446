// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// The operator's tour on Windows, with simulated sounders of the machine at two COM ports. Where
// TALVERO_PICTURES names a folder, its pictures stay there.

#include "appearance.h"
#include "hostsounder.h"
#include "mainwindow.h"
#include "operatortour.h"
#include "portclosing.h"
#include "sounderline.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QtTest>

namespace {

/// What the tour needs to know of a sounder that is a program of the machine: its port, and how its
/// cable is pulled.
class DistantSounder : public SounderLine
{
public:
    DistantSounder(int portNumber, const QStringList &words)
        : SounderLine({})
        , port(comPort(portNumber))
        , program(portNumber, 9600, words)
    {}

    QString portPath() const override { return port; }
    bool isOpen() const override { return true; }
    void hangUp() override { program.pull(); }

protected:
    int rateOnLine() override { return 0; }
    Listener listener() override { return Listener::Absent; }
    int send(const QByteArray &) override { return 0; }

private:
    QString port;
    HostSounder program;
};

} // namespace

class ComTourTest : public QObject
{
    Q_OBJECT

private slots:
    void everyStepComesToItsEnd();
};

void ComTourTest::everyStepComesToItsEnd()
{
    const QTemporaryDir folder;
    const QString kept = qEnvironmentVariable("TALVERO_PICTURES");
    const QDir pictures(kept.isEmpty() ? folder.path() : kept);
    DistantSounder dual(13, {"--seed", "1010"});
    DistantSounder highOnly(14, {"--fit", "hf", "--seed", "2"});
    const PortClosing closing;
    MainWindow window;
    OperatorTour tour(window, dual, highOnly, pictures);
    QSignalSpy finished(&tour, &OperatorTour::finished);
    window.show();
    tour.start();
    constexpr int patienceMs = 130000; // it takes 35 to 45 s
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, patienceMs);
    QCOMPARE(finished.first().first().toInt(), 0);
    QVERIFY(pictures.entryList({"*.png"}).size() >= 30);
}

int main(int argc, char **argv)
{
    prepareForHighDensity();
    qputenv("QT_LOGGING_RULES",
            "default.debug=false"); // beside the tour's own words it only hides them
    QApplication application(argc, argv);
    giveProgramStyle();
    ComTourTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_comtour.moc"
