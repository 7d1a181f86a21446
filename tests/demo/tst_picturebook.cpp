// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "picturebook.h"

#include "appearance.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QtTest>

class tst_PictureBook : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { giveProgramStyle(); }

    void picturesTellStateSizeAndScaleByTheirNames();
    void theManualsPicturesBearTheNamesOfTheManual();
};

void tst_PictureBook::picturesTellStateSizeAndScaleByTheirNames()
{
    QTemporaryDir folder;
    QVERIFY(folder.isValid());
    const QDir pictures(folder.path());
    QCOMPARE(takePictures(pictures, PictureChoice::Dense), 0);
    for (const char *state : {"offline", "dual"}) {
        for (const QSize size :
             {QSize(1136, 800), QSize(1020, 947), QSize(800, 600), QSize(1920, 1080)}) {
            const QString name =
                QString("%1-%2x%3-1x.png").arg(state).arg(size.width()).arg(size.height());
            const QImage picture(pictures.filePath(name));
            QVERIFY2(picture.size() == size, qPrintable(name));
        }
    }
    QVERIFY(QImage(pictures.filePath("offline-1136x800-1x.png")) !=
            QImage(pictures.filePath("dual-1136x800-1x.png")));
    for (const char *other : {"graph-metres", "graph-feet", "help-short", "help-long",
                              "tooltip-range", "tooltip-locked", "box-reset", "box-port"}) {
        const QStringList found = pictures.entryList({QString(other) + "-*-1x.png"});
        QVERIFY2(found.size() == 1, other);
    }
}

void tst_PictureBook::theManualsPicturesBearTheNamesOfTheManual()
{
    QTemporaryDir folder;
    QVERIFY(folder.isValid());
    const QDir pictures(folder.path());
    QCOMPARE(takePictures(pictures, PictureChoice::Manual), 0);
    const QStringList kept = QDir(MANUAL_PICTURES).entryList(QDir::Files);
    QCOMPARE(pictures.entryList(QDir::Files), kept);
    QCOMPARE(QImage(pictures.filePath("main-window.png")).size(), QSize(1136, 800));
}

QTEST_MAIN(tst_PictureBook)
#include "tst_picturebook.moc"
