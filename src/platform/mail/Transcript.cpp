// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/Transcript.h"

#include <algorithm>
#include <QDateTime>

#include "platform/mail/SmtpReply.h"
#include "platform/system/OutputFile.h"

namespace mail {

namespace {

constexpr qsizetype longestShown = 1000;  // of a line: a server's line may be thirty times as long

}  // namespace

void Transcript::setFile(const QString& path) {
    if (m_file.isOpen() && m_path == path) return;
    m_file.close();
    m_path = path;
    m_status = {};
    if (path.isEmpty()) return;
    m_status = sys::openForWriting(m_file, path, sys::WriteMode::Append, sys::FileKind::Own);
}

void Transcript::addSecret(const QByteArray& secret) {
    if (!secret.isEmpty() && !m_secrets.contains(secret)) m_secrets.append(secret);
}

bool Transcript::holdsSecret(QByteArrayView text) const {
    return std::any_of(m_secrets.begin(), m_secrets.end(),
                       [&](const QByteArray& secret) { return text.contains(QByteArrayView(secret)); });
}

QString Transcript::withoutSecrets(const QString& text) const {
    return !m_secrets.isEmpty() && holdsSecret(text.toUtf8()) ? QStringLiteral("(omesso)") : text;
}

void Transcript::sent(QByteArrayView text) {
    if (active()) line('>', text);
}

void Transcript::received(int code, QByteArrayView text) {
    if (!active()) return;
    const QByteArray number = QByteArray::number(code);
    if (holdsSecret(text)) {
        line('<', number + " (omesso)");
        return;
    }
    for (qsizetype at = 0; at <= text.size();) {
        qsizetype end = text.indexOf('\n', at);
        const bool last = end < 0;
        if (last) end = text.size();
        line('<', number + (last ? ' ' : '-') + text.sliced(at, end - at).toByteArray());
        at = end + 1;
    }
}

void Transcript::remark(const QString& text) {
    if (active()) line('*', text.toUtf8());
}

void Transcript::line(char direction, QByteArrayView text) {
    const QByteArray time =
        QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz")).toLatin1();
    QString shown = printable(text);
    if (shown.size() > longestShown) {
        shown.truncate(shown.at(longestShown - 1).isHighSurrogate() ? longestShown - 1 : longestShown);
        shown += u'…';
    }
    m_file.write(time + ' ' + direction + ' ' + shown.toUtf8() + "\r\n");
}

void Transcript::flush() {
    if (active()) m_file.flush();
}

}  // namespace mail
