// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "keptwindow.h"

#include "marks.h"
#include "settingspec.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QtTest>

#include <algorithm>

namespace {

/// What a test may change of an object of this class.
struct Changeable
{
    const char *className;
    QVector<const char *> properties;
};

// A slider's range goes before its position.
const Changeable changeables[] = {
    {"QWidget", {"minimumSize", "maximumSize"}},
    {"QLabel", {"text", "toolTip"}},
    {"QLineEdit", {"text"}},
    {"QAbstractButton", {"checked"}},
    {"QAbstractSlider", {"minimum", "maximum", "value"}},
    {"QComboBox", {"currentIndex"}},
    {"QTabWidget", {"currentIndex"}},
    {"QTimer", {"interval", "timerType", "active"}},
};

/// The windows that benches have now.
int inUse = 0;

std::unique_ptr<KeptWindow> &kept()
{
    static std::unique_ptr<KeptWindow> window;
    return window;
}

/// What the window brings with it beside its form: graph, help and settings.
QWidgetList newTopLevels(const QWidgetList &before)
{
    QWidgetList all = QApplication::topLevelWidgets();
    all.erase(std::remove_if(all.begin(), all.end(),
                             [&before](QWidget *each) { return before.contains(each); }),
              all.end());
    return all;
}

void restore(QObject &object, const char *property, const QVariant &value)
{
    if (object.property(property) == value) {
        return;
    }
    if (qstrcmp(property, "active") == 0) {
        QMetaObject::invokeMethod(&object, value.toBool() ? "start" : "stop");
        return;
    }
    // Only these work by their own signals; what the others would tell the window is not so.
    const bool mustSpeak =
        object.inherits("QScrollBar") || object.inherits("QTabWidget") || object.inherits("QTimer");
    const bool wasSilent = object.blockSignals(!mustSpeak);
    object.setProperty(property, value);
    object.blockSignals(wasSilent);
}

} // namespace

KeptWindow::KeptWindow(PortLister ports)
    : lister(std::move(ports))
{
    const QWidgetList before = QApplication::topLevelWidgets();
    shown = std::make_unique<MainWindow>([this] { return lister(); });
    for (QWidget *each : newTopLevels(before)) {
        if (auto *const found = qobject_cast<Settings *>(each)) {
            settings = found;
        }
    }
}

std::unique_ptr<KeptWindow> KeptWindow::take(PortLister ports)
{
    ++inUse;
    if (kept() != nullptr) {
        kept()->lister = std::move(ports);
        kept()->show();
        return std::move(kept());
    }
    auto window = std::unique_ptr<KeptWindow>(new KeptWindow(std::move(ports)));
    window->show();
    window->note();
    return window;
}

void KeptWindow::forget() { kept().reset(); }

void KeptWindow::leave(std::unique_ptr<KeptWindow> window)
{
    static const bool wantsNew = qEnvironmentVariableIsSet("TALVERO_NEW_WINDOWS");
    --inUse;
    const bool isAsItWas = window->shown->isVisible() && window->shown->windowState() == 0;
    if (wantsNew || inUse > 0 || !isAsItWas || QTest::currentTestFailed()) {
        return;
    }
    window->startOver();
    window->lister = [] { return QStringList(); };
    static const bool endsInTime = [] {
        qAddPostRoutine(forget); // no widget outlives the application
        return true;
    }();
    Q_UNUSED(endsInTime)
    kept() = std::move(window);
}

void KeptWindow::show()
{
    if (!shown->isVisible()) {
        shown->show();
    }
    if (!QTest::qWaitForWindowExposed(shown.get())) {
        qFatal("the window did not open");
    }
    if (!shown->isActiveWindow()) { // graph or help had been
        shown->activateWindow();
        if (!QTest::qWaitForWindowActive(shown.get())) {
            qFatal("the window does not get the keyboard");
        }
    }
}

void KeptWindow::note()
{
    const QObjectList objects = shown->findChildren<QObject *>();
    for (QObject *object : objects) {
        for (const auto &[className, properties] : changeables) {
            for (const char *property : properties) {
                if (object->inherits(className)) {
                    values.push_back({object, property, object->property(property)});
                }
            }
        }
    }
    for (const SettingSpec &setting : SettingSpecs::all()) {
        const QString value = settings->getSettingString(setting.key);
        if (!value.isEmpty()) {
            stored.emplace_back(setting.key, value);
        }
    }
    focused = shown->focusWidget();
    size = shown->size();
}

void KeptWindow::startOver()
{
    disconnectFromDevice();
    restoreStates();
    restoreSettings();
    restoreLook();
    restoreValues();
    restoreFocus();
}

/// Also empties the queue, which forgets what waits while there is no connection.
void KeptWindow::disconnectFromDevice()
{
    auto *const session = shown->findChild<LinkSession *>();
    if (session->state() != SessionState::Offline) {
        shown->findChild<QAbstractButton *>("connectToDevice")->click();
    }
    session->queue().timer().stop();
    session->queue().sendLatestCommand();
    session->info().clear();
    session->forgetStatus();
}

/// What the window has been told of the unit and of its channels, and the depths that it keeps to
/// make a pair of two sentences.
void KeptWindow::restoreStates()
{
    auto *const session = shown->findChild<LinkSession *>();
    shown->findChild<QAbstractButton *>("metricRadio")->setChecked(true);
    emit session->identified(Protocol::readBanner("TalVero New Dual 2.14.7"));
    for (const char *reply : {"*i5,a3,H1,L1", "*H,Hcm", "*L,Lcm"}) {
        emit session->settingsReplied(Protocol::readReply(reply, Protocol::replyPieces(reply)));
    }
    emit session->sounded("DA-0001.00");
    emit session->sounded("DB-0001.00");
}

void KeptWindow::restoreSettings()
{
    for (const auto &[key, value] : stored) {
        settings->changeSetting(key, value);
    }
}

void KeptWindow::restoreValues()
{
    for (const auto &[object, property, value] : values) {
        if (object != nullptr) {
            restore(*object, property, value);
        }
    }
}

void KeptWindow::restoreLook()
{
    for (QLineEdit *edit : shown->findChildren<QLineEdit *>()) {
        Marks::settled(edit);
    }
    for (const char *depth : {"highDepthLabel", "lowDepthLabel"}) {
        Marks::setAlive(shown->findChild<QWidget *>(depth), true);
    }
    for (QWidget *each : QApplication::topLevelWidgets()) {
        if (each != shown.get() && each->isVisible()) {
            each->close();
        }
    }
    if (shown->findChild<QWidget *>("widget_40")->isHidden()) {
        shown->findChild<QAbstractButton *>("hamburgerButton")->click();
    }
    shown->setUpdatesEnabled(true);
    shown->resize(size);
}

void KeptWindow::restoreFocus()
{
    if (focused != nullptr) {
        focused->setFocus();
    } else if (shown->focusWidget() != nullptr) {
        shown->focusWidget()->clearFocus();
    }
}
