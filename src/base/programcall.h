// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef PROGRAMCALL_H
#define PROGRAMCALL_H

#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

/// An option with a value that a windowed program takes besides --help and --version.
struct ProgramOption
{
    QString name; ///< without its dashes
    QString valueName;
    QString help;
};

/// What a program's help tells of it.
struct ProgramFace
{
    QString name; ///< as it is called
    QString purpose;
    QVector<ProgramOption> options;
};

/// What somebody asks of a program by the words after its name.
struct ProgramCall
{
    QMap<QString, QString> values; ///< of the options that are given, by name; the last one counts
    QString wantedText; ///< the help or version, if that is asked for; without a line end
    QString remark;     ///< what is passed over: options that there are not; empty: nothing
    QString problem;    ///< what is wrong with an option that there is; empty: nothing
};

/// "tal-vero-connect 1.2.11".
QString versionText(const QString &program);

/// Reads the arguments, the program's name first. Those that Qt takes for itself (-platform xcb)
/// mean nothing here; words without a dash, which a desktop may add, neither. Needs no application
/// object.
ProgramCall readCall(const ProgramFace &face, const QStringList &arguments);

/// Says what is asked for, passed over or wrong, on standard output or standard error. Returns the
/// program's exit code, 0 or 2; nothing if it is to start: an operator whose desktop adds a word
/// wants the window. To be called before the application object is made, which ends the program
/// where there is no display.
std::optional<int> answerCall(const ProgramFace &face, int argc, char **argv);

#endif // PROGRAMCALL_H
