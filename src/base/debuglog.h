// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef DEBUGLOG_H
#define DEBUGLOG_H

#include <QByteArray>
#include <QDebug>
#include <QStringList>

#include <cstring>

/// The file's name without its folders: the log reads the same wherever the program was built.
inline const char *debugLogFileName(const char *path)
{
    const char *name = path;
    for (const char *separator : {"/", "\\"}) {
        if (const char *last = std::strrchr(name, *separator)) {
            name = last + 1;
        }
    }
    return name;
}

/// Begins a line of the debug log: file, line, qualified function and " : ", separated by blanks.
/// The caller streams the message and its values; texts of type QString print in quotes.
inline QDebug debugLogLine(const QByteArray &file, int line, const char *className,
                           const char *function)
{
    const QByteArray qualified = QByteArray(className) + "::" + function;
    QDebug log(QtDebugMsg);
    log << file.constData() << line << qualified.constData() << " : ";
    return log;
}

/// The same for a part of the window's work that another class does.
inline QDebug windowLogLine(const char *path, int line, const char *function)
{
    return debugLogLine(QByteArray("mainwindow_") + debugLogFileName(path), line, "MainWindow",
                        function);
}

/// Texts for the log, which writes them as ("one", "two"). Qt 6 puts the name of their type before
/// them otherwise, and whoever searches in logs would search twice.
struct LoggedTexts
{
    const QStringList &texts;
};

inline QDebug operator<<(QDebug log, const LoggedTexts &logged)
{
    const bool parted = log.autoInsertSpaces();
    const char *separator = "";
    log.nospace() << '(';
    for (const QString &text : logged.texts) {
        log << separator << text;
        separator = ", ";
    }
    log << ')';
    log.setAutoInsertSpaces(parted);
    return log.maybeSpace();
}

/// For use inside member functions of a Q_OBJECT class, whose name it prints. (A compiler's own
/// "pretty" function names differ from one compiler to the next; these do not.)
#define DEBUG_LOG                                                                                  \
    debugLogLine(debugLogFileName(__FILE__), __LINE__, staticMetaObject.className(), __func__)

/// The same in the name of another function, of which this one is a part.
#define DEBUG_LOG_AS(function)                                                                     \
    debugLogLine(debugLogFileName(__FILE__), __LINE__, staticMetaObject.className(), function)

/// For classes that do a part of the window's work. Whoever searches in logs knows what the window
/// does by the window's name ("mainwindow_commandqueue.cpp 57 MainWindow::sendLatestCommand"),
/// however it divides that work.
#define WINDOW_LOG windowLogLine(__FILE__, __LINE__, __func__)

/// Both.
#define WINDOW_LOG_AS(function) windowLogLine(__FILE__, __LINE__, function)

#endif // DEBUGLOG_H
