// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// The operator closes the window, whatever is going on. The program runs as a process of its own:
// the same start as that of src/app/main.cpp, with the simulated sounder's port to choose from.

#include "appearance.h"
#include "screenfit.h"
#include "windowbench.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

#include <cstdio>

namespace {

constexpr char closing[] = "closing\n";

/// So long may the end take; a sanitizer looks for leaks then.
#ifdef __SANITIZE_ADDRESS__
constexpr int patienceMs = 8000;
#else
constexpr int patienceMs = 2000;
#endif

/// The operator's hands within the program that is to be closed.
struct Desk
{
    PtySounder &sounder;
    MainWindow &window;

    void click(const char *button) const { window.findChild<QAbstractButton *>(button)->click(); }

    void connectAt(const char *rate) const
    {
        window.findChild<QComboBox *>("portComboBox")->setCurrentText(sounder.portPath());
        window.findChild<QComboBox *>("baudComboBox")->setCurrentText(rate);
        click("connectToDevice");
    }

    bool isConnected() const { return window.findChild<QWidget *>("commonHolder")->isEnabled(); }

    bool connectsReady() const
    {
        connectAt("9600");
        return QTest::qWaitFor([this] { return isConnected(); }, 10000);
    }

    void fallSilent() const { sounder.model().setFault("silent", 1); }
};

struct State
{
    const char *name;
    bool (*isReached)(const Desk &desk);
};

const State states[] = {
    {"before anything is done", [](const Desk &) { return true; }},
    {"while connecting",
     [](const Desk &desk) {
         desk.fallSilent();
         desk.connectAt("9600");
         return !desk.isConnected();
     }},
    {"while searching",
     [](const Desk &desk) {
         desk.fallSilent();
         desk.connectAt("Auto");
         return !desk.isConnected();
     }},
    {"while connected", [](const Desk &desk) { return desk.connectsReady(); }},
    {"while an answer is awaited",
     [](const Desk &desk) {
         const bool isReady = desk.connectsReady();
         desk.fallSilent();
         desk.click("saveSettingsToDevice");
         return isReady;
     }},
    {"while changes wait",
     [](const Desk &desk) {
         const bool isReady = desk.connectsReady();
         desk.click("pingUp");
         desk.click("soundVelocityUp");
         return isReady;
     }},
    {"while soundings come",
     [](const Desk &desk) {
         const bool isReady = desk.connectsReady();
         desk.sounder.model().setSoundings(true);
         QTest::qWait(50);
         return isReady;
     }},
    {"with the graph and the help open",
     [](const Desk &desk) {
         const bool isReady = desk.connectsReady();
         desk.click("openGraph");
         desk.click("selectRateInfo");
         return isReady;
     }},
    {"while a question is open, as when the desk's session ends",
     [](const Desk &desk) {
         const bool isReady = desk.connectsReady();
         bool wasAsked = false;
         QTimer::singleShot(100, &desk.window, [&] {
             wasAsked = QApplication::activeModalWidget() != nullptr;
             QApplication::closeAllWindows();
         });
         desk.click("resetSettings");
         return isReady && wasAsked;
     }},
    {"after the cable is pulled",
     [](const Desk &desk) {
         const bool isReady = desk.connectsReady();
         desk.sounder.hangUp();
         return isReady && QTest::qWaitFor([&] { return !desk.isConnected(); });
     }},
    {"as the cable is pulled",
     [](const Desk &desk) {
         const bool isReady = desk.connectsReady();
         desk.sounder.hangUp();
         return isReady;
     }},
    {"after disconnecting",
     [](const Desk &desk) {
         const bool isReady = desk.connectsReady();
         desk.click("connectToDevice");
         return isReady && !desk.isConnected();
     }},
};

/// What is said after these words counts.
void tell(const char *words)
{
    std::fputs(words, stderr);
    std::fputs(words, stdout);
    std::fflush(stdout);
}

int runProgram(int argc, char **argv)
{
    prepareForHighDensity();
    startWithoutOpenGl();
    QApplication application(argc, argv);
    giveProgramStyle();
    PtySounder sounder(WindowBench::quietSounder());
    MainWindow window([&sounder] { return QStringList{sounder.portPath()}; });
    fitToScreen(window);
    window.show();
    QMetaObject::invokeMethod(&window, "updateSerialPorts");
    const Desk desk{sounder, window};
    QTimer::singleShot(0, &window, [&] {
        for (const State &state : states) {
            if (qstrcmp(state.name, argv[2]) == 0 && state.isReached(desk)) {
                tell(closing);
            }
        }
        window.close();
    });
    return QApplication::exec();
}

bool isEmptyFolder(const QString &path)
{
    return QDir(path).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

} // namespace

class TestClosing : public QObject
{
    Q_OBJECT

private slots:
    void theWindowIsClosed_data();
    void theWindowIsClosed();
    void aHomeThatTakesNothing_data();
    void aHomeThatTakesNothing();

private:
    static void closes(const QString &state, const QString &home,
                       const QString &before = QString());
};

void TestClosing::theWindowIsClosed_data()
{
    QTest::addColumn<QString>("state");
    for (const State &state : states) {
        QTest::newRow(state.name) << state.name;
    }
}

void TestClosing::closes(const QString &state, const QString &home, const QString &before)
{
    const QTemporaryDir here;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("HOME", home);
    environment.insert("XDG_RUNTIME_DIR", here.path());
    environment.insert("QT_LOGGING_RULES", "default.debug=false");
    environment.insert("GCOV_ERROR_FILE", "/dev/null"); // a build that counts lines writes them
    for (const char *name : {"XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"}) {
        environment.remove(name);
    }
    QProcess program;
    program.setProcessEnvironment(environment);
    program.setWorkingDirectory(here.path());
    program.start("/bin/sh", {"-c", before + "exec \"$0\" --program \"$1\"",
                              QCoreApplication::applicationFilePath(), state});
    QByteArray told;
    const auto tellsThatItCloses = [&] {
        told += program.readAllStandardOutput();
        return told.contains(closing);
    };
    QTRY_VERIFY_WITH_TIMEOUT(tellsThatItCloses(), 20000);
    QElapsedTimer time;
    time.start();
    QTRY_COMPARE_WITH_TIMEOUT(program.state(), QProcess::NotRunning, 10000);
    QVERIFY2(time.elapsed() < patienceMs, qPrintable(QString::number(time.elapsed())));
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 0);
    const QByteArray said = program.readAllStandardError();
    QCOMPARE(said.mid(said.indexOf(closing) + static_cast<int>(qstrlen(closing))), QByteArray());
    QVERIFY2(isEmptyFolder(here.path()), "something was written");
}

void TestClosing::theWindowIsClosed()
{
    QFETCH(QString, state);
    const QTemporaryDir home;
    closes(state, home.path());
    QVERIFY2(isEmptyFolder(home.path()), "something was written at home");
}

void TestClosing::aHomeThatTakesNothing_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("state");
    QTest::addColumn<bool>("exists");
    const QString connected = QStringLiteral("while connected");
    QTest::newRow("missing") << "" << connected << false;
    QTest::newRow("read-only") << "chmod 555 \"$HOME\"; " << connected << true;
    // The system's own lock on a port is a file, too.
    QTest::newRow("full: no file can grow") << "trap '' XFSZ; ulimit -f 0; "
                                            << "before anything is done" << true;
}

void TestClosing::aHomeThatTakesNothing()
{
    QFETCH(QString, before);
    QFETCH(QString, state);
    QFETCH(bool, exists);
    const QTemporaryDir folder;
    const QString home = exists ? folder.path() : folder.filePath("missing");
    closes(state, home, before);
    QVERIFY2(isEmptyFolder(folder.path()), "something was written at home");
}

int main(int argc, char **argv)
{
    if (argc > 2 && qstrcmp(argv[1], "--program") == 0) {
        return runProgram(argc, argv);
    }
    const QCoreApplication application(argc, argv);
    TestClosing test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_closing.moc"
