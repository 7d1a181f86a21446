// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "formplaces.h"

#include <cstdlib>

namespace {

constexpr QSize maximised(1920, 1080);
constexpr int widestForm = 1440;

QRect placeOf(const QWidget *widget) { return {placeInWindow(widget), widget->size()}; }

} // namespace

/// The window on a screen with more room than the form needs.
class tst_FormLarge : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        wearProgramStyle();
        QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
    }

    void blockKeepsTogetherInTheMiddle_data();
    void blockKeepsTogetherInTheMiddle();
    void barsReachFromEdgeToEdge();
    void groupsOfThePageKeepTogether_data();
    void groupsOfThePageKeepTogether();
    void menuButtonStaysWhereItIsWhenTheDetailsAreHidden_data();
    void menuButtonStaysWhereItIsWhenTheDetailsAreHidden();

private:
    FormShelf looked; ///< for what only looks at it
};

void tst_FormLarge::blockKeepsTogetherInTheMiddle_data()
{
    QTest::addColumn<QString>("name");
    for (const char *block :
         {"headerHolder", "widget_2", "widget_3", "tabsHolder", "widget_34", "footerHolder"}) {
        QTest::newRow(block) << block;
    }
}

void tst_FormLarge::blockKeepsTogetherInTheMiddle()
{
    QFETCH(QString, name);
    const FormBench &form = looked.shown(maximised);
    const auto *widget = form.window.findChild<QWidget *>(name);
    QVERIFY2(widget != nullptr, "nothing of this name");
    const QRect block = placeOf(widget);
    QCOMPARE(block.width(), widestForm);
    const int left = block.left();
    const int right = maximised.width() - 1 - block.right();
    QVERIFY2(std::abs(left - right) <= 1, qPrintable(QString("%1 and %2").arg(left).arg(right)));
}

void tst_FormLarge::barsReachFromEdgeToEdge()
{
    const FormBench &form = looked.shown(maximised);
    for (const QWidget *bar : {form.ui.widget, form.ui.widget_36}) {
        QCOMPARE(placeOf(bar).left(), 0);
        QCOMPARE(bar->width(), maximised.width());
    }
}

void tst_FormLarge::groupsOfThePageKeepTogether_data()
{
    QTest::addColumn<QString>("upper");
    QTest::addColumn<QString>("lower");
    QTest::newRow("radio buttons") << "highShallowRadio"
                                   << "highAutoRadio";
    QTest::newRow("heading and choices") << "highModeLabel"
                                         << "highShallowRadio";
    QTest::newRow("choices and separator") << "highManualRadio"
                                           << "line_4";
    QTest::newRow("separator and groups") << "line_4"
                                          << "highLowerPart";
}

void tst_FormLarge::groupsOfThePageKeepTogether()
{
    QFETCH(QString, upper);
    QFETCH(QString, lower);
    const FormBench &form = looked.shown(maximised);
    const int end = placeOf(form.window.findChild<QWidget *>(upper)).bottom();
    const int gap = placeOf(form.window.findChild<QWidget *>(lower)).top() - end;
    QVERIFY2(gap > 0 && gap <= 40, qPrintable(QString("%1 px apart").arg(gap)));
}

void tst_FormLarge::menuButtonStaysWhereItIsWhenTheDetailsAreHidden_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("start") << startSize;
    QTest::newRow("maximised") << maximised;
}

void tst_FormLarge::menuButtonStaysWhereItIsWhenTheDetailsAreHidden()
{
    QFETCH(QSize, size);
    FormBench form;
    QVERIFY(form.show(size));
    const int left = placeOf(form.ui.hamburgerButton).left();
    form.ui.widget_40->hide();
    QCoreApplication::sendPostedEvents();
    QTRY_VERIFY(form.ui.widget_36->height() < 60);
    QCOMPARE(placeOf(form.ui.hamburgerButton).left(), left);
}

QTEST_MAIN(tst_FormLarge)
#include "tst_formlarge.moc"
