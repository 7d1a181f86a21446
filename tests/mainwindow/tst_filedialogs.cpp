// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "dialoghand.h"
#include "logcapture.h"
#include "readybench.h"
#include "settingsfilename.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>

namespace {

/// Enters a name as the operator does and presses the dialog's own button, or cancels.
void answer(QFileDialog &dialog, const QString &name)
{
    auto *const edit = dialog.findChild<QLineEdit *>("fileNameEdit");
    auto *const buttons = dialog.findChild<QDialogButtonBox *>("buttonBox");
    if (name.isEmpty()) {
        buttons->button(QDialogButtonBox::Cancel)->click();
        return;
    }
    edit->setText(name);
    const bool saves = dialog.acceptMode() == QFileDialog::AcceptSave;
    buttons->button(saves ? QDialogButtonBox::Save : QDialogButtonBox::Open)->click();
}

/// What a dialog asked for.
struct Asked
{
    QString title;
    QStringList filters;
    QFileDialog::AcceptMode mode = QFileDialog::AcceptOpen;
    QString folder;

    void note(const QFileDialog &dialog)
    {
        *this = {dialog.windowTitle(), dialog.nameFilters(), dialog.acceptMode(),
                 dialog.directory().canonicalPath()};
    }
};

constexpr char fileText[] = "<settings/>\n";

} // namespace

/// Saving to and importing from a file. Both end at the choice of a name. The form has no buttons
/// for them, so their slots are called.
class FileDialogsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { QDir::setCurrent(QDir::rootPath()); }

    void saveAsksForAnXmlFile_data();
    void saveAsksForAnXmlFile();
    void theNameThatIsSavedUnder_data();
    void theNameThatIsSavedUnder();
    void importAsksForAnyFile_data();
    void importAsksForAnyFile();

private:
    QTemporaryDir folder;
};

void FileDialogsTest::initTestCase()
{
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QVERIFY(folder.isValid());
    QVERIFY(QDir::setCurrent(folder.path())); // a dialog without a start folder opens here
    QFile file("present.xml");
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(fileText) > 0);
}

void FileDialogsTest::saveAsksForAnXmlFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("a name without a suffix") << "settings";
    QTest::newRow("a name with the suffix") << "other.xml";
    QTest::newRow("cancelled") << QString();
}

void FileDialogsTest::saveAsksForAnXmlFile()
{
    QFETCH(QString, name);
    ReadyBench bench;
    Asked asked;
    const DialogHand<QFileDialog> hand([&](QFileDialog &dialog) {
        asked.note(dialog);
        answer(dialog, name);
    });
    const QString info = bench.info();
    QVERIFY(QMetaObject::invokeMethod(&bench.window, "on_saveSettings_clicked"));
    QCOMPARE(hand.count(), 1);
    QCOMPARE(asked.title, QString("Save Settings to File"));
    QCOMPARE(asked.filters, QStringList{"XML files (*.xml)"});
    QCOMPARE(asked.mode, QFileDialog::AcceptSave);
    QCOMPARE(asked.folder, QDir(folder.path()).canonicalPath());
    QCOMPARE(QDir().entryList(QDir::Files), QStringList{"present.xml"});
    QCOMPARE(bench.settingCommands(), QByteArrayList());
    QCOMPARE(bench.info(), info);
}

void FileDialogsTest::theNameThatIsSavedUnder_data()
{
    QTest::addColumn<QString>("entered");
    QTest::addColumn<QString>("name");
    QTest::newRow("settings") << "settings"
                              << "settings.xml";
    QTest::newRow("settings.xml") << "settings.xml"
                                  << "settings.xml";
    QTest::newRow("settings.XML") << "settings.XML"
                                  << "settings.XML.xml";
    QTest::newRow("settings.txt") << "settings.txt"
                                  << "settings.txt.xml";
    QTest::newRow("old.xml.bak, which holds the suffix inside") << "old.xml.bak"
                                                                << "old.xml.bak";
    QTest::newRow("nothing chosen") << ""
                                    << "";
}

void FileDialogsTest::theNameThatIsSavedUnder()
{
    QFETCH(QString, entered);
    QTEST(settingsFileName(entered), "name");
}

void FileDialogsTest::importAsksForAnyFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("logLines");
    QTest::newRow("a file chosen") << "present.xml" << 1;
    QTest::newRow("cancelled") << QString() << 0;
}

void FileDialogsTest::importAsksForAnyFile()
{
    QFETCH(QString, name);
    ReadyBench bench;
    Asked asked;
    const DialogHand<QFileDialog> hand([&](QFileDialog &dialog) {
        asked.note(dialog);
        answer(dialog, name);
    });
    LogCapture log;
    QVERIFY(QMetaObject::invokeMethod(&bench.window, "on_importButton_clicked"));
    QCOMPARE(hand.count(), 1);
    QCOMPARE(asked.title, QString("Open File"));
    QCOMPARE(asked.filters, QStringList{"All Files (*)"}); // Qt's own word for no filter
    QCOMPARE(asked.mode, QFileDialog::AcceptOpen);
    QTEST(int(log.texts().count("got here")), "logLines");
    QCOMPARE(bench.settingCommands(), QByteArrayList());
    QFile file("present.xml");
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray(fileText));
}

QTEST_MAIN(FileDialogsTest)
#include "tst_filedialogs.moc"
