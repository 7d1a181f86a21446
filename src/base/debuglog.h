// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef DEBUGLOG_H
#define DEBUGLOG_H

#include <QByteArray>
#include <QDebug>

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
inline QDebug debugLogLine(const char *path, int line, const char *className, const char *function)
{
    const QByteArray qualified = QByteArray(className) + "::" + function;
    QDebug log(QtDebugMsg);
    log << debugLogFileName(path) << line << qualified.constData() << " : ";
    return log;
}

/// For use inside member functions of a Q_OBJECT class, whose name it prints. (A compiler's own
/// "pretty" function names differ from one compiler to the next; these do not.)
#define DEBUG_LOG debugLogLine(__FILE__, __LINE__, staticMetaObject.className(), __func__)

#endif // DEBUGLOG_H
