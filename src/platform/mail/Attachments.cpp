// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/Attachments.h"

#include <algorithm>

#include "platform/mail/FilePart.h"
#include "platform/text/Words.h"

namespace mail {
namespace {

constexpr qint64 largestAttachment = qint64{512} << 20;

Status unusable(ErrorCode code, const Attachment& file, const QString& why) {
    return {code, Words::tr("L'allegato %1 %2.").arg(file.name.isEmpty() ? file.path : file.name, why)};
}

Result<QByteArray> encode(const Attachment& file, const FileStamp& stamp, const CarriedFiles& allowed) {
    if (!stamp.exists()) return unusable(ErrorCode::FileNotFound, file, Words::tr("non esiste"));
    if (stamp.size > largestAttachment)
        return unusable(ErrorCode::RecordTooLarge, file, Words::tr("è troppo grande"));
    const auto content = readCarried(file.path, allowed, largestAttachment);
    if (!content.ok()) return unusable(content.status().code(), file, content.status().text());
    return attachmentPart(file.name.isEmpty() ? file.path : file.name, content.value());
}

}  // namespace

Status Attachments::follow(const QVector<Attachment>& list, const CarriedFiles& allowed) {
    if (allowed != m_allowed) {
        m_known.clear();
        m_parts.clear();
        m_allowed = allowed;
    }
    std::vector<Known> known;
    std::vector<SharedLines> parts;
    for (const Attachment& file : list) {
        const FileStamp stamp = FileStamp::of(file.path);
        const auto same = std::find_if(m_known.begin(), m_known.end(), [&](const Known& candidate) {
            return candidate.file.path == file.path && candidate.file.name == file.name &&
                   candidate.stamp == stamp;
        });
        if (same != m_known.end() && stamp.exists()) {
            parts.push_back(m_parts[static_cast<std::size_t>(same - m_known.begin())]);
        } else {
            auto part = encode(file, stamp, allowed);
            if (!part.ok()) return part.status();
            parts.emplace_back(std::move(part).value());
        }
        known.push_back({file, stamp});
    }
    m_known = std::move(known);
    m_parts = std::move(parts);
    return {};
}

}  // namespace mail
