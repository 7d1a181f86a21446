// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "appearance.h"
#include "labelroom.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QtTest>

namespace {

constexpr char longest[] = "HF Depth: 3280.84";
const QString great = "HF Depth: " + QString(40, '9') + ".00";

/// A label between two others in a window that is as narrow as it can be.
struct Row
{
    using GiveRoom = void (*)(QLabel &, const QString &);

    explicit Row(GiveRoom giveRoom)
    {
        label.setAlignment(Qt::AlignCenter);
        label.setTextFormat(Qt::PlainText);
        auto *const layout = new QHBoxLayout(&window);
        for (QLabel *part : {&left, &label, &right}) {
            layout->addWidget(part);
        }
        giveRoom(label, longest);
    }

    int narrowest()
    {
        window.layout()->activate();
        return window.layout()->minimumSize().width();
    }

    QWidget window;
    QLabel left{"left"};
    QLabel label;
    QLabel right{"right"};
};

/// The label's picture when it is this wide.
QImage picture(QLabel &label, int width)
{
    label.setFixedSize(width, 30);
    return label.grab().toImage();
}

} // namespace

Q_DECLARE_METATYPE(Row::GiveRoom)

class LabelRoomTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void noTextWidensTheWindow_data();
    void noTextWidensTheWindow();
    void aLabelGrowsUpToItsLongestText();
    void aKeptRoomIsTheSameWhateverIsShown();
    void aMinimumWidthIsKept_data();
    void aMinimumWidthIsKept();
    void theTextStaysWhole();
    void whatFitsIsDrawnAsEver_data();
    void whatFitsIsDrawnAsEver();
    void whatDoesNotFitEndsInAnEllipsis_data();
    void whatDoesNotFitEndsInAnEllipsis();
    void theGroundOfAStyleSheetIsDrawn();
    void aHeldLabelKeepsItsPlaceForAnyText();

private:
    static void addRoads();
    static void addFormats();
};

void LabelRoomTest::initTestCase() { giveProgramStyle(); }

void LabelRoomTest::addRoads()
{
    QTest::addColumn<Row::GiveRoom>("giveRoom");
    QTest::newRow("growUpTo") << Row::GiveRoom(LabelRoom::growUpTo);
    QTest::newRow("keep") << Row::GiveRoom(LabelRoom::keep);
}

void LabelRoomTest::noTextWidensTheWindow_data() { addRoads(); }

void LabelRoomTest::noTextWidensTheWindow()
{
    QFETCH(Row::GiveRoom, giveRoom);
    Row row(giveRoom);
    row.label.setText(longest);
    const int enough = row.narrowest();
    row.label.setText(great);
    QCOMPARE(row.narrowest(), enough);
}

void LabelRoomTest::aLabelGrowsUpToItsLongestText()
{
    Row row(LabelRoom::growUpTo);
    const int empty = row.narrowest();
    row.label.setText("HF Depth: 1.23");
    const int some = row.narrowest();
    QVERIFY(some > empty);
    row.label.setText(longest);
    QVERIFY(row.narrowest() > some);
}

void LabelRoomTest::aKeptRoomIsTheSameWhateverIsShown()
{
    Row row(LabelRoom::keep);
    const int empty = row.narrowest();
    for (const QString &text : {QString("1"), QString(longest), great}) {
        row.label.setText(text);
        QCOMPARE(row.narrowest(), empty);
    }
}

void LabelRoomTest::aMinimumWidthIsKept_data() { addRoads(); }

void LabelRoomTest::aMinimumWidthIsKept()
{
    QFETCH(Row::GiveRoom, giveRoom);
    QLabel label;
    label.setMinimumWidth(500);
    giveRoom(label, longest);
    QCOMPARE(label.minimumWidth(), 500);
    QVERIFY(label.maximumWidth() >= 500);
}

void LabelRoomTest::theTextStaysWhole()
{
    Row row(LabelRoom::keep);
    row.label.setText(great);
    QCOMPARE(row.label.text(), great);
    row.window.grab();
    QCOMPARE(row.label.text(), great);
}

void LabelRoomTest::addFormats()
{
    QTest::addColumn<Qt::TextFormat>("format");
    QTest::addColumn<QString>("markUp");
    QTest::newRow("plain") << Qt::PlainText << "%1";
    QTest::newRow("rich") << Qt::RichText << "<font color='Green'>%1</font>";
    QTest::newRow("partly bold") << Qt::AutoText << "High Frequency: <b>%1</b>";
}

void LabelRoomTest::whatFitsIsDrawnAsEver_data() { addFormats(); }

void LabelRoomTest::whatFitsIsDrawnAsEver()
{
    QFETCH(Qt::TextFormat, format);
    QFETCH(QString, markUp);
    QLabel plain(markUp.arg("1.23m"));
    QLabel roomy(markUp.arg("1.23m"));
    plain.setTextFormat(format);
    roomy.setTextFormat(format);
    LabelRoom::keep(roomy, longest);
    QCOMPARE(picture(roomy, 250), picture(plain, 250));
}

void LabelRoomTest::whatDoesNotFitEndsInAnEllipsis_data() { addFormats(); }

/// Somewhere among the pictures of all beginnings of the text with an ellipsis behind them is the
/// picture that the label shows.
void LabelRoomTest::whatDoesNotFitEndsInAnEllipsis()
{
    QFETCH(Qt::TextFormat, format);
    QFETCH(QString, markUp);
    constexpr int width = 300;
    const QString digits(60, '9');
    QLabel cut(markUp.arg(digits));
    cut.setTextFormat(format);
    LabelRoom::keep(cut, "1");
    const QImage shown = picture(cut, width);
    int matching = 0;
    for (int length = 1; length < digits.size(); ++length) {
        QLabel whole(markUp.arg(digits.left(length) + QChar(0x2026)));
        whole.setTextFormat(format);
        matching += picture(whole, width) == shown ? length : 0;
    }
    QVERIFY2(matching > 5, qPrintable(QString("matches a text of %1 digits").arg(matching)));
}

void LabelRoomTest::theGroundOfAStyleSheetIsDrawn()
{
    QLabel label(great);
    label.setStyleSheet("background: rgb(10, 20, 30); color: white; padding: 10px;");
    LabelRoom::keep(label, "1");
    const QImage shown = picture(label, 100);
    QCOMPARE(shown.pixelColor(2, 2), QColor(10, 20, 30));
    QCOMPARE(shown.pixelColor(97, 15), QColor(10, 20, 30));
}

/// However much it says, nothing beside it moves.
void LabelRoomTest::aHeldLabelKeepsItsPlaceForAnyText()
{
    Row row(LabelRoom::holdAsItIs);
    row.label.setWordWrap(true);
    row.label.setFixedHeight(36);
    row.label.setMinimumWidth(50);
    row.window.setFixedWidth(300);
    row.window.show();
    const QRect place = row.label.geometry();
    const int narrowest = row.narrowest();
    row.label.setText(QString("a long text that wraps, ").repeated(100));
    QCOMPARE(row.narrowest(), narrowest);
    QCOMPARE(row.window.layout()->hasHeightForWidth(), false);
    QCOMPARE(row.label.geometry(), place);
}

QTEST_MAIN(LabelRoomTest)
#include "tst_labelroom.moc"
