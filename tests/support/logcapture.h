// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef LOGCAPTURE_H
#define LOGCAPTURE_H

#include <QMutex>
#include <QMutexLocker>
#include <QStringList>
#include <QtGlobal>

/// Collects the lines of the debug log for as long as it lives, then gives the log back to whoever
/// had it before. Captures may be nested; the inner one takes the lines. Debug lines are kept off
/// the test's output, warnings and worse are also passed on, so that none stays unseen.
class LogCapture
{
public:
    LogCapture()
        : outer(innermost)
    {
        innermost = this;
        previous = qInstallMessageHandler(collect);
    }

    ~LogCapture()
    {
        qInstallMessageHandler(previous);
        innermost = outer;
    }

    LogCapture(const LogCapture &) = delete;
    LogCapture &operator=(const LogCapture &) = delete;

    /// What was logged so far, a line each, with its file, line and function items in front.
    QStringList lines() const
    {
        const QMutexLocker lock(&mutex);
        return messages;
    }

    /// What was logged so far without the items in front: the message and its values.
    QStringList texts() const
    {
        QStringList result;
        for (const QString &line : lines()) {
            const auto start = line.indexOf(separator);
            result << (start < 0 ? line : line.mid(start + separator.size()));
        }
        return result;
    }

    /// How many lines hold this text anywhere.
    int count(const QString &text) const { return int(lines().filter(text).size()); }

    /// Whether a line holds this text anywhere.
    bool contains(const QString &text) const { return count(text) > 0; }

    void clear()
    {
        const QMutexLocker lock(&mutex);
        messages.clear();
    }

private:
    static void collect(QtMsgType type, const QMessageLogContext &context, const QString &message)
    {
        {
            const QMutexLocker lock(&innermost->mutex);
            innermost->messages << message;
        }
        if (type != QtDebugMsg) {
            innermost->previous(type, context, message);
        }
    }

    /// " : " as a log item of its own, with the blank that follows every item.
    inline static const QString separator = QStringLiteral(" :  ");
    inline static LogCapture *innermost = nullptr;

    LogCapture *outer;
    QtMessageHandler previous = nullptr;
    mutable QMutex mutex;
    QStringList messages;
};

#endif // LOGCAPTURE_H
