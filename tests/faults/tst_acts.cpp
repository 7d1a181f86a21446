// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// An operator who does anything at any time, and a sounder that answers as it likes. A seed that
// fails is a row worth keeping.

#include "faultbench.h"

#include "dialoghand.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QSlider>
#include <QtTest>

#include <random>

namespace {

class Operator
{
public:
    Operator(FaultBench &itsBench, unsigned seed)
        : bench(itsBench)
        , dice(seed)
    {}

    void act()
    {
        using Act = void (Operator::*)();
        constexpr Act acts[] = {&Operator::clickSomething, &Operator::clickSomething,
                                &Operator::clickSomething, &Operator::typeSomething,
                                &Operator::slideSomething, &Operator::chooseSomething,
                                &Operator::hearSomething,  &Operator::hearSomething,
                                &Operator::wait,           &Operator::connectOrNot};
        (this->*acts[upTo(std::size(acts))])();
        QCoreApplication::processEvents();
    }

private:
    std::size_t upTo(std::size_t end) { return dice() % end; }

    /// One of the controls of this kind that can be used now; nullptr if there is none.
    template <typename Control>
    Control *any()
    {
        QList<Control *> usable;
        for (Control *control : bench.window.findChildren<Control *>()) {
            if (control->isVisible() && control->isEnabled()) {
                usable << control;
            }
        }
        return usable.isEmpty()
                   ? nullptr
                   : usable.at(static_cast<int>(upTo(static_cast<std::size_t>(usable.size()))));
    }

    void clickSomething()
    {
        if (auto *const button = any<QAbstractButton>()) {
            const DialogHand<QDialog> hand([](QDialog &dialog) { dialog.reject(); });
            QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(12, button->height() / 2));
        }
    }

    void typeSomething()
    {
        static const char *const texts[] = {"",    "5",   "0.45", "-1", "99999999999",
                                            "1,5", "abc", "1e9"};
        if (auto *const edit = any<QLineEdit>()) {
            edit->selectAll();
            QTest::keyClicks(edit, texts[upTo(std::size(texts))]);
            QTest::keyClick(edit, Qt::Key_Return);
        }
    }

    void slideSomething()
    {
        constexpr Qt::Key keys[] = {Qt::Key_Home, Qt::Key_End, Qt::Key_PageUp, Qt::Key_Left};
        if (auto *const slider = any<QSlider>()) {
            QTest::keyClick(slider, keys[upTo(std::size(keys))]);
        }
    }

    void chooseSomething()
    {
        auto *const list = any<QComboBox>();
        if (list != nullptr && list->count() > 0) {
            list->setCurrentIndex(static_cast<int>(upTo(static_cast<std::size_t>(list->count()))));
        }
    }

    void hearSomething()
    {
        static const QByteArray lines[] = {"OK",
                                           "OK",
                                           "ERR",
                                           "TalVero New Dual 2.14.7",
                                           "TalVero New HF 1.0.0",
                                           "*i07,v1480000,s50000,I9600,a1,H1,L0",
                                           "*Hcm,HlT,Hg100,Hp99",
                                           "*Lca,LlW,Lw35",
                                           " et B 00123 00131",
                                           "\xFF\xFE\x80"};
        bench.say(lines[upTo(std::size(lines))]);
    }

    void wait() { QTest::qWait(static_cast<int>(upTo(30))); }

    void connectOrNot()
    {
        if (bench.isOffline()) {
            bench.pressConnectRaw(upTo(4) == 0 ? "Auto" : "9600");
            bench.say("TalVero New Dual 2.14.7");
        } else if (upTo(4) == 0) {
            bench.click("connectToDevice");
        }
    }

    FaultBench &bench;
    std::mt19937 dice;
};

} // namespace

class TestActs : public FaultTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void anOperatorWhoDoesAnything_data();
    void anOperatorWhoDoesAnything();

private:
    void doAnything(unsigned seed, int acts);
};

/// The graph and the first operator make what is made once.
void TestActs::initTestCase()
{
    bench = std::make_unique<FaultBench>();
    const int pixelsPerDot = qRound(bench->window.devicePixelRatioF());
    bench->heapAllowed = FaultLimits::heapBytesWithGraph * pixelsPerDot * pixelsPerDot;
    bench->keepAnswerTime(250);
    bench->timer("commandTimer")->setInterval(20);
    QVERIFY(bench->connectReady());
    bench->click("openGraph");
    bench->flood(" et B 00123 00131\r\n", 300);
    doAnything(1, shortOrLong(150, 600));
}

void TestActs::doAnything(unsigned seed, int acts)
{
    const bool wasImperial = bench->isChecked("imperialRadio");
    Operator someone(*bench, seed);
    for (int act = 0; act < acts; ++act) {
        someone.act();
    }
    if (!bench->isOffline()) {
        bench->click("connectToDevice");
    }
    bench->click(wasImperial ? "imperialRadio" : "metricRadio");
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window != &bench->window) {
            window->close();
        }
    }
}

void TestActs::anOperatorWhoDoesAnything_data()
{
    QTest::addColumn<unsigned>("seed");
    for (unsigned seed = 2; seed < 2U + shortOrLong(2U, 10U); ++seed) {
        QTest::addRow("%d acts, seed %u", shortOrLong(100, 200), seed) << seed;
    }
}

void TestActs::anOperatorWhoDoesAnything()
{
    QFETCH(unsigned, seed);
    doAnything(seed, shortOrLong(100, 200));
    QVERIFY(bench->isOffline());
    bench->forgetWhatWasSaid(); // an old OK may end an attempt, see tst_linkclosing
    QVERIFY2(bench->connectReady(), "afterwards the window does not connect");
}

QTEST_MAIN(TestActs)
#include "tst_acts.moc"
