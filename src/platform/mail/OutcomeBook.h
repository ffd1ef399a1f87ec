// SPDX-License-Identifier: GPL-3.0-or-later
// The book of outcomes: a folder with one file for each of the last runs (docs/formats/esiti.md).
#pragma once

#include <QByteArrayView>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>

#include "platform/mail/OutcomeLine.h"
#include "platform/Status.h"

namespace mail::outcomes {

inline constexpr int mostRuns = 50;
inline constexpr qint64 largestFile = qint64{256} << 20;  ///< octets; larger files are not read

/// A file as the folder lists it.
struct Run {
    QString path;
    OutcomeHead head;  ///< its time alone, from the file's name, where the head is damaged
};

/// The outcomes of the recipients of one run.
struct Content {
    struct Row {
        OutcomeLine line;
        qsizetype database = -1;  ///< in `databases`; -1 where no head precedes the line
    };
    QList<DatabaseFile> databases;
    QList<Row> rows;      ///< in the order of their last lines, one for each number
    qint64 damaged = 0;   ///< lines that could not be read
    bool cutOff = false;  ///< the last line has no end: it was under way when the program ended
};

/// The runs that the folder (ending in "/") contains, the newest first; other files are ignored.
QList<Run> runs(const QString& folder);

/// Reads any octets: a line that is damaged is counted and left out. The last line of a number counts.
Content parse(QByteArrayView file);
/// Fails with FileNotFound where the file is gone, Overflow where it is larger than largestFile, DeviceIo
/// and PathAccess.
Result<Content> read(const QString& path);

/// Removes the file of a run.
Status remove(const QString& path);
/// Removes all of them; the first failure.
Status removeAll(const QString& folder);

/// A name that no other run of this machine uses. Names sort by time.
QString newFileName(const QDateTime& begun);
/// Removes the oldest, so that mostRuns are left.
void removeOld(const QString& folder);

}  // namespace mail::outcomes
