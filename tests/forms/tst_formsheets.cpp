// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "formbench.h"
#include "formtable.h"
#include "qtdifferences.h"

#include <QRegularExpression>

namespace {

const QString headerGradient =
    QStringLiteral("background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 rgb(0,0,100), "
                   "stop:0.1 %1, stop:0.5 rgb(41, 88, 160));")
        .arg(QtDifferences::headerBlue);

/// The declarations of every rule of a sheet by its selector, without comments and line breaks.
QHash<QString, QString> rulesOf(QString sheet)
{
    sheet.remove(QRegularExpression(QStringLiteral("/\\*.*?\\*/"),
                                    QRegularExpression::DotMatchesEverythingOption));
    sheet.replace(QStringLiteral("url(:/resourcefiles/images/"), QStringLiteral("url("));
    QHash<QString, QString> rules;
    static const QRegularExpression rule(QStringLiteral("([^{}]+)\\{([^{}]*)\\}"));
    auto matches = rule.globalMatch(sheet);
    while (matches.hasNext()) {
        const auto match = matches.next();
        const QString declarations = match.captured(2).simplified();
        const QStringList selectors = match.captured(1).split(QLatin1Char(','));
        for (const QString &selector : selectors) {
            QString &all = rules[selector.simplified()];
            all += (all.isEmpty() ? "" : " ") + declarations;
        }
    }
    return rules;
}

QString verticalGradient(const char *stops)
{
    return QStringLiteral("background: qlineargradient(x1:0, y1:0, x2:0, y2:1, %1);")
        .arg(QLatin1String(stops));
}

QString image(const char *file)
{
    return QStringLiteral("image: url(%1);").arg(QLatin1String(file));
}

void newRow(const char *widget, const char *selector, const QStringList &declarations)
{
    QTest::addRow("%s { %s }", widget, selector) << widget << selector << declarations;
}

void addIndicators()
{
    newRow("centralwidget", "QWidget", {"font: bold;"});
    newRow("centralwidget", "QRadioButton::indicator", {"width: 25px;", "height: 25px;"});
    const auto indicator = [](const char *states, const char *file) {
        newRow("centralwidget", qPrintable(QStringLiteral("QRadioButton::indicator:") + states),
               {image(file)});
    };
    indicator("enabled:checked", "radio_checked.png");
    indicator("enabled:unchecked", "radio_unchecked.png");
    indicator("disabled:unchecked", "radio_unenabled.png");
    indicator("disabled:checked", "radio_unenabled.png");
    indicator("enabled:unchecked:hover", "radio_unenabled.png");
    indicator("enabled:checked:hover", "radio_checked_hover.png");
    for (const char *unit : {"imperialRadio", "metricRadio"}) {
        newRow(unit, "QRadioButton::indicator:disabled:checked",
               {image("radio_checked_hover.png")});
    }
}

void addSliders()
{
    newRow("centralwidget", "QSlider::groove:horizontal",
           {"border: 1px solid #999999;", "height: 2px;",
            verticalGradient("stop:0 #616161, stop:1 #848484"), "margin: 0px;",
            "border-radius: 3px;"});
    const auto handle = [](const char *state, const char *stops, const char *border,
                           const char *grip) {
        newRow("centralwidget", qPrintable(QStringLiteral("QSlider::handle:horizontal:") + state),
               {verticalGradient(stops), border, "width: 50px;", "margin: -7px 0;",
                "border-radius: 3px;", image(grip)});
    };
    handle("enabled", "stop:0 #fff, stop:1 #777", "border: 1px solid #555;", "slider_scribble.png");
    handle("disabled", "stop:0 #eeeeee, stop:1 #ffffff", "border: 1px solid #ccc;",
           "slider_scribble_unenabled.png");
    handle("hover", "stop:0 #fff, stop:0.5 #666, stop:1 #fff", "border: 1px solid #555;",
           "slider_scribble.png");
    handle("pressed", "stop:0 #fff, stop:0.8 #666, stop:1 #fff", "border: 1px solid #555;",
           "slider_scribble.png");
}

void addLists()
{
    newRow("centralwidget", "QComboBox",
           {"border: 1px solid #999;", "border-radius: 3px;",
            "background-color: rgb(230, 230, 230);", "min-width: 6em;",
            verticalGradient("stop:0.2 rgb(230, 230, 230), stop:0.48 rgb(220,220,220), "
                             "stop:1 rgb(180,180,180)")});
    newRow(
        "centralwidget", "QComboBox::drop-down",
        {"subcontrol-origin: padding;", "subcontrol-position: top right;", "border-radius: 3px;"});
    newRow("centralwidget", "QComboBox::down-arrow:enabled",
           {image("arrow_down.png"), "width: 10px;", "height: 10px;"});
    newRow("centralwidget", "QComboBox::down-arrow:disabled",
           {image("arrow_down_unenabled.png"), "width: 10px;", "height: 10px;"});
    newRow("centralwidget", "QComboBox QAbstractItemView",
           {"border: 1px solid black;", "selection-background-color: lightgray;"});
}

void addActionButtons()
{
    const QStringList grey{"background-color: rgb(230, 230, 230);", "border-radius: 3px;"};
    const QStringList white{"color: white;", "border-radius: 3px;"};
    const QString blue = verticalGradient("stop:0 rgb(78, 139, 255), stop:1 rgb(78, 139, 198)");
    const QString lit = verticalGradient("stop:0 rgb(78, 139, 198), stop:1 rgb(78, 139, 255)");
    const QString deep = verticalGradient("stop:0 rgb(78, 139, 255), stop:1 rgb(0, 0, 198)");
    for (const char *button : {"connectToDevice", "resetSettings"}) {
        newRow(button, "QPushButton:disabled", grey);
        newRow(button, "QPushButton:enabled", QStringList(blue) + white);
        newRow(button, "QPushButton:enabled:pressed", {deep});
        newRow(button, "QPushButton:enabled:hover", {lit});
    }
    newRow("openGraph", "QPushButton:disabled", grey);
    newRow("openGraph", "QPushButton:enabled", QStringList(blue) + white);
    newRow("openGraph", "QPushButton:pressed", {deep});
    newRow("saveSettingsToDevice", "QPushButton:disabled", grey);
    newRow("saveSettingsToDevice", "QPushButton:enabled",
           QStringList(verticalGradient("stop:0 rgb(120, 255, 48), stop:1 rgb(120, 200, 48)")) +
               white);
    newRow("saveSettingsToDevice", "QPushButton:pressed",
           {verticalGradient("stop:0 rgb(120, 255, 48), stop:1 rgb(0, 200, 0)")});
}

void addRepeatedButtons()
{
    for (const Control &control : controlTable()) {
        const QByteArray name(control.name);
        const bool up = name.endsWith("Up");
        if (up || name.endsWith("Down")) {
            newRow(name, "QPushButton",
                   {"border: none;", "background: none;", "border-radius: 11px;",
                    "max-height: 25px;", "max-width: 25px;"});
            for (const char *state : {"enabled", "disabled", "hover", "pressed"}) {
                const QByteArray file = QByteArray(up ? "plus_" : "minus_") + state + ".png";
                newRow(name, "QPushButton:" + QByteArray(state), {image(file)});
            }
        } else if (name.endsWith("Info")) {
            newRow(name, "QPushButton", {"color: none;", "border: none;"});
            newRow(name, "QPushButton:pressed", {"color: none;", "border: none;"});
        } else if (qstrcmp(control.kind, "QLineEdit") == 0) {
            newRow(name, "QLineEdit:disabled", {"background-color: rgb(230, 230, 230);"});
            if (name.startsWith("high") || name.startsWith("low")) {
                newRow(name, "QLineEdit:enabled", {"background-color: rgb(255, 255, 255);"});
            }
        }
    }
}

void addTabs()
{
    const QStringList tab{"padding: 10px;", "border-top-left-radius: 3px;",
                          "border-top-right-radius: 3px;"};
    newRow("h", "QTabBar::tab:!selected",
           tab + QStringList{"background: rgb(255,255,255);", "border: 1px solid #C2C7CB;"});
    newRow("h", "QTabBar::tab:selected",
           tab + QStringList{"background: rgb(244,244,244);", "border-top: 1px solid #C2C7CB;",
                             "border-left: 1px solid #C2C7CB;",
                             "border-right: 1px solid #C2C7CB;"});
    newRow("h", "QTabWidget::pane",
           {"border: 1px solid #C2C7CB;", "top: -1px;", "border-top-right-radius: 3px;",
            "border-bottom-right-radius: 3px;", "border-bottom-left-radius: 3px;"});
    newRow("h", "QWidget", {"background-color: rgb(244,244,244);"});
}

} // namespace

class tst_FormSheets : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { untouched = std::make_unique<FormBench>(); }

    void ruleHoldsItsDeclarations_data();
    void ruleHoldsItsDeclarations();
    void plainSheetIsSet_data();
    void plainSheetIsSet();
    void noOtherControlBringsASheet();

private:
    std::unique_ptr<const FormBench> untouched; ///< for what only looks at it
};

void tst_FormSheets::ruleHoldsItsDeclarations_data()
{
    QTest::addColumn<QString>("widget");
    QTest::addColumn<QString>("selector");
    QTest::addColumn<QStringList>("declarations");
    addIndicators();
    addSliders();
    addLists();
    addActionButtons();
    addRepeatedButtons();
    addTabs();
    newRow("widget", "QWidget#widget", {headerGradient});
    newRow("autoSave", "QRadioButton", {"color: rgb(255, 255, 255);"});
}

void tst_FormSheets::ruleHoldsItsDeclarations()
{
    QFETCH(QString, widget);
    QFETCH(QString, selector);
    QFETCH(QStringList, declarations);
    const FormBench &form = *untouched;
    const auto *styled = form.window.findChild<QWidget *>(widget);
    QVERIFY(styled != nullptr);
    const QHash<QString, QString> rules = rulesOf(styled->styleSheet());
    QVERIFY2(rules.contains(selector), qPrintable(styled->styleSheet()));
    const QString rule = QLatin1Char(' ') + rules.value(selector);
    for (const QString &declaration : qAsConst(declarations)) {
        QVERIFY2(rule.contains(QLatin1Char(' ') + declaration),
                 qPrintable(declaration + " is missing in" + rule));
    }
}

void tst_FormSheets::plainSheetIsSet_data()
{
    QTest::addColumn<QString>("sheet");
    QTest::newRow("MainWindow") << "background-color: rgb(255, 255, 255);";
    QTest::newRow("widget_36") << "background-color: rgb(229, 229, 229);";
    QTest::newRow("statusbar") << "background-color: rgb(229, 229, 229);"; // the footer goes on
    for (const char *live :
         {"highDepthLabel", "lowDepthLabel", "newBaudComboBox", "formatComboBox"}) {
        QTest::newRow(live) << "font: 600 9pt \"MS Shell Dlg 2\";";
    }
    QTest::newRow("hamburgerButton")
        << "border-width: 1px; border-style: solid; border-color: #fff;";
}

void tst_FormSheets::plainSheetIsSet()
{
    QFETCH(QString, sheet);
    const FormBench &form = *untouched;
    const QString name = QLatin1String(QTest::currentDataTag());
    const auto *styled = name == QLatin1String("MainWindow")
                             ? static_cast<const QWidget *>(&form.window)
                             : form.window.findChild<QWidget *>(name);
    QVERIFY(styled != nullptr);
    QCOMPARE(styled->styleSheet().simplified(), sheet);
}

// A sheet on a widget of its own hides from the reader of the form-wide one.
void tst_FormSheets::noOtherControlBringsASheet()
{
    const FormBench &form = *untouched;
    const QStringList named{"centralwidget",  "widget",        "h",        "widget_36",
                            "highDepthLabel", "lowDepthLabel", "statusbar"};
    QStringList known = named;
    for (const Control &control : controlTable()) {
        known << QLatin1String(control.name);
    }
    const auto widgets = form.window.findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        QVERIFY2(widget->styleSheet().isEmpty() || known.contains(widget->objectName()),
                 qPrintable(widget->objectName()));
    }
}

QTEST_MAIN(tst_FormSheets)
#include "tst_formsheets.moc"
