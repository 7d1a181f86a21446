// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "appearance.h"
#include "readybench.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QWheelEvent>

namespace {

const QStringList sliders{"highPulseSlider",    "highGainSlider",   "highDetectSlider",
                          "highBlankingSlider", "lowPulseSlider",   "lowGainSlider",
                          "lowDetectSlider",    "lowBlankingSlider"};

const QStringList lists{"portComboBox", "baudComboBox", "newBaudComboBox", "formatComboBox"};

/// The wheel turned over a widget. The event goes the way of a real one, which it must seem to be:
/// from the widget up through its parents until one takes it.
void turnWheel(QWidget *widget, int notches)
{
    constexpr int perNotch = 120;
    const QPointF place = widget->rect().center();
    QWheelEvent event(place, widget->mapToGlobal(place.toPoint()), QPoint(),
                      QPoint(0, notches * perNotch), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(widget, &event);
}

/// A slider's position, a list's place.
int valueOf(const QWidget *control)
{
    const auto *const slider = qobject_cast<const QSlider *>(control);
    return slider != nullptr ? slider->value()
                             : qobject_cast<const QComboBox *>(control)->currentIndex();
}

/// A connected window too small for its form, which thus can scroll either way from its middle.
class SmallBench : public ReadyBench
{
public:
    SmallBench()
    {
        window.resize(700, 400);
        if (!QTest::qWaitFor([this] { return scroll()->maximum() > 200; })) {
            qFatal("the form does not scroll in a small window");
        }
        scroll()->setValue(scroll()->maximum() / 2);
    }

    QScrollBar *scroll() { return find<QScrollArea>("scrollArea")->verticalScrollBar(); }

    /// Shows the control's tab and frees a control that only a disconnected window offers.
    QWidget *reach(const QString &name)
    {
        openTab(name.startsWith("low") ? "low" : "high");
        auto *const control = find<QWidget>(name);
        control->setEnabled(true);
        return control;
    }
};

void addNames(const QStringList &names)
{
    for (const QString &name : names) {
        QTest::addRow("%s", qPrintable(name)) << name;
    }
}

} // namespace

class WheelGuardTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { bench.reset(); }
    void init();

    void withoutFocusTheWheelScrollsTheForm_data() { addControls(); }
    void withoutFocusTheWheelScrollsTheForm();
    void withFocusTheWheelMovesTheSlider_data();
    void withFocusTheWheelMovesTheSlider();
    void withFocusTheWheelMovesTheList();
    void theWheelGivesNoFocus_data() { addControls(); }
    void theWheelGivesNoFocus();
    void aClickAndTheTabKeyGiveFocus_data() { addControls(); }
    void aClickAndTheTabKeyGiveFocus();
    void aGreyedControlScrollsTheForm();
    void anOpenListScrollsItself();

private:
    static void addControls();

    std::unique_ptr<SmallBench> bench;
};

void WheelGuardTest::initTestCase()
{
    giveProgramStyle();
    bench = std::make_unique<SmallBench>();
}

void WheelGuardTest::init()
{
    bench->window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&bench->window));
    bench->find<QPushButton>("connectToDevice")->setFocus();
    bench->scroll()->setValue(bench->scroll()->maximum() / 2);
}

void WheelGuardTest::addControls()
{
    QTest::addColumn<QString>("name");
    addNames(sliders + lists);
}

void WheelGuardTest::withoutFocusTheWheelScrollsTheForm()
{
    QFETCH(QString, name);
    QWidget *const control = bench->reach(name);
    const int value = valueOf(control);
    const int scrolled = bench->scroll()->value();
    turnWheel(control, -1);
    QVERIFY2(bench->scroll()->value() > scrolled, "the form does not scroll down");
    turnWheel(control, 1);
    turnWheel(control, 1);
    QVERIFY2(bench->scroll()->value() < scrolled, "the form does not scroll up");
    QCOMPARE(valueOf(control), value);
    QVERIFY2(!bench->hasPendingChange(), "the wheel has changed a setting");
}

void WheelGuardTest::withFocusTheWheelMovesTheSlider_data()
{
    QTest::addColumn<QString>("name");
    addNames(sliders);
}

void WheelGuardTest::withFocusTheWheelMovesTheSlider()
{
    QFETCH(QString, name);
    QWidget *const control = bench->reach(name);
    control->setFocus();
    const int value = valueOf(control);
    const int scrolled = bench->scroll()->value();
    turnWheel(control, 1);
    QVERIFY(valueOf(control) > value);
    QCOMPARE(bench->scroll()->value(), scrolled);
    QVERIFY2(bench->hasPendingChange(), "the slider moved, and the setting did not follow");
    QCOMPARE(bench->takeCommands().size(), 1);
}

void WheelGuardTest::withFocusTheWheelMovesTheList()
{
    QWidget *const list = bench->reach("formatComboBox");
    list->setFocus();
    const int place = valueOf(list);
    turnWheel(list, -1);
    QCOMPARE(valueOf(list), place + 1);
    QCOMPARE(bench->takeCommands().size(), 1);
}

void WheelGuardTest::theWheelGivesNoFocus()
{
    QFETCH(QString, name);
    QWidget *const control = bench->reach(name);
    turnWheel(control, -1);
    QVERIFY(!control->hasFocus());
    QVERIFY((control->focusPolicy() & Qt::WheelFocus) != Qt::WheelFocus);
}

void WheelGuardTest::aClickAndTheTabKeyGiveFocus()
{
    QFETCH(QString, name);
    QCOMPARE(bench->reach(name)->focusPolicy(), Qt::StrongFocus);
}

void WheelGuardTest::aGreyedControlScrollsTheForm()
{
    QWidget *const slider = bench->reach("highPulseSlider");
    slider->setEnabled(false);
    const int value = valueOf(slider);
    const int scrolled = bench->scroll()->value();
    turnWheel(slider, -1);
    QVERIFY(bench->scroll()->value() > scrolled);
    QCOMPARE(valueOf(slider), value);
}

/// The list that drops down is a window of its own, where the wheel belongs to its entries.
void WheelGuardTest::anOpenListScrollsItself()
{
    auto *const list = qobject_cast<QComboBox *>(bench->reach("formatComboBox"));
    list->showPopup();
    const int place = list->currentIndex();
    const int scrolled = bench->scroll()->value();
    turnWheel(list->view()->viewport(), -1);
    QCOMPARE(bench->scroll()->value(), scrolled);
    QCOMPARE(list->currentIndex(), place);
    list->hidePopup();
}

QTEST_MAIN(WheelGuardTest)
#include "tst_wheelguard.moc"
