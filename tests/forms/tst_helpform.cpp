// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "qtdifferences.h"
#include "resources.h"
#include "ui_infoform.h"

#include <QIcon>
#include <QSignalSpy>
#include <QTest>

#include <cstdlib>

class tst_HelpForm : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void windowIsNamedAndSized();
    void layoutIsWithoutMarginsAndGaps();
    void titleCarriesTheHeaderGradient();
    void textIsAtTheTopLeftWithRoomAround();
    void titleAndTextShareTheHeightOneToSix();
    void footerShowsTheLogo();
    void closeButtonSitsCentredBetweenTwoSpacers();

private:
    QWidget window;
    Ui::InfoForm ui;
};

void tst_HelpForm::initTestCase()
{
    useTalVeroResources();
    ui.setupUi(&window);
}

void tst_HelpForm::windowIsNamedAndSized()
{
    QCOMPARE(window.objectName(), QStringLiteral("InfoForm"));
    QCOMPARE(window.size(), QSize(400, 117));
    QCOMPARE(window.windowTitle(), QStringLiteral("Information"));
    QCOMPARE(window.styleSheet(), QStringLiteral("background:white;"));
    QCOMPARE(window.sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(window.sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
    const QIcon icon(QStringLiteral(":/resourcefiles/images/help-icon.png"));
    QVERIFY(!icon.pixmap(32).isNull());
    QCOMPARE(window.windowIcon().pixmap(32).toImage(), icon.pixmap(32).toImage());
}

void tst_HelpForm::layoutIsWithoutMarginsAndGaps()
{
    QCOMPARE(ui.verticalLayout->spacing(), 0);
    QCOMPARE(ui.verticalLayout->contentsMargins(), QMargins());
}

void tst_HelpForm::titleCarriesTheHeaderGradient()
{
    QCOMPARE(ui.title->text(), QStringLiteral("TextLabel"));
    QCOMPARE(ui.title->styleSheet().simplified(),
             QStringLiteral("background: qlineargradient(x1:0, y1:0, x2:0, y2:1, "
                            "stop:0 rgb(0,0,100), stop:0.1 %1, "
                            "stop:0.5 rgb(41, 88, 160)); font: bold 10pt; color: white; "
                            "padding: 10px;")
                 .arg(QtDifferences::headerBlue));
}

void tst_HelpForm::textIsAtTheTopLeftWithRoomAround()
{
    QCOMPARE(ui.text->text(), QStringLiteral("TextLabel"));
    QCOMPARE(ui.text->styleSheet(), QStringLiteral("padding: 10px;\n"));
    QCOMPARE(ui.text->alignment(), Qt::AlignLeft | Qt::AlignTop);
}

void tst_HelpForm::titleAndTextShareTheHeightOneToSix()
{
    QCOMPARE(ui.title->sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(ui.title->sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(ui.title->sizePolicy().verticalStretch(), 1);
    QCOMPARE(ui.text->sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
    QCOMPARE(ui.text->sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(ui.text->sizePolicy().verticalStretch(), 6);
}

void tst_HelpForm::footerShowsTheLogo()
{
    const QPixmap logo(QStringLiteral(":/resourcefiles/images/brimsett-logo-footer.png"));
    QVERIFY(!logo.isNull());
    QCOMPARE(ui.footerLabel->pixmap(Qt::ReturnByValue).toImage(), logo.toImage());
    QCOMPARE(ui.footerLabel->text(), QString());
    QCOMPARE(ui.horizontalLayout_4->itemAt(0)->widget(), ui.footerLabel);
    QCOMPARE(ui.horizontalLayout_4->itemAt(1)->layout(), ui.horizontalLayout_5);
}

void tst_HelpForm::closeButtonSitsCentredBetweenTwoSpacers()
{
    QCOMPARE(ui.pushButton->text(), QStringLiteral("Close"));
    QCOMPARE(ui.horizontalLayout_5->count(), 3);
    QCOMPARE(ui.horizontalLayout_5->itemAt(1)->widget(), ui.pushButton);
    for (const int side : {0, 2}) {
        const QSpacerItem *spacer = ui.horizontalLayout_5->itemAt(side)->spacerItem();
        QVERIFY(spacer != nullptr);
        QCOMPARE(spacer->sizeHint(), QSize(40, 20));
    }
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const int left = ui.horizontalLayout_5->itemAt(0)->geometry().width();
    const int right = ui.horizontalLayout_5->itemAt(2)->geometry().width();
    QVERIFY(std::abs(left - right) <= 1);
}

QTEST_MAIN(tst_HelpForm)
#include "tst_helpform.moc"
