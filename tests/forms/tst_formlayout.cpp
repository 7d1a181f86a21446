// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "formeyes.h"
#include "formplaces.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStyleOptionComboBox>

namespace {

constexpr int usualPoints = 9; // of the letters

QList<QWidget *> visibleWidgetsOf(const FormBench &form)
{
    QList<QWidget *> visible;
    const auto widgets = form.ui.scrollAreaWidgetContents->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const bool partOfAControl = qobject_cast<QComboBox *>(widget->parent()) != nullptr ||
                                    qobject_cast<QLineEdit *>(widget->parent()) != nullptr ||
                                    widget->objectName().startsWith(QLatin1String("qt_")) ||
                                    widget->objectName().isEmpty();
        if (widget->isVisible() && !partOfAControl) {
            visible << widget;
        }
    }
    return visible;
}

QString placeOf(const QWidget *widget)
{
    const QRect place = widget->geometry();
    return QStringLiteral("%1 at %2,%3 %4 x %5")
        .arg(widget->objectName())
        .arg(place.x())
        .arg(place.y())
        .arg(place.width())
        .arg(place.height());
}

/// What is needed to show all of the text; empty for widgets without one.
QSize neededFor(const QWidget *widget)
{
    const auto *label = qobject_cast<const QLabel *>(widget);
    if (label != nullptr && label->wordWrap()) {
        return {0, label->heightForWidth(label->width())};
    }
    const auto *button = qobject_cast<const QAbstractButton *>(widget);
    const bool hasText = (label != nullptr && !label->text().isEmpty()) ||
                         (button != nullptr && !button->text().isEmpty());
    return hasText ? widget->sizeHint() : QSize(0, 0);
}

int roomForTextIn(const QComboBox *list)
{
    QStyleOptionComboBox option;
    option.initFrom(list);
    return list->style()
        ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, list)
        .width();
}

/// Where every widget of the form stands.
QHash<QString, QRect> placesOf(const FormBench &form)
{
    QHash<QString, QRect> places;
    for (const QWidget *widget : visibleWidgetsOf(form)) {
        places.insert(widget->objectName(), QRect(placeInWindow(widget), widget->size()));
    }
    return places;
}

/// The middle, in the window and in pixels, of what is drawn in a widget over its ground.
double middleOfInk(QWidget *widget)
{
    const QImage image = seen(widget, widget->rect());
    int top = image.height();
    int bottom = -1;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (contrastOf(image.pixel(x, y), image.pixel(0, 0)) > 1.5) {
                top = std::min(top, y);
                bottom = std::max(bottom, y);
            }
        }
    }
    return placeInWindow(widget).y() + (top + bottom + 1) / 2.0 / widget->devicePixelRatioF();
}

void addSizes()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("page");
    QTest::addColumn<int>("points");
    for (const int points : {usualPoints, 11}) {
        for (const QSize size : {startSize, formSize, QSize(800, 600), QSize(1920, 1080)}) {
            for (const int page : {0, 1}) {
                QTest::addRow("%d x %d, tab %d, %d pt", size.width(), size.height(), page, points)
                    << size << page << points;
            }
        }
    }
}

} // namespace

class tst_FormLayout : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { wearProgramStyle(); }

    void nothingOverlapsOrLeavesItsParent_data() { addSizes(); }
    void nothingOverlapsOrLeavesItsParent();
    void noTextIsCut_data() { addSizes(); }
    void noTextIsCut();
    void everyChoiceOfAListCanBeRead_data();
    void everyChoiceOfAListCanBeRead();
    void typedValuesFit_data();
    void typedValuesFit();
    void everythingIsSeenAtTheStartSize();
    void theFormIsNotWiderThanItsWindow();
    void helpIconStandsOnTheMiddleOfItsHeading_data();
    void helpIconStandsOnTheMiddleOfItsHeading();
    void smallWindowScrollsToEveryCorner();
    void messagesMoveNothing();
    void connectButtonKeepsItsWidth();
    void formShrinksWithoutTheDetails();
    void formIsNeverSquashed_data();
    void formIsNeverSquashed();
    void outputRowStandsOnOneLine();

private:
    /// The size of the letters is the desktop's.
    void useFont(int points)
    {
        const QFont font(QStringLiteral("DejaVu Sans"), points);
        if (QApplication::font() != font) {
            plain.clear();
            filled.clear();
            QApplication::setFont(font);
        }
    }

    // For what only looks at a form.
    FormShelf plain;
    FormShelf filled{fillWithLongTexts};
};

void tst_FormLayout::nothingOverlapsOrLeavesItsParent()
{
    QFETCH(QSize, size);
    QFETCH(int, page);
    QFETCH(int, points);
    useFont(points);
    const FormBench &form = filled.shown(size, page);
    const QList<QWidget *> widgets = visibleWidgetsOf(form);
    QVERIFY2(widgets.size() > 80, "the form has not been laid out");
    for (const QWidget *widget : widgets) {
        QVERIFY2(widget->parentWidget()->rect().contains(widget->geometry()),
                 qPrintable(placeOf(widget) + " leaves " + placeOf(widget->parentWidget())));
        for (const QWidget *other : widgets) {
            const bool siblings = other != widget && other->parent() == widget->parent();
            if (siblings && other->geometry().intersects(widget->geometry())) {
                QFAIL(qPrintable(placeOf(widget) + " overlaps " + placeOf(other)));
            }
        }
    }
}

void tst_FormLayout::noTextIsCut()
{
    QFETCH(QSize, size);
    QFETCH(int, page);
    QFETCH(int, points);
    useFont(points);
    const FormBench &form = filled.shown(size, page);
    for (const QWidget *widget : visibleWidgetsOf(form)) {
        const QSize needed = neededFor(widget);
        QVERIFY2(
            needed.width() <= widget->width() && needed.height() <= widget->height(),
            qPrintable(placeOf(widget) +
                       QStringLiteral(" needs %1 x %2").arg(needed.width()).arg(needed.height())));
    }
}

void tst_FormLayout::everyChoiceOfAListCanBeRead_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("choice");
    QTest::addColumn<int>("width");
    for (const int width : {startSize.width(), formSize.width(), 800}) {
        const auto choice = [width](const char *list, const char *text) {
            QTest::addRow("%s in %s, %d wide", text, list, width) << list << text << width;
        };
        choice("portComboBox", "Select Port");
        choice("portComboBox", "/dev/ttyUSB0");
        choice("baudComboBox", "Select Rate");
        choice("baudComboBox", "115200");
        choice("newBaudComboBox", "115200");
        choice("formatComboBox", "SONARMITE DUAL");
    }
}

void tst_FormLayout::everyChoiceOfAListCanBeRead()
{
    QFETCH(QString, list);
    QFETCH(QString, choice);
    QFETCH(int, width);
    useFont(usualPoints);
    const FormBench &form = filled.shown({width, 800});
    const auto *box = form.window.findChild<QComboBox *>(list);
    const int needed = box->fontMetrics().horizontalAdvance(choice);
    QVERIFY2(needed <= roomForTextIn(box),
             qPrintable(QStringLiteral("%1 px for %2 px").arg(roomForTextIn(box)).arg(needed)));
}

void tst_FormLayout::typedValuesFit_data()
{
    QTest::addColumn<QString>("value");
    QTest::newRow("pingEdit") << "10";
    QTest::newRow("soundVelocityEdit") << "5741.47";
    QTest::newRow("maxDepthEdit") << "328.084";
    QTest::newRow("highDraft") << "32.81";
    QTest::newRow("lowBlank") << "32.81";
    QTest::newRow("highFreq") << "210";
}

void tst_FormLayout::typedValuesFit()
{
    QFETCH(QString, value);
    useFont(usualPoints);
    const FormBench &form = plain.shown(startSize);
    const auto *edit = form.find<QLineEdit>(QTest::currentDataTag());
    QVERIFY(edit->fontMetrics().horizontalAdvance(value) + 12 <= edit->width());
    QVERIFY(edit->height() >= edit->fontMetrics().height() + 6);
}

void tst_FormLayout::everythingIsSeenAtTheStartSize()
{
    useFont(usualPoints);
    FormBench form;
    form.ui.widget_41->setMinimumSize(0, 80);
    QVERIFY(form.show(startSize));
    fillWithLongTexts(form.ui);
    QVERIFY(!form.ui.scrollArea->verticalScrollBar()->isVisible());
    QVERIFY(!form.ui.scrollArea->horizontalScrollBar()->isVisible());
}

void tst_FormLayout::theFormIsNotWiderThanItsWindow()
{
    useFont(usualPoints);
    const FormBench &form = filled.shown({formSize.width(), 600});
    QVERIFY(form.ui.scrollArea->verticalScrollBar()->isVisible());
    QVERIFY(!form.ui.scrollArea->horizontalScrollBar()->isVisible());
}

void tst_FormLayout::smallWindowScrollsToEveryCorner()
{
    useFont(usualPoints);
    FormBench form;
    QVERIFY(form.show({800, 600}));
    for (QWidget *corner :
         {static_cast<QWidget *>(form.ui.label_35), static_cast<QWidget *>(form.ui.metricRadio),
          static_cast<QWidget *>(form.ui.hamburgerButton),
          static_cast<QWidget *>(form.ui.headerLabel)}) {
        form.ui.scrollArea->ensureWidgetVisible(corner, 0, 0);
        const QRect seen = corner->visibleRegion().boundingRect();
        QVERIFY2(seen == corner->rect(), qPrintable(corner->objectName()));
    }
}

void tst_FormLayout::messagesMoveNothing()
{
    useFont(usualPoints);
    FormBench form;
    QVERIFY(form.show(startSize));
    const QHash<QString, QRect> before = placesOf(form);
    fillWithLongTexts(form.ui);
    const QHash<QString, QRect> after = placesOf(form);
    const QStringList own{"soundVelocityLabel", "maxDepthLabel", "highDepthLabel", "lowDepthLabel",
                          "label_34",           "label_33",      "label_24"};
    const QStringList rightAligned{"widget_41", "label_36", "label_35"};
    for (auto place = before.cbegin(); place != before.cend(); ++place) {
        const QRect now = after.value(place.key());
        const bool stands = rightAligned.contains(place.key())
                                ? now.topRight() == place.value().topRight()
                                : now == place.value();
        QVERIFY2(stands || own.contains(place.key()), qPrintable(place.key() + " moved"));
    }
}

void tst_FormLayout::connectButtonKeepsItsWidth()
{
    useFont(usualPoints);
    FormBench form;
    QVERIFY(form.show(startSize));
    form.ui.connectToDevice->setText(QStringLiteral("Connect   "));
    QCoreApplication::sendPostedEvents();
    const QRect connect = form.ui.connectToDevice->geometry();
    form.ui.connectToDevice->setText(QStringLiteral("Disconnect"));
    QCoreApplication::sendPostedEvents();
    QCOMPARE(form.ui.connectToDevice->geometry(), connect);
}

void tst_FormLayout::formShrinksWithoutTheDetails()
{
    useFont(usualPoints);
    FormBench form;
    form.ui.scrollAreaWidgetContents->setMinimumHeight(600);
    QVERIFY(form.show({1136, 700}));
    const int with = form.ui.scrollAreaWidgetContents->minimumSizeHint().height();
    form.ui.widget_40->hide();
    QTRY_VERIFY(form.ui.scrollAreaWidgetContents->minimumSizeHint().height() < with);
}

void tst_FormLayout::formIsNeverSquashed_data()
{
    QTest::addColumn<bool>("texts");
    QTest::newRow("before anything is said") << false;
    QTest::newRow("with messages") << true;
}

// The window gives the form without its details less height than the form needs.
void tst_FormLayout::formIsNeverSquashed()
{
    QFETCH(bool, texts);
    useFont(usualPoints);
    FormBench form;
    QVERIFY(form.show({800, 600}));
    if (texts) {
        fillWithLongTexts(form.ui);
    }
    form.ui.scrollAreaWidgetContents->setMinimumHeight(600);
    form.ui.widget_40->hide();
    const QWidget *contents = form.ui.scrollAreaWidgetContents;
    QTRY_VERIFY(form.ui.widget_36->height() < 60);
    QVERIFY2(contents->height() >= contents->layout()->minimumSize().height(),
             qPrintable(QString("%1 px for %2")
                            .arg(contents->height())
                            .arg(contents->layout()->minimumSize().height())));
}

void tst_FormLayout::outputRowStandsOnOneLine()
{
    useFont(usualPoints);
    const FormBench &form = plain.shown(startSize);
    const QWidget *const caption = form.ui.openGraphLabel;
    for (const QWidget *other :
         {form.ui.newBaudLabel, form.ui.formatLabel, form.ui.resetLabel, form.ui.saveLabel}) {
        QCOMPARE(placeInWindow(other).y(), placeInWindow(caption).y());
    }
    const QWidget *const button = form.ui.openGraph;
    for (const QWidget *other : {static_cast<QWidget *>(form.ui.newBaudComboBox),
                                 static_cast<QWidget *>(form.ui.formatComboBox),
                                 static_cast<QWidget *>(form.ui.resetSettings),
                                 static_cast<QWidget *>(form.ui.saveSettingsToDevice)}) {
        QCOMPARE(placeInWindow(other).y(), placeInWindow(button).y());
        QCOMPARE(other->height(), button->height());
    }
}

void tst_FormLayout::helpIconStandsOnTheMiddleOfItsHeading_data()
{
    QTest::addColumn<QString>("heading");
    QTest::newRow("selectRateInfo") << "selectPortLabel";
    QTest::newRow("commonSettingsInfo") << "commonSettingsLabel";
    for (const QString what : {"Enable", "Mode", "TVG", "Inputs", "Pulse", "Gain", "Detect"}) {
        const QString label = what == "TVG" ? "highTvgLabel" : "high" + what + "Label";
        QTest::newRow(qPrintable("high" + what + "Info")) << label;
    }
}

/// Capitals alone: what hangs below the line does not count for the eye.
void tst_FormLayout::helpIconStandsOnTheMiddleOfItsHeading()
{
    QFETCH(QString, heading);
    FormBench form;
    QVERIFY(form.show(startSize));
    auto *const label = form.find<QLabel>(qPrintable(heading));
    label->setText("HEH");
    auto *const button = form.find<QPushButton>(QTest::currentDataTag());
    button->setEnabled(true);
    QCoreApplication::sendPostedEvents();
    const double difference = middleOfInk(button) - middleOfInk(label);
    QVERIFY2(qAbs(difference) <= 1.0, qPrintable(QString::number(difference)));
}

QTEST_MAIN(tst_FormLayout)
#include "tst_formlayout.moc"
