// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// Whatever the sounder sends is shown as it was sent: mark-up is no mark-up here, loads nothing and
// costs nothing.

#include "infoline.h"
#include "logcapture.h"
#include "processortime.h"
#include "reportbench.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/inotify.h>
#include <unistd.h>

#include <memory>

namespace {

constexpr char ellipsis[] = "\u2026";

/// Watches whether a file is opened.
class FileWatch
{
public:
    explicit FileWatch(const QString &path)
        : queue(inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
    {
        inotify_add_watch(queue, path.toLocal8Bit().constData(), IN_OPEN);
    }

    ~FileWatch() { ::close(queue); }

    FileWatch(const FileWatch &) = delete;
    FileWatch &operator=(const FileWatch &) = delete;

    /// Since the last call.
    bool hasSeenAnOpening() const
    {
        char events[4096];
        return ::read(queue, events, sizeof events) > 0;
    }

private:
    int queue;
};

QByteArray repeated(const QByteArray &text, int bytes)
{
    return text.repeated(bytes / text.size());
}

} // namespace

class TestLiteralTexts : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void markUpIsShownAsItWasSent_data();
    void markUpIsShownAsItWasSent();
    void portNamesAreShownAsTheSystemGivesThem_data();
    void portNamesAreShownAsTheSystemGivesThem();
    void infoLineShowsMarkUp_data();
    void infoLineShowsMarkUp();
    void ordinaryInfoTextsStayAsTheyAre();
    void noLabelGuessesWhatItsTextIs();
    void aPictureIsNotLoaded_data();
    void aPictureIsNotLoaded();
    void longMarkUpHoldsNothingUp_data();
    void longMarkUpHoldsNothingUp();

private:
    bool sayAll(const QByteArray &bytes);

    std::unique_ptr<ReportBench> bench;
};

void TestLiteralTexts::init() { bench = std::make_unique<ReportBench>(); }

void TestLiteralTexts::cleanup() { bench.reset(); }

/// More than the terminal takes at once; false if the window does not read on.
bool TestLiteralTexts::sayAll(const QByteArray &bytes)
{
    int said = 0;
    return QTest::qWaitFor(
        [&] {
            said += std::max(bench->line.write(bytes.mid(said, 4096)), 0);
            return said == bytes.size();
        },
        30000);
}

void TestLiteralTexts::markUpIsShownAsItWasSent_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("widget");
    QTest::addColumn<QString>("shown");
    const QByteArray texts[] = {"<b>16</b>",
                                "<a href='x'>16</a>",
                                "<img src='x.png'>",
                                "<h1>16",
                                "</font>16",
                                "<!-- 16 -->",
                                "&amp;",
                                "&16",
                                "&&16",
                                "&lt;b&gt;16",
                                "<font color='red'>",
                                "<p style='x'>16</p>"};
    const std::pair<const char *, const char *> places[] = {
        {"*Hp", "highPulseEdit"}, {"*Lp", "lowPulseEdit"}, {"*i", "pingEdit"}};
    for (const QByteArray &text : texts) {
        for (const auto &[before, widget] : places) {
            const QByteArray line = before + text;
            QTest::newRow(line) << line << widget << QString::fromLatin1(text);
        }
        const QByteArray identifier = "UID : " + text;
        QTest::newRow(identifier) << identifier << "label_24"
                                  << "Serial Number: QZ" +
                                         QString::fromLatin1(text.left(8)).section(' ', 0, 0);
    }
}

void TestLiteralTexts::markUpIsShownAsItWasSent()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, widget);
    QFETCH(QString, shown);
    QVERIFY(bench->connectAs());
    QVERIFY(bench->tell(line));
    QCOMPARE(bench->text(widget), shown);
    if (const auto *label = bench->window.findChild<QLabel *>(widget)) {
        QCOMPARE(label->textFormat(), Qt::PlainText);
        // Each of its characters takes its place in the line, "&" too.
        QVERIFY(label->sizeHint().width() >= label->fontMetrics().horizontalAdvance(shown));
    }
}

void TestLiteralTexts::portNamesAreShownAsTheSystemGivesThem_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"<b>ttyUSB0</b>", "&ttyUSB0", "<img src='x.png'>", "&amp;"}) {
        QTest::newRow(name) << name;
    }
}

/// The list is drawn with its chosen entry as a line of plain text: as wide as all its characters.
void TestLiteralTexts::portNamesAreShownAsTheSystemGivesThem()
{
    QFETCH(QString, name);
    bench->ports = QStringList{name};
    QMetaObject::invokeMethod(&bench->window, "updateSerialPorts");
    bench->choose("portComboBox", name);
    auto *const list = bench->find<QComboBox>("portComboBox");
    QCOMPARE(list->itemText(1), name);
    QCOMPARE(list->currentText(), name);
    QCOMPARE(list->view()->model()->index(1, 0).data().toString(), name);
    QVERIFY(list->view()->sizeHintForColumn(0) >= list->fontMetrics().horizontalAdvance(name));
}

void TestLiteralTexts::infoLineShowsMarkUp_data()
{
    QTest::addColumn<QString>("raw");
    QTest::newRow("<b>9600</b>") << "&lt;b&gt;9600&lt;/b&gt;";
    QTest::newRow("</font>9600") << "&lt;/font&gt;9600";
    QTest::newRow("&amp;") << "&amp;amp;";
    QTest::newRow("\"9600\"") << "&quot;9600&quot;";
}

void TestLiteralTexts::infoLineShowsMarkUp()
{
    QFETCH(QString, raw);
    const QString text = QTest::currentDataTag();
    bench->window.findChild<InfoLine *>()->show(InfoColour::Failure, text);
    QCOMPARE(bench->text("infoLabel"), "<font color='Red'>" + raw + "</font>");
    QCOMPARE(bench->info(), text);
}

void TestLiteralTexts::ordinaryInfoTextsStayAsTheyAre()
{
    const QString text = "Setting Low Frequency Detection Threshold to 50% ... Received Error - "
                         "Command Not Applied";
    bench->window.findChild<InfoLine *>()->show(InfoColour::Success, text);
    QCOMPARE(bench->text("infoLabel"), "<font color='Green'>" + text + "</font>");
}

/// A label that takes its text for mark-up where it looks like mark-up shows others' texts wrongly.
void TestLiteralTexts::noLabelGuessesWhatItsTextIs()
{
    QVERIFY(bench->connectAs());
    const QStringList before = [this] {
        QStringList texts;
        for (const QLabel *label : bench->window.findChildren<QLabel *>()) {
            texts.append(label->text());
        }
        return texts;
    }();
    for (const char *line : {"*Hp20,Hg050,Ht40,Hm00600,Ho00500", "*Lp20,Lg050,Lt40,Lm00600,Lo00500",
                             "UID : 12345678", " et B 00123 00131"}) {
        QVERIFY(bench->tell(line));
    }
    int changed = 0;
    const QList<QLabel *> labels = bench->window.findChildren<QLabel *>();
    for (int i = 0; i < labels.size(); ++i) {
        if (labels.at(i)->text() != before.at(i)) {
            QVERIFY2(labels.at(i)->textFormat() != Qt::AutoText,
                     qPrintable(labels.at(i)->objectName()));
            ++changed;
        }
    }
    // Pulse, gain, detection and blanking of both channels, two depths, the identifier, the status.
    QCOMPARE(changed, 12);
}

void TestLiteralTexts::aPictureIsNotLoaded_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::newRow("high pulse cycles") << QByteArray("*Hp<img src='") << QByteArray("'>");
    QTest::newRow("low pulse cycles") << QByteArray("*Lp<img src='") << QByteArray("'>");
    QTest::newRow("background") << QByteArray("*Hp<table background='")
                                << QByteArray("'><tr><td>1");
    QTest::newRow("pings") << QByteArray("*i<img src='") << QByteArray("'>");
    QTest::newRow("identifier") << QByteArray("UID : <img/src='") << QByteArray("'>");
    QTest::newRow("depth") << QByteArray("<img src='") << QByteArray("'>");
}

void TestLiteralTexts::aPictureIsNotLoaded()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QVERIFY(bench->connectAs());
    const QTemporaryDir folder(QDir::tempPath() + "/XXXXXX");
    const QString path = folder.filePath("1.png"); // short: longer texts are cut
    QImage picture(8, 8, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QVERIFY(picture.save(path));
    const FileWatch watch(path);
    QVERIFY(bench->tell(before + path.toLocal8Bit() + after));
    bench->window.grab();
    QVERIFY2(!watch.hasSeenAnOpening(), "the picture was opened");
    QVERIFY(!QImage(path).isNull());
    QVERIFY2(watch.hasSeenAnOpening(), "the watch sees nothing");
}

void TestLiteralTexts::longMarkUpHoldsNothingUp_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("markUp");
    QTest::addColumn<QString>("widget");
    const std::pair<const char *, const char *> places[] = {{"*Hp", "highPulseEdit"},
                                                            {"*Lp", "lowPulseEdit"},
                                                            {"*i", "pingEdit"},
                                                            {"UID : ", "label_24"},
                                                            {"TalVero New 1.2.3 ", "label_34"},
                                                            {"BoardTemp: ", "temperatureLabel"},
                                                            {"VSupply: ", "temperatureLabel"},
                                                            {"$SDDBS,,f,", "highDepthLabel"}};
    for (const char *tag : {"<b>", "<table><tr><td>", "<ul><li>", "<img>", "&amp;"}) {
        for (const int bytes : {320, 64 * 1024}) {
            for (const auto &[before, widget] : places) {
                QTest::addRow("%s%s of %d bytes", before, tag, bytes)
                    << QByteArray(before) << repeated(tag, bytes) << widget;
            }
        }
    }
}

void TestLiteralTexts::longMarkUpHoldsNothingUp()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, markUp);
    QFETCH(QString, widget);

    const LogCapture log; // writing a log of this size would be most of the work
    QVERIFY(bench->connectAs());
    constexpr double allowedMs = 100;
    bool isHeard = true;
    const double work = ProcessorTime::leastMs(allowedMs, [&] {
        isHeard = isHeard && bench->tell(before + "1") && sayAll(before + markUp) &&
                  bench->tell(QByteArray()); // the line's end
        bench->find<QWidget>(widget)->grab();
    });
    QVERIFY(isHeard);
    const QString shown = bench->text(widget);
    QVERIFY2(shown.size() <= 120, qPrintable(QString("%1 characters").arg(shown.size())));
    QVERIFY2(work < allowedMs, qPrintable(QString("%1 ms of work").arg(work)));
    if (widget.endsWith("PulseEdit")) {
        QCOMPARE(shown, QString::fromLatin1(markUp.left(79)) + QString::fromUtf8(ellipsis));
    }
}

QTEST_MAIN(TestLiteralTexts)

#include "tst_literaltexts.moc"
