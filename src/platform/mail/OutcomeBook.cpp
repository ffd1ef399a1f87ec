// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/OutcomeBook.h"

#include <algorithm>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>

#include "platform/system/OwnFile.h"
#include "platform/text/Words.h"

namespace mail::outcomes {

namespace {

const QString nameFormat = QStringLiteral("yyyyMMdd'T'HHmmsszzz");

/// When a run began, by its file's name; an invalid time for any other name.
QDateTime begunBy(const QString& name) {
    static const QRegularExpression form(QStringLiteral("^(\\d{8}T\\d{9})Z-\\d{1,10}(-\\d{1,6})?\\.jsonl$"));
    const QRegularExpressionMatch match = form.match(name);
    if (!match.hasMatch()) return {};
    QDateTime begun = QDateTime::fromString(match.captured(1), nameFormat);
    begun.setTimeSpec(Qt::UTC);
    return begun;
}

/// Names of the runs' files, the newest first.
QStringList names(const QString& folder) {
    QStringList all = QDir(folder).entryList(QDir::Files | QDir::NoSymLinks, QDir::Name | QDir::Reversed);
    all.removeIf([](const QString& name) { return !begunBy(name).isValid(); });
    return all;
}

/// Splits octets into complete lines.
class Lines {
  public:
    explicit Lines(QByteArrayView octets) : m_left(octets) {}
    bool next(QByteArrayView& line) {
        const qsizetype end = m_left.indexOf('\n');
        if (end < 0) return false;
        line = m_left.first(end);
        m_left = m_left.sliced(end + 1);
        return true;
    }
    bool rest() const { return !m_left.isEmpty(); }

  private:
    QByteArrayView m_left;
};

}  // namespace

QList<Run> runs(const QString& folder) {
    QList<Run> found;
    // More are there only if something other than the program has added them.
    for (const QString& name : names(folder).mid(0, 4 * mostRuns)) {
        Run run{folder + name, {}};
        run.head.begun = begunBy(name);
        const auto start = sys::readOwnFilePart(run.path, 0, longestOutcomeLine);
        if (!start.ok()) continue;
        QByteArrayView line;
        if (Lines(start.value()).next(line))
            if (const auto head = parseOutcomeHead(line)) run.head = *head;
        found.append(run);
    }
    return found;
}

Content parse(QByteArrayView file) {
    Content content;
    QHash<QPair<qsizetype, qint64>, qsizetype> places;
    QList<bool> outdated;
    Lines lines(file);
    for (QByteArrayView text; lines.next(text);) {
        if (auto line = parseOutcomeLine(text)) {
            const qsizetype database = content.databases.size() - 1;
            if (line->number) {
                qsizetype& place = places[{database, *line->number}];
                if (place > 0) outdated[place - 1] = true;
                place = content.rows.size() + 1;
            }
            content.rows.append({std::move(*line), database});
            outdated.append(false);
        } else if (const auto head = parseOutcomeHead(text)) {
            content.databases.append(head->database);
        } else {
            ++content.damaged;
        }
    }
    content.cutOff = lines.rest();
    qsizetype row = 0;
    content.rows.removeIf([&](const Content::Row&) { return outdated[row++]; });
    return content;
}

Result<Content> read(const QString& path) {
    const auto octets = sys::readOwnFile(path, largestFile);
    if (!octets.ok()) return octets.status();
    return parse(octets.value());
}

Status remove(const QString& path) {
    if (QFile::remove(path) || !QFileInfo::exists(path)) return {};
    return {ErrorCode::PathAccess, Words::tr("Il file \"%1\" non si può eliminare.").arg(path)};
}

Status removeAll(const QString& folder) {
    Status first;
    for (const QString& name : names(folder)) {
        Status removed = remove(folder + name);
        if (first.ok()) first = std::move(removed);
    }
    return first;
}

QString newFileName(const QDateTime& begun) {
    static int number = 0;
    return QStringLiteral("%1Z-%2-%3.jsonl")
        .arg(begun.toUTC().toString(nameFormat))
        .arg(QCoreApplication::applicationPid())
        .arg(++number % 1000000, 6, 10, QLatin1Char('0'));
}

void removeOld(const QString& folder) {
    for (const QString& name : names(folder).mid(mostRuns))
        QFile::remove(folder + name);
}

}  // namespace mail::outcomes
