// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef OPERATORTOUR_H
#define OPERATORTOUR_H

#include "mainwindow.h"
#include "windowhand.h"

#include <QDir>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QObject>
#include <QTimer>
#include <QVector>

#include <functional>

class SounderLine;

/// Plays an operator's tour through the real window with real clicks and keys: each step acts,
/// waits for what the operator would wait for, prints one line with what the info line says, and
/// leaves a picture. Nothing blocks; the tour lives in the event loop.
class OperatorTour : public QObject, private WindowHand
{
    Q_OBJECT

public:
    /// Of `dual`, the operator changes the settings and looks at the depths; at the end it is
    /// pulled out and `highOnly` connected. The ports of both must stand in the window's list. The
    /// pictures go to `folder`, which must exist.
    OperatorTour(MainWindow &mainWindow, SounderLine &dual, SounderLine &highOnly,
                 const QDir &folder, QObject *parent = nullptr);

    /// Begins as soon as the event loop runs.
    void start();

signals:
    /// The tour is over: 0 if every step came to its end, 1 if one waited in vain.
    void finished(int exitCode);

private:
    struct Step
    {
        QString name; ///< what the operator does; also names the picture
        std::function<void()> act;
        std::function<bool()> isDone;
        std::function<QWidget *()> shown; ///< the window that the picture is of
    };

    // ---- operatortour_plan.cpp: what the operator does
    void plan();
    void planConnecting();
    void planCommonSettings();
    void planChannel();
    void planOutput();
    void planLooking();
    void planFeet();
    void planLeaving();
    void planSingleChannel();

    // ---- operatortour.cpp: how it is played
    void add(const QString &name, std::function<void()> act, std::function<bool()> isDone);
    void add(const QString &name, std::function<void()> act, std::function<bool()> isDone,
             std::function<QWidget *()> shown);

    /// A step that ends when the info line holds these words.
    void addChange(const QString &name, std::function<void()> act, const char *confirmed);

    /// A step that opens the depth graph and ends when some more soundings stand in it.
    void addGraph(const QString &name);

    void begin();
    void watch();
    void end(bool came);
    void report(bool came);
    void takePicture() const;

    void answer(const char *title, QMessageBox::StandardButton button) const;
    QString info() const;
    bool infoHolds(const char *words) const;
    bool isConnected() const;

    MainWindow &window;
    SounderLine &sounder;
    SounderLine &singleChannel;
    QDir pictures;
    QVector<Step> steps;
    int current = -1;
    int failures = 0;
    int soundings = 0; ///< heard since the graph was opened
    QTimer clock;
    QElapsedTimer waiting;
};

#endif // OPERATORTOUR_H
