// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "qtdifferences.h"
#include "resources.h"
#include "ui_depthgraph.h"

#include <QIcon>
#include <QTest>

class tst_DepthGraphForm : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void windowIsNamedAndSized();
    void layoutsAreWithoutMargins();
    void headerKeepsItsHeight();
    void headerCarriesTheGradient();
    void titleIsBoldRichTextAtTheLeft();
    void labelsReadAsTheyOpen_data();
    void labelsReadAsTheyOpen();
    void headerReadsTitleThenHighThenLow();
    void chartFillsTheRest();
    void headerStandsStillWhenDepthsChange();
    void smallestWindowHoldsBothDepths();
    void noDepthWidensTheWindow();

private:
    QWidget window;
    Ui::depthGraph ui;
};

void tst_DepthGraphForm::initTestCase()
{
    useTalVeroResources();
    ui.setupUi(&window);
}

void tst_DepthGraphForm::windowIsNamedAndSized()
{
    QCOMPARE(window.objectName(), QStringLiteral("depthGraph"));
    QCOMPARE(window.size(), QSize(974, 685));
    QCOMPARE(window.windowTitle(), QStringLiteral("Depth Graph"));
    QCOMPARE(window.styleSheet(), QString());
    const QIcon icon(QStringLiteral(":/resourcefiles/images/graph_icon_blue.png"));
    QVERIFY(!icon.pixmap(48).isNull());
    QCOMPARE(window.windowIcon().pixmap(48).toImage(), icon.pixmap(48).toImage());
}

void tst_DepthGraphForm::layoutsAreWithoutMargins()
{
    QCOMPARE(ui.verticalLayout->spacing(), 0);
    QCOMPARE(ui.verticalLayout->contentsMargins(), QMargins());
    QCOMPARE(ui.horizontalLayout->contentsMargins(), QMargins());
}

void tst_DepthGraphForm::headerKeepsItsHeight()
{
    QCOMPARE(ui.horizontalWidget->sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(ui.horizontalWidget->sizePolicy().verticalPolicy(), QSizePolicy::Maximum);
    QCOMPARE(ui.horizontalWidget->minimumHeight(), 35);
    for (const QLabel *label : {ui.titleLabel, ui.depthGraphFieldHF, ui.depthGraphFieldLF}) {
        QCOMPARE(label->minimumHeight(), 35);
    }
    for (const QLabel *key : {ui.depthKeyHF, ui.depthKeyLF}) {
        QCOMPARE(key->maximumWidth(), 40);
    }
}

void tst_DepthGraphForm::headerCarriesTheGradient()
{
    const QString sheet = ui.horizontalWidget->styleSheet().simplified();
    QCOMPARE(sheet, QStringLiteral("background: qlineargradient(x1:0, y1:0, x2:0, y2:1, "
                                   "stop:0 rgb(0,0,100), stop:0.1 %1, "
                                   "stop:0.5 rgb(41, 88, 160)); font: bold 10pt; color: white; "
                                   "padding: 10px;")
                        .arg(QtDifferences::headerBlue));
}

void tst_DepthGraphForm::titleIsBoldRichTextAtTheLeft()
{
    QCOMPARE(ui.titleLabel->font().pointSize(), 10);
    QCOMPARE(int(ui.titleLabel->font().weight()), int(QFont::Bold));
    QVERIFY(!ui.titleLabel->font().italic());
    QCOMPARE(ui.titleLabel->textFormat(), Qt::RichText);
    QCOMPARE(ui.titleLabel->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
}

void tst_DepthGraphForm::labelsReadAsTheyOpen_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("titleLabel") << "Depth Graph";
    QTest::newRow("depthKeyHF") << "";
    QTest::newRow("depthGraphFieldHF") << "High Frequency Depth:";
    QTest::newRow("depthKeyLF") << "";
    QTest::newRow("depthGraphFieldLF") << "Low Frequency Depth:";
    QTest::newRow("label") << "TextLabel";
}

void tst_DepthGraphForm::labelsReadAsTheyOpen()
{
    QFETCH(QString, text);
    const auto *label = window.findChild<QLabel *>(QLatin1String(QTest::currentDataTag()));
    QVERIFY(label != nullptr);
    QCOMPARE(label->text(), text);
}

void tst_DepthGraphForm::headerReadsTitleThenHighThenLow()
{
    const QList<QWidget *> order{ui.titleLabel, ui.depthKeyHF, ui.depthGraphFieldHF, ui.depthKeyLF,
                                 ui.depthGraphFieldLF};
    QCOMPARE(ui.horizontalLayout->count(), order.size());
    for (int i = 0; i < order.size(); ++i) {
        QCOMPARE(ui.horizontalLayout->itemAt(i)->widget(), order.at(i));
    }
}

void tst_DepthGraphForm::chartFillsTheRest()
{
    QCOMPARE(ui.label->sizePolicy().horizontalPolicy(), QSizePolicy::Ignored);
    QCOMPARE(ui.label->sizePolicy().verticalPolicy(), QSizePolicy::Ignored);
    QVERIFY(ui.label->hasScaledContents());
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(ui.label->width(), window.width());
    QCOMPARE(ui.label->height(), window.height() - ui.horizontalWidget->height());
    QCOMPARE(ui.label->y(), ui.horizontalWidget->height());
}

void tst_DepthGraphForm::headerStandsStillWhenDepthsChange()
{
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const QRect low = ui.depthGraphFieldLF->geometry();
    ui.depthGraphFieldHF->setText(QStringLiteral("High Frequency Depth: <b>328.08ft</b>"));
    ui.depthGraphFieldLF->clear();
    QCoreApplication::sendPostedEvents();
    QCOMPARE(ui.depthGraphFieldLF->geometry(), low);
}

void tst_DepthGraphForm::smallestWindowHoldsBothDepths()
{
    ui.depthGraphFieldHF->setText(QStringLiteral("High Frequency Depth: <b>328.08ft</b>"));
    ui.depthGraphFieldLF->setText(QStringLiteral("Low Frequency Depth: <b>328.08ft</b>"));
    QVERIFY2(window.layout()->minimumSize().width() <= window.minimumWidth(),
             qPrintable(QString::number(window.layout()->minimumSize().width())));
}

/// Noise on the line may read as a number of forty digits.
void tst_DepthGraphForm::noDepthWidensTheWindow()
{
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const QSize before = window.size();
    const QString digits(40, QLatin1Char('9'));
    ui.depthGraphFieldHF->setText("High Frequency Depth: <b>" + digits + ".00ft</b>");
    ui.depthGraphFieldLF->setText("Low Frequency Depth: <b>" + digits + ".00ft</b>");
    QTRY_VERIFY(window.layout()->minimumSize().width() > before.width());
    window.layout()->activate(); // as the event loop does in its next turn
    QCOMPARE(window.size(), before);
}

QTEST_MAIN(tst_DepthGraphForm)
#include "tst_depthgraphform.moc"
