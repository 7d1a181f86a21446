// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef INFOLINE_H
#define INFOLINE_H

#include <QObject>
#include <QString>
#include <QTimer>

/// In what spirit the info line speaks.
enum class InfoColour { Progress, Success, Failure };

/// What a text in the info line is about. An answer of the sounder bears no reference to the
/// command that it answers: it is taken for the answer to what was announced last.
class Topic
{
public:
    /// Nothing that an answer could be about.
    Topic() = default;

    /// The change of a setting.
    static Topic setting(const QString &key) { return Topic(Kind::Setting, key); }

    /// The return to the factory's settings.
    static Topic factoryReset() { return Topic(Kind::FactoryReset, QString()); }

    bool isFactoryReset() const { return kind == Kind::FactoryReset; }

    /// The key of the setting that it is about; empty if it is about something else.
    const QString &settingKey() const { return key; }

private:
    enum class Kind { Nothing, Setting, FactoryReset };

    Topic(Kind itsKind, QString itsKey)
        : kind(itsKind)
        , key(std::move(itsKey))
    {}

    Kind kind = Kind::Nothing;
    QString key;
};

/// The one line in which the program tells the operator what is going on. Text and topic have one
/// lifetime: both end when something else is shown, or after 10 s.
class InfoLine : public QObject
{
    Q_OBJECT

public:
    explicit InfoLine(QObject *parent = nullptr);

    /// Shows a text in place of the one before.
    void show(InfoColour colour, const QString &text, const Topic &topic = {});

    /// Appends the outcome of what the text announces; it stays about the same. Of a text that
    /// grows without end (a line full of noise may answer without end) the beginning is kept.
    void append(InfoColour colour, const QString &outcome);

    /// Adds what stands behind the text, for who asks: a tooltip. It goes with the text.
    void explain(const QString &reason);

    /// Shows an empty text: what the info timer's end calls for.
    void clear();

    const QString &text() const { return shownText; }
    const Topic &topic() const { return shownTopic; }

    /// Runs for 10 s from each text on ("infoTimer"). Whoever owns the line lets its end clear it.
    QTimer &timer() { return infoTimer; }

signals:
    /// This is to be seen now.
    void shown(InfoColour colour, const QString &text);

    /// This stands behind what is to be seen; empty for most texts.
    void explained(const QString &reason);

private:
    QTimer infoTimer{this};
    QString shownText;
    Topic shownTopic;
};

#endif // INFOLINE_H
