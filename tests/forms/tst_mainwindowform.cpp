// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "formbench.h"
#include "formtable.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QSlider>

#include <algorithm>

namespace {

QString groupOf(const QWidget *widget)
{
    const auto *button = qobject_cast<const QAbstractButton *>(widget);
    return button != nullptr && button->group() != nullptr ? button->group()->objectName()
                                                           : QString();
}

QString textOf(const QWidget *widget)
{
    if (const auto *combo = qobject_cast<const QComboBox *>(widget)) {
        return combo->currentText();
    }
    return widget->property("text").toString();
}

bool isControl(const QWidget *widget)
{
    return qobject_cast<const QPushButton *>(widget) != nullptr ||
           qobject_cast<const QRadioButton *>(widget) != nullptr ||
           qobject_cast<const QComboBox *>(widget) != nullptr ||
           qobject_cast<const QLineEdit *>(widget) != nullptr ||
           qobject_cast<const QSlider *>(widget) != nullptr;
}

QStringList namesOf(const std::vector<Control> &controls)
{
    QStringList names;
    for (const Control &control : controls) {
        names << QLatin1String(control.name);
    }
    return names;
}

} // namespace

class tst_MainWindowForm : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        wearProgramStyle();
        untouched = std::make_unique<FormBench>();
    }

    void windowIsNamedAndSized();
    void formScrollsInsideTheWindow();
    void tabsAreNamedAndTheHighFrequencyIsShownFirst();
    void controlIsAsTheTableSays_data();
    void controlIsAsTheTableSays();
    void formHasNoControlsBeyondTheTable();
    void sliderHasItsRangeAndSteps_data();
    void sliderHasItsRangeAndSteps();
    void captionReadsAsTheTableSays_data();
    void captionReadsAsTheTableSays();
    void everyCaptionOfAControlIsInTheTable();
    void buttonShowsItsIcon_data();
    void buttonShowsItsIcon();
    void listHoldsOnlyItsPlaceholder_data();
    void listHoldsOnlyItsPlaceholder();
    void valuesAreCentred_data();
    void valuesAreCentred();
    void addressesAreAtTheRight();
    void retranslationRestoresTheTexts();

private:
    std::unique_ptr<const FormBench> untouched; ///< for what only looks at it
};

void tst_MainWindowForm::windowIsNamedAndSized()
{
    const FormBench &form = *untouched;
    QCOMPARE(form.window.size(), QSize(1020, 947));
    QCOMPARE(form.window.windowTitle(), QStringLiteral("TAL-VERO Connect"));
    QVERIFY2(!form.window.windowIcon().isNull(), "the window has no icon");
    const QIcon logo(QStringLiteral(":/resourcefiles/images/brimlogo.ico"));
    QCOMPARE(form.window.windowIcon().pixmap(16).toImage(), logo.pixmap(16).toImage());
    QVERIFY(form.find("statusbar") != nullptr);
}

void tst_MainWindowForm::formScrollsInsideTheWindow()
{
    const FormBench &form = *untouched;
    auto *area = form.find<QScrollArea>("scrollArea");
    QCOMPARE(area->parentWidget(), form.window.centralWidget());
    QVERIFY2(area->widgetResizable(), "the form does not follow the size of the window");
    QCOMPARE(area->widget()->objectName(), QStringLiteral("scrollAreaWidgetContents"));
}

void tst_MainWindowForm::tabsAreNamedAndTheHighFrequencyIsShownFirst()
{
    const FormBench &form = *untouched;
    QCOMPARE(form.ui.h->parentWidget()->objectName(), QStringLiteral("tabsHolder"));
    QCOMPARE(form.ui.h->count(), 2);
    QCOMPARE(form.ui.h->currentIndex(), 0);
    QCOMPARE(form.ui.h->widget(0), form.ui.highFreqTab);
    QCOMPARE(form.ui.h->widget(1), form.ui.lowFreqTab);
    QCOMPARE(form.ui.h->tabText(0), QStringLiteral("High Frequency"));
    QCOMPARE(form.ui.h->tabText(1), QStringLiteral("Low Frequency"));
}

void tst_MainWindowForm::controlIsAsTheTableSays_data()
{
    QTest::addColumn<int>("row");
    int row = 0;
    for (const Control &control : controlTable()) {
        QTest::newRow(control.name) << row++;
    }
}

void tst_MainWindowForm::controlIsAsTheTableSays()
{
    QFETCH(int, row);
    const Control &expected = controlTable().at(static_cast<size_t>(row));
    const FormBench &form = *untouched;
    const auto *control = form.find(expected.name);
    QVERIFY(control != nullptr);
    QCOMPARE(control->metaObject()->className(), expected.kind);
    QCOMPARE(textOf(control), QString::fromLatin1(expected.text));
    QCOMPARE(control->cursor().shape(), expected.cursor);
    QCOMPARE(groupOf(control), QString::fromLatin1(expected.group));
    QCOMPARE(control->property("checked").toBool(), expected.checked);
    QCOMPARE(control->isEnabledTo(&form.window), expected.enabled);
}

void tst_MainWindowForm::formHasNoControlsBeyondTheTable()
{
    const FormBench &form = *untouched;
    const QStringList known = namesOf(controlTable());
    const auto widgets = form.window.centralWidget()->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (isControl(widget) && !widget->objectName().startsWith(QLatin1String("qt_"))) {
            QVERIFY2(known.contains(widget->objectName()), qPrintable(widget->objectName()));
        }
    }
}

void tst_MainWindowForm::sliderHasItsRangeAndSteps_data()
{
    QTest::addColumn<int>("row");
    int row = 0;
    for (const SliderSetting &slider : sliderTable()) {
        QTest::newRow(slider.name) << row++;
    }
}

void tst_MainWindowForm::sliderHasItsRangeAndSteps()
{
    QFETCH(int, row);
    const SliderSetting &expected = sliderTable().at(static_cast<size_t>(row));
    const FormBench &form = *untouched;
    const auto *slider = form.find<QSlider>(expected.name);
    QVERIFY(slider != nullptr);
    QCOMPARE(slider->orientation(), Qt::Horizontal);
    QCOMPARE(slider->minimum(), expected.minimum);
    QCOMPARE(slider->maximum(), expected.maximum);
    QCOMPARE(slider->singleStep(), expected.singleStep);
    QCOMPARE(slider->pageStep(), expected.pageStep);
    QCOMPARE(slider->value(), expected.position);
    QCOMPARE(slider->sliderPosition(), expected.position);
}

void tst_MainWindowForm::captionReadsAsTheTableSays_data()
{
    QTest::addColumn<int>("row");
    int row = 0;
    for (const Caption &caption : captionTable()) {
        QTest::newRow(caption.label) << row++;
    }
}

void tst_MainWindowForm::captionReadsAsTheTableSays()
{
    QFETCH(int, row);
    const Caption &expected = captionTable().at(static_cast<size_t>(row));
    const FormBench &form = *untouched;
    const auto *label = form.find<QLabel>(expected.label);
    QVERIFY(label != nullptr);
    QCOMPARE(label->text(), QString::fromUtf8(expected.text));
    const QString named = label->buddy() == nullptr ? QString() : label->buddy()->objectName();
    QCOMPARE(named, QString::fromLatin1(expected.control));
}

void tst_MainWindowForm::everyCaptionOfAControlIsInTheTable()
{
    QStringList known;
    for (const Caption &caption : captionTable()) {
        known << QLatin1String(caption.label);
    }
    FormBench form;
    const auto labels = form.window.findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        QVERIFY2(label->buddy() == nullptr || known.contains(label->objectName()),
                 qPrintable(label->objectName()));
    }
}

void tst_MainWindowForm::buttonShowsItsIcon_data()
{
    QTest::addColumn<QString>("image");
    QTest::newRow("selectRateInfo") << "help-icon.png";
    QTest::newRow("connectToDevice") << "connected.png";
    QTest::newRow("openGraph") << "graph_icon.png";
    QTest::newRow("saveSettingsToDevice") << "save_icon.png";
    QTest::newRow("hamburgerButton") << "hamburger-menu-icon.png";
    QTest::newRow("commonSettingsInfo") << "info_border.png";
    for (const Control &control : controlTable()) {
        if (QByteArray(control.name).endsWith("Info") && control.enabled &&
            qstrcmp(control.name, "selectRateInfo") != 0) {
            QTest::newRow(control.name) << "info_border.png";
        }
    }
}

void tst_MainWindowForm::buttonShowsItsIcon()
{
    QFETCH(QString, image);
    const FormBench &form = *untouched;
    const auto *button = form.find<QPushButton>(QTest::currentDataTag());
    QVERIFY(button != nullptr);
    const QImage drawn = button->icon().pixmap(button->iconSize()).toImage();
    QVERIFY2(!drawn.isNull(), "the button shows no icon");
    const QIcon expected(QStringLiteral(":/resourcefiles/images/") + image);
    QCOMPARE(drawn, expected.pixmap(button->iconSize()).toImage());
}

void tst_MainWindowForm::listHoldsOnlyItsPlaceholder_data()
{
    QTest::addColumn<QString>("placeholder");
    QTest::newRow("portComboBox") << "Select Port";
    QTest::newRow("baudComboBox") << "Select Rate";
    QTest::newRow("newBaudComboBox") << "Baud Rate";
    QTest::newRow("formatComboBox") << "NMEA DBS";
}

void tst_MainWindowForm::listHoldsOnlyItsPlaceholder()
{
    QFETCH(QString, placeholder);
    const FormBench &form = *untouched;
    const auto *list = form.find<QComboBox>(QTest::currentDataTag());
    QVERIFY(list != nullptr);
    QCOMPARE(list->count(), 1);
    QCOMPARE(list->itemText(0), placeholder);
    QCOMPARE(list->currentText(), placeholder);
    QVERIFY2(!list->isEditable(), "the operator could type a rate that the device has not");
}

void tst_MainWindowForm::valuesAreCentred_data()
{
    QTest::addColumn<QString>("name");
    for (const Control &control : controlTable()) {
        if (qstrcmp(control.kind, "QLineEdit") == 0) {
            QTest::newRow(control.name) << control.name;
        }
    }
    for (const char *label :
         {"highPulseEdit", "highGainEdit", "highDetectEdit", "highBlankEdit", "lowPulseEdit",
          "lowGainEdit", "lowDetectEdit", "lowBlankEdit", "highDepthLabel", "lowDepthLabel",
          "label_34", "label_33", "label_24"}) {
        QTest::newRow(label) << label;
    }
}

void tst_MainWindowForm::valuesAreCentred()
{
    QFETCH(QString, name);
    const FormBench &form = *untouched;
    const auto *value = form.window.findChild<QWidget *>(name);
    QVERIFY(value != nullptr);
    QVERIFY((value->property("alignment").toInt() & Qt::AlignHCenter) != 0);
}

void tst_MainWindowForm::addressesAreAtTheRight()
{
    const FormBench &form = *untouched;
    QVERIFY(form.ui.label_36->alignment().testFlag(Qt::AlignRight));
    QVERIFY(form.ui.label_35->alignment().testFlag(Qt::AlignRight));
}

void tst_MainWindowForm::retranslationRestoresTheTexts()
{
    FormBench form;
    form.window.setWindowTitle(QString());
    form.ui.maxDepthLabel->setText(QStringLiteral("Max Depth (ft)"));
    form.ui.highDraft->setText(QStringLiteral("1.00"));
    form.ui.connectToDevice->setText(QStringLiteral("Disconnect"));
    form.ui.retranslateUi(&form.window);
    QCOMPARE(form.window.windowTitle(), QStringLiteral("TAL-VERO Connect"));
    QCOMPARE(form.ui.maxDepthLabel->text(), QStringLiteral("Max Depth (m)"));
    QCOMPARE(form.ui.highDraft->text(), QStringLiteral("0.40"));
    QCOMPARE(form.ui.connectToDevice->text(), QStringLiteral("Connect"));
}

QTEST_MAIN(tst_MainWindowForm)
#include "tst_mainwindowform.moc"
