// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "formbench.h"
#include "formeyes.h"
#include "formtable.h"
#include "qtdifferences.h"

#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QStyleOptionButton>

namespace {

const QString imageFolder = QStringLiteral(":/resourcefiles/images/");

/// What it shows when the image stands there on the given ground.
QImage imageOn(const QColor &ground, const QString &image)
{
    const QImage drawn(imageFolder + image);
    QImage whole(drawn.size(), QImage::Format_RGB32);
    whole.fill(ground);
    QPainter(&whole).drawImage(0, 0, drawn);
    return whole;
}

QRect indicatorOf(const QRadioButton *radio)
{
    QStyleOptionButton option;
    option.initFrom(radio);
    return radio->style()->subElementRect(QStyle::SE_RadioButtonIndicator, &option, radio);
}

/// Between the darkest pixel around the middle and the ground beside it.
double contrastOfText(const QImage &control)
{
    constexpr int edge = 4;
    const int middle = control.height() / 2;
    QRgb text = qRgb(255, 255, 255);
    QRgb ground = text;
    for (int y = middle - edge; y <= middle + edge; ++y) {
        QRgb darkest = qRgb(255, 255, 255);
        QRgb lightest = qRgb(0, 0, 0);
        for (int x = edge; x < control.width() - edge; ++x) {
            const QRgb pixel = control.pixel(x, y);
            darkest = luminanceOf(pixel) < luminanceOf(darkest) ? pixel : darkest;
            lightest = luminanceOf(pixel) > luminanceOf(lightest) ? pixel : lightest;
        }
        if (luminanceOf(darkest) < luminanceOf(text)) {
            text = darkest;
            ground = lightest;
        }
    }
    return contrastOf(text, ground);
}

const QColor pageGround(244, 244, 244);
const QColor windowGround(255, 255, 255);

} // namespace

class tst_FormLook : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { wearProgramStyle(); }

    void radioShowsTheImageOfItsState_data();
    void radioShowsTheImageOfItsState();
    void disabledButCheckedRadioShowsTheUnenabledImageButTheChosenUnitStaysVisible();
    void stepButtonShowsTheImageOfItsState_data();
    void stepButtonShowsTheImageOfItsState();
    void everyStepButtonShowsItsSign_data();
    void everyStepButtonShowsItsSign();
    void pressedBlueButtonLooksPressedUnderTheMouse_data();
    void pressedBlueButtonLooksPressedUnderTheMouse();
    void sliderIsTwentyThickAndItsHandleFiftyLong_data();
    void sliderIsTwentyThickAndItsHandleFiftyLong();
    void wholeFormIsBold_data();
    void wholeFormIsBold();
    void liveDepthsAndOutputListsAreNinePointSemibold_data();
    void liveDepthsAndOutputListsAreNinePointSemibold();
    void headerRunsFromDarkToLightBlue();
    void disabledValueIsGreyAndEnabledInputIsWhite();
    void controlsOnAPageStandOnThePageColour();
    void scrollBarStandsOutFromItsGround_data();
    void scrollBarStandsOutFromItsGround();
    void lockedTextCanBeReadInTheSun_data();
    void lockedTextCanBeReadInTheSun();

private:
    FormShelf looked; ///< for what only looks at it
};

void tst_FormLook::radioShowsTheImageOfItsState_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("checked");
    QTest::addColumn<bool>("hovered");
    QTest::addColumn<QString>("image");
    QTest::newRow("enabled, checked") << true << true << false << "radio_checked.png";
    QTest::newRow("enabled, unchecked") << true << false << false << "radio_unchecked.png";
    QTest::newRow("disabled, unchecked") << false << false << false << "radio_unenabled.png";
    QTest::newRow("disabled, checked") << false << true << false << "radio_unenabled.png";
    QTest::newRow("unchecked under the mouse") << true << false << true << "radio_unenabled.png";
    QTest::newRow("checked under the mouse") << true << true << true << "radio_checked_hover.png";
}

void tst_FormLook::radioShowsTheImageOfItsState()
{
    QFETCH(bool, enabled);
    QFETCH(bool, checked);
    QFETCH(bool, hovered);
    QFETCH(QString, image);
    FormBench form;
    QVERIFY(form.show({1136, 800}));
    QRadioButton *const radio = form.ui.highAutoRadio;
    radio->setChecked(checked);
    radio->setEnabled(enabled);
    if (hovered) {
        moveMouseTo(radio);
    }
    QCOMPARE(indicatorOf(radio).size(), QSize(25, 25));
    QCOMPARE(seen(radio, indicatorOf(radio)), imageOn(pageGround, image));
}

void tst_FormLook::disabledButCheckedRadioShowsTheUnenabledImageButTheChosenUnitStaysVisible()
{
    FormBench form;
    QVERIFY(form.show({1136, 800}));
    for (QRadioButton *radio :
         {form.ui.highShallowRadio, form.ui.metricRadio, form.ui.imperialRadio}) {
        radio->setEnabled(false);
    }
    QCOMPARE(seen(form.ui.highShallowRadio, indicatorOf(form.ui.highShallowRadio)),
             imageOn(pageGround, QStringLiteral("radio_unenabled.png")));
    QCOMPARE(seen(form.ui.metricRadio, indicatorOf(form.ui.metricRadio)),
             imageOn(windowGround, QStringLiteral("radio_checked_hover.png")));
    QCOMPARE(seen(form.ui.imperialRadio, indicatorOf(form.ui.imperialRadio)),
             imageOn(windowGround, QStringLiteral("radio_unenabled.png")));
    form.ui.imperialRadio->setChecked(true);
    QCOMPARE(seen(form.ui.imperialRadio, indicatorOf(form.ui.imperialRadio)),
             imageOn(windowGround, QStringLiteral("radio_checked_hover.png")));
}

void tst_FormLook::stepButtonShowsTheImageOfItsState_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<QString>("state");
    for (const char *button : {"pingDown", "pingUp"}) {
        for (const char *state : {"enabled", "disabled", "hover", "pressed"}) {
            QTest::addRow("%s %s", button, state) << QByteArray(button) << QString(state);
        }
    }
}

void tst_FormLook::stepButtonShowsTheImageOfItsState()
{
    QFETCH(QByteArray, button);
    QFETCH(QString, state);
    FormBench form;
    QVERIFY(form.show({1136, 800}));
    auto *step = form.find<QPushButton>(button);
    step->setEnabled(state != QLatin1String("disabled"));
    if (state == QLatin1String("hover")) {
        moveMouseTo(step);
    }
    step->setDown(state == QLatin1String("pressed"));
    const QString sign =
        button.endsWith("Up") ? QStringLiteral("plus_%1.png") : QStringLiteral("minus_%1.png");
    QCOMPARE(step->size(), QSize(25, 25));
    QCOMPARE(seen(step, step->rect()), imageOn(windowGround, sign.arg(state)));
}

void tst_FormLook::everyStepButtonShowsItsSign_data()
{
    QTest::addColumn<QString>("image");
    for (const Control &control : controlTable()) {
        const QByteArray name(control.name);
        if (name.endsWith("Down") || name.endsWith("Up")) {
            QTest::newRow(control.name)
                << (name.endsWith("Up") ? "plus_enabled.png" : "minus_enabled.png");
        }
    }
}

void tst_FormLook::everyStepButtonShowsItsSign()
{
    QFETCH(QString, image);
    const QByteArray name(QTest::currentDataTag());
    const FormBench &form = looked.shown({1136, 800}, name.startsWith("low") ? 1 : 0);
    auto *step = form.find<QPushButton>(name);
    const bool onPage = name.startsWith("low") || name.startsWith("high");
    QCOMPARE(seen(step, step->rect()), imageOn(onPage ? pageGround : windowGround, image));
}

void tst_FormLook::pressedBlueButtonLooksPressedUnderTheMouse_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("connect") << "connectToDevice";
    QTest::newRow("reset") << "resetSettings";
    QTest::newRow("open graph") << "openGraph";
}

// A button is always under the mouse while the mouse presses it.
void tst_FormLook::pressedBlueButtonLooksPressedUnderTheMouse()
{
    QFETCH(QString, name);
    FormBench form;
    QVERIFY(form.show({1136, 800}));
    auto *button = form.window.findChild<QPushButton *>(name);
    const QPoint low(button->width() / 2, button->height() - 3);
    moveMouseTo(button);
    const QColor before = seen(button, button->rect()).pixelColor(low);
    button->setDown(true);
    const QColor pressed = seen(button, button->rect()).pixelColor(low);
    QVERIFY2(pressed.green() < before.green() - 60,
             qPrintable(before.name() + " becomes " + pressed.name()));
}

void tst_FormLook::sliderIsTwentyThickAndItsHandleFiftyLong_data()
{
    QTest::addColumn<int>("position");
    for (const SliderSetting &slider : sliderTable()) {
        QTest::newRow(slider.name) << slider.position;
    }
}

// The sheet's border stands around the 50 px of the handle.
void tst_FormLook::sliderIsTwentyThickAndItsHandleFiftyLong()
{
    const QByteArray name(QTest::currentDataTag());
    const FormBench &form = looked.shown({1136, 800}, name.startsWith("low") ? 1 : 0);
    const auto *slider = form.find<QSlider>(name);
    QCOMPARE(slider->style()->pixelMetric(QStyle::PM_SliderThickness, nullptr, slider), 20);
    QCOMPARE(handleOf(slider).width(), 50 + 2);
    QVERIFY2(slider->height() >= handleOf(slider).height(), "the handle is cut off");
}

void tst_FormLook::wholeFormIsBold_data()
{
    QTest::addColumn<int>("row");
    int row = 0;
    for (const Control &control : controlTable()) {
        QTest::newRow(control.name) << row++;
    }
    for (const Caption &caption : captionTable()) {
        QTest::newRow(caption.label) << row++;
    }
}

void tst_FormLook::wholeFormIsBold()
{
    const FormBench &form = looked.shown({1136, 800});
    auto *widget = form.find(QTest::currentDataTag());
    widget->ensurePolished();
    QVERIFY2(widget->font().weight() >= QFont::DemiBold,
             qPrintable(QString::number(widget->font().weight())));
}

void tst_FormLook::liveDepthsAndOutputListsAreNinePointSemibold_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name :
         {"highDepthLabel", "lowDepthLabel", "newBaudComboBox", "formatComboBox"}) {
        QTest::newRow(name) << name;
    }
}

void tst_FormLook::liveDepthsAndOutputListsAreNinePointSemibold()
{
    QFETCH(QString, name);
    const FormBench &form = looked.shown({1136, 800});
    auto *widget = form.window.findChild<QWidget *>(name);
    widget->ensurePolished();
    QCOMPARE(widget->font().family(), QStringLiteral("MS Shell Dlg 2"));
    QCOMPARE(widget->font().pointSize(), 9);
    QCOMPARE(int(widget->font().weight()), QtDifferences::fontWeight(600));
}

void tst_FormLook::headerRunsFromDarkToLightBlue()
{
    const FormBench &form = looked.shown({1136, 800});
    const QImage header = seen(form.ui.widget, form.ui.widget->rect());
    const int middle = header.width() / 2;
    QVERIFY(header.pixelColor(middle, 0).red() < 20);
    QCOMPARE(header.pixelColor(middle, header.height() - 1), QColor(41, 88, 160));
    const QColor underSwitch = seen(form.ui.autoSave, form.ui.autoSave->rect()).pixelColor(0, 0);
    QVERIFY2(underSwitch.blue() > underSwitch.red() + 60, "a light patch on the dark header");
}

void tst_FormLook::disabledValueIsGreyAndEnabledInputIsWhite()
{
    FormBench form;
    QVERIFY(form.show({1136, 800}));
    const auto ground = [](QWidget *edit) {
        return seen(edit, edit->rect()).pixelColor(6, edit->height() / 2);
    };
    for (QWidget *edit : {form.ui.highDraft, form.ui.maxDepthEdit}) {
        QCOMPARE(ground(edit), QColor(255, 255, 255));
        edit->setEnabled(false);
        QCOMPARE(ground(edit), QColor(230, 230, 230));
    }
}

void tst_FormLook::controlsOnAPageStandOnThePageColour()
{
    const FormBench &form = looked.shown({1136, 800});
    for (QWidget *widget : {static_cast<QWidget *>(form.ui.highFreqTab),
                            static_cast<QWidget *>(form.ui.highPulseLabel),
                            static_cast<QWidget *>(form.ui.highDetectSlider)}) {
        QCOMPARE(seen(widget, widget->rect()).pixelColor(0, 0), pageGround);
    }
    QCOMPARE(seen(form.ui.widget_3, form.ui.widget_3->rect()).pixelColor(2, 2), windowGround);
    QCOMPARE(seen(form.ui.widget_36, form.ui.widget_36->rect()).pixelColor(2, 2),
             QColor(229, 229, 229));
}

void tst_FormLook::scrollBarStandsOutFromItsGround_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::newRow("up and down") << Qt::Vertical;
    QTest::newRow("sideways") << Qt::Horizontal;
}

// On deck, in the sun, an operator has to see that there is more form below.
void tst_FormLook::scrollBarStandsOutFromItsGround()
{
    QFETCH(Qt::Orientation, orientation);
    FormBench form;
    QVERIFY(form.show({800, 600}));
    QScrollBar *const bar = orientation == Qt::Vertical ? form.ui.scrollArea->verticalScrollBar()
                                                        : form.ui.scrollArea->horizontalScrollBar();
    QVERIFY(bar->isVisible());
    const QImage shown = seen(bar, bar->rect());
    const QPoint nearEnd = QPoint(shown.width() - 1, shown.height() - 1) - QPoint(8, 8);
    const QPoint nearStart(8, 8); // the form stands at its start, and so does the handle
    const double contrast = contrastOf(shown.pixel(nearStart), shown.pixel(nearEnd));
    QVERIFY2(contrast >= 3, qPrintable(QString("a contrast of %1").arg(contrast)));
    QCOMPARE(shown.pixelColor(nearEnd), QColor(229, 229, 229));
}

void tst_FormLook::lockedTextCanBeReadInTheSun_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name :
         {"portComboBox", "baudComboBox", "newBaudComboBox", "formatComboBox", "pingLabel",
          "pingEdit", "highPulseEdit", "highDraft", "resetSettings"}) {
        QTest::newRow(name) << name;
    }
}

// An operator still wants to know which port and which settings it is that are locked.
void tst_FormLook::lockedTextCanBeReadInTheSun()
{
    QFETCH(QString, name);
    FormBench form;
    QVERIFY(form.show({1136, 800}));
    auto *const control = form.window.findChild<QWidget *>(name);
    control->setEnabled(false);
    const double contrast = contrastOfText(seen(control, control->rect()));
    QVERIFY2(contrast >= 4.5, qPrintable(QString("a contrast of %1").arg(contrast)));
}

QTEST_MAIN(tst_FormLook)
#include "tst_formlook.moc"
