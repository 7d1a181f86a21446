// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "programcall.h"
#include "version.h"

#include <QtTest>

namespace {

/// A program with one option of its own.
const ProgramFace sonar{"sonar", "Listens.", {{"log", "FILE", "Appends the log to FILE."}}};

ProgramCall call(const QStringList &words)
{
    // An option's name in the program's own path is none.
    return readCall(sonar, QStringList{"--log=program"} + words);
}

/// A row for each, by which it is called.
void addRows(std::initializer_list<const char *> calls)
{
    QTest::addColumn<QString>("words");
    for (const char *words : calls) {
        QTest::newRow(words) << words;
    }
}

/// The call of the row.
ProgramCall callOfTheRow() { return call(QString(QTest::currentDataTag()).split(' ')); }

} // namespace

/// What somebody gets who calls a program with words after its name. No application object is
/// there, as at the start of a program.
class TestProgramCall : public QObject
{
    Q_OBJECT

private slots:
    void nothingIsAskedFor();
    void valueOfAnOption_data();
    void valueOfAnOption();
    void helpNamesEveryOption_data();
    void helpNamesEveryOption();
    void versionIsTheProjects_data();
    void versionIsTheProjects();
    void qtsOwnOptionsAreNoMistake_data();
    void qtsOwnOptionsAreNoMistake();
    void optionsThatThereAreNotArePassedOver_data();
    void optionsThatThereAreNotArePassedOver();
    void mistakes_data();
    void mistakes();
};

void TestProgramCall::nothingIsAskedFor()
{
    const ProgramCall nothing = call({});
    QCOMPARE(nothing.problem, QString());
    QCOMPARE(nothing.wantedText, QString());
    QVERIFY(nothing.values.isEmpty());
}

void TestProgramCall::valueOfAnOption_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QString>("file");
    QTest::newRow("--log C:/a b/x.log") << QStringList{"--log", "C:/a b/x.log"} << "C:/a b/x.log";
    QTest::newRow("--log=x.log") << QStringList{"--log=x.log"} << "x.log";
    QTest::newRow("-log x.log") << QStringList{"-log", "x.log"} << "x.log";
    QTest::newRow("-style fusion --log x.log")
        << QStringList{"-style", "fusion", "--log", "x.log"} << "x.log";
    QTest::newRow("--log a --log b") << QStringList{"--log", "a", "--log", "b"} << "b";
    QTest::newRow("--log=") << QStringList{"--log="} << "";
    QTest::newRow("--log Gerät.log") << QStringList{"--log", "Gerät.log"} << "Gerät.log";
    QTest::newRow("x.log") << QStringList{"x.log"} << "";
}

void TestProgramCall::valueOfAnOption()
{
    QFETCH(QStringList, words);
    const ProgramCall given = call(words);
    QCOMPARE(given.problem, QString());
    QCOMPARE(given.wantedText, QString());
    QTEST(given.values.value("log"), "file");
}

void TestProgramCall::helpNamesEveryOption_data()
{
    addRows(
        {"--help", "-h", "-help", "--log x --help", "-platform xcb --help", "--help --version"});
}

void TestProgramCall::helpNamesEveryOption()
{
    const ProgramCall asked = callOfTheRow();
    QCOMPARE(asked.problem, QString());
    QCOMPARE(asked.wantedText, QString("Usage: sonar [options]\n"
                                       "Listens.\n"
                                       "\n"
                                       "Options:\n"
                                       "  --log FILE        Appends the log to FILE.\n"
                                       "  --help, -h        Tells this.\n"
                                       "  --version, -v     Tells the version.\n"
                                       "\n"
                                       "Qt's own options, such as -platform, are taken, too."));
}

void TestProgramCall::versionIsTheProjects_data()
{
    addRows({"--version", "-v", "-style fusion --version"});
}

void TestProgramCall::versionIsTheProjects()
{
    const ProgramCall asked = callOfTheRow();
    QCOMPARE(asked.problem, QString());
    QCOMPARE(asked.wantedText, QString("sonar ") + TalVero::version);
}

void TestProgramCall::qtsOwnOptionsAreNoMistake_data()
{
    addRows({"-platform offscreen", "--platform offscreen", "-style fusion", "-style=fusion",
             "-stylesheet=x.qss", "-reverse", "-display :1", "-geometry 800x600+0+0",
             "-qwindowtitle x", "-session 1_2", "-widgetcount",
             "-platform offscreen -reverse -style windows"});
}

void TestProgramCall::qtsOwnOptionsAreNoMistake()
{
    const ProgramCall given = callOfTheRow();
    QCOMPARE(given.problem, QString());
    QCOMPARE(given.wantedText, QString());
    QVERIFY(given.values.isEmpty());
}

void TestProgramCall::mistakes_data()
{
    QTest::addColumn<QString>("problem");
    QTest::newRow("--log") << "Missing value after '--log'.";
    QTest::newRow("--help=x") << "Unexpected value after '--help'.";
}

void TestProgramCall::mistakes()
{
    const ProgramCall wrong = callOfTheRow();
    QTEST(wrong.problem, "problem");
    QCOMPARE(wrong.wantedText, QString());
}

void TestProgramCall::optionsThatThereAreNotArePassedOver_data()
{
    QTest::addColumn<QString>("remark");
    QTest::newRow("--frob") << "Unknown option 'frob'.";
    QTest::newRow("-frob") << "Unknown option 'frob'.";
    QTest::newRow("--logs x.log") << "Unknown option 'logs'.";
    QTest::newRow("-platform xcb --frob") << "Unknown option 'frob'.";
    QTest::newRow("--frob=1 --grob") << "Unknown options: frob, grob.";
}

void TestProgramCall::optionsThatThereAreNotArePassedOver()
{
    const ProgramCall given = callOfTheRow();
    QTEST(given.remark, "remark");
    QCOMPARE(given.problem, QString());
    QCOMPARE(given.wantedText, QString());
    QVERIFY2(!call({"--frob", "--help"}).wantedText.isEmpty(), "the help is passed over, too");
    QCOMPARE(call({"--frob", "--log", "x.log"}).values.value("log"), QString("x.log"));
}

QTEST_APPLESS_MAIN(TestProgramCall)
#include "tst_programcall.moc"
