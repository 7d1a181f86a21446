// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "settingsreport.h"

#include "commandencoding.h"
#include "numbertext.h"
#include "outputformat.h"

#include <QByteArray>
#include <QHash>
#include <QList>

#include <cmath>

namespace {

constexpr int mostLines = 16;
constexpr int fieldsEnd = 3; ///< fields are counted from 1

/// The scales in which the report counts, for a velocity in m/s and a result in metres.
constexpr qint32 blankingScale = 3000000;
constexpr double depthScale = 1000000.0;
constexpr double depthDivisor = 300.0;

/// 32-bit multiplication that wraps around instead of overflowing: a blanking that is far out of
/// range gives a wrong distance, which is held to the setting's range like any other.
qint32 product(qint32 left, qint32 right)
{
    return static_cast<qint32>(static_cast<quint32>(left) * static_cast<quint32>(right));
}

} // namespace

namespace SettingsReport {

bool isWithinBounds(int line, int field) { return line < mostLines && field < fieldsEnd; }

QString fieldAt(const char *report, int line, int field)
{
    if (line < 0 || field < 1) {
        return {};
    }
    // QList::value gives an empty item for a place that is not there.
    const QByteArray wholeLine = QByteArray(report).trimmed().split('\n').value(line);
    const QByteArray values = wholeLine.split(':').value(1).trimmed();
    return QString::fromLatin1(values.split(' ').value(field - 1));
}

std::optional<QString> asWritten(const QString &field, const NumberSource & /*velocity*/)
{
    return field;
}

std::optional<QString> asFormat(const QString &field, const NumberSource & /*velocity*/)
{
    const std::vector<OutputFormat> &formats = OutputFormats::all();
    const int number = NumberText::toInt(field);
    if (number < 1 || number > static_cast<int>(formats.size())) {
        return std::nullopt;
    }
    return formats[static_cast<std::size_t>(number - 1)].name;
}

std::optional<QString> asActive(const QString & /*field*/, const NumberSource & /*velocity*/)
{
    return "Active";
}

QString sounderMode(const QString &field)
{
    static const QHash<QString, QString> words = {{"n", "Shallow"}, {"a", "Auto"}, {"m", "Manual"}};
    return words.value(field, field);
}

QString tvg(const QString &field)
{
    static const QHash<QString, QString> words = {{"N", "OFF"}, {"T", "Log 10"}, {"W", "Log 20"}};
    return words.value(field, field);
}

QString blanking(const QString &field, float velocity)
{
    const qint32 scaled = product(CommandEncoding::whole(velocity), NumberText::toInt(field));
    return QString::number(scaled / blankingScale);
}

QString maximumDepth(const QString &field, float velocity)
{
    const auto millions = static_cast<float>(NumberText::toInt(field) / depthScale);
    const float path = static_cast<float>(CommandEncoding::whole(velocity)) * millions;
    const auto depth = static_cast<float>(static_cast<double>(path) / depthDivisor);
    return QString::number(CommandEncoding::whole(std::floor(depth)));
}

} // namespace SettingsReport
