// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/wire_reader.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>

#include "platform/mail/wire_html.h"
#include "platform/mail/wire_text.h"

namespace wire {
namespace {

using Headers = std::vector<std::pair<QByteArray, QByteArray>>;

bool matches(const char* pattern, const QByteArray& text) {
    static QHash<QByteArray, QRegularExpression> known;
    QRegularExpression& expression = known[pattern];
    if (expression.pattern().isEmpty())
        expression.setPattern(QRegularExpression::anchoredPattern(QString::fromLatin1(pattern)));
    return expression.match(QString::fromUtf8(text)).hasMatch();
}

QByteArray valueOf(const Headers& headers, const QByteArray& name) {
    for (const auto& [known, value] : headers) {
        if (known == name) return value;
    }
    return {};
}

class Reader {
  public:
    Message read(const QByteArray& data) {
        checkOctets(data);
        const qsizetype end = data.indexOf("\r\n\r\n");
        if (end < 0) {
            complain("no empty line behind the headers");
            return std::move(m_message);
        }
        m_message.headers = headersOf(data.left(end + 2));
        checkOwnHeaders();
        Headers content;
        for (const auto& header : m_message.headers) {
            if (header.first.startsWith("content-")) content.push_back(header);
        }
        m_message.tree = part(content, data.mid(end + 4), {});
        return std::move(m_message);
    }

  private:
    void complain(const QByteArray& what) { m_message.complaints += QString::fromUtf8(what.left(300)); }

    // RFC 5321 2.3.8 and 4.5.3.1.6, RFC 5322 2.1.1
    void checkOctets(const QByteArray& data) {
        if (!data.endsWith("\r\n")) complain("no line end at the end");
        if (data.contains('\0')) complain("NUL");
        if (QByteArray(data).replace("\r\n", "").contains('\r')) complain("bare CR");
        if (QByteArray(data).replace("\r\n", "").contains('\n')) complain("bare LF");
        for (const QByteArray& line : data.split('\n')) {
            if (line.size() > 999) complain("line of more than 998 octets: " + line.left(50));
            if (line.startsWith("From ")) complain("line that mailboxes change: " + line.left(50));
        }
    }

    Headers headersOf(const QByteArray& block) {
        Headers headers;
        for (QByteArray line : block.chopped(2).split('\n')) {
            if (line.endsWith('\r')) line.chop(1);
            if (line.trimmed().isEmpty()) complain("blank header line");
            if (line.startsWith(' ') || line.startsWith('\t')) {
                if (headers.empty()) {
                    complain("headers that start with a folded line");
                } else {
                    checkFolding(headers.back().first, line.mid(1), line);
                    headers.back().second += line;
                }
                continue;
            }
            if (!matches("[A-Za-z-]+:( .*)?", line)) complain("no header line: " + line);
            const qsizetype colon = line.indexOf(':');
            headers.emplace_back(line.left(colon).toLower(), line.mid(colon + 1));
            checkFolding(headers.back().first, line.mid(colon + 2), line);
        }
        for (auto& header : headers)
            header.second = header.second.startsWith(' ') ? header.second.mid(1) : header.second;
        return headers;
    }

    // 78 octets, unless the content cannot be split: a link, a name, an address or a word of its
    // quoted part
    void checkFolding(const QByteArray& header, const QByteArray& text, const QByteArray& line) {
        const bool ofAddress =
            header == "from" || header == "to" || header == "list-id" || text.contains('@');
        const bool unbreakable = !text.contains(' ') && (ofAddress || text.contains("://"));
        if (line.size() > 78 && !unbreakable) complain("header line of more than 78 octets: " + line);
    }

    void checkOwnHeaders() {
        static const QByteArrayList necessary = {
            "from",       "to",           "subject",      "date",
            "message-id", "mime-version", "content-type", "list-unsubscribe"};
        static const QByteArrayList possible = {
            "content-transfer-encoding", "x-priority", "priority", "importance", "dkim-signature", "list-id",
            "list-unsubscribe-post"};
        QMap<QByteArray, int> count;
        for (const auto& header : m_message.headers) {
            if (++count[header.first] > 1) complain("twice " + header.first);
            if (!necessary.contains(header.first) && !possible.contains(header.first))
                complain("unexpected header " + header.first);
        }
        for (const QByteArray& name : necessary) {
            if (!count.contains(name)) complain("no " + name);
        }
        m_message.from = address("from");
        m_message.to = address("to");
        m_message.subject = headerText(valueOf(m_message.headers, "subject"), m_message.complaints);
        checkIdentity();
    }

    // RFC 5322 3.3, 3.6.4; RFC 2045 4; RFC 2369
    void checkIdentity() {
        const QByteArray date = valueOf(m_message.headers, "date");
        if (!matches(
                "(Mon|Tue|Wed|Thu|Fri|Sat|Sun), \\d{1,2} "
                "(Jan|Feb|Mar|Apr|May|Jun|Jul|Aug|Sep|Oct|Nov|Dec) \\d{4} \\d\\d:\\d\\d:\\d\\d [+-]\\d{4}",
                date))
            complain("date " + date);
        if (valueOf(m_message.headers, "mime-version") != "1.0") complain("another version of MIME");
        const QByteArray id = valueOf(m_message.headers, "message-id");
        const QByteArray domain = m_message.from.address.mid(m_message.from.address.lastIndexOf('@') + 1);
        m_message.messageId = id.mid(1).chopped(std::min<qsizetype>(1, id.size()));
        if (!matches("<[a-z0-9]+(\\.[a-z0-9]+)*@[^@<> ]+>", id) || !id.endsWith('@' + domain + '>'))
            complain("message-id " + id + " of a sender at " + domain);
        const QByteArray unsubscribe = valueOf(m_message.headers, "list-unsubscribe");
        const QByteArray post = valueOf(m_message.headers, "list-unsubscribe-post");
        const char* const form = post.isEmpty() ? "<(mailto:[!-;=?-~]+@[!-;=?-~]+|https?://[!-;=?-~]+)>"
                                                : "<https://[!-;=?-~]+>, <mailto:[!-;=?-~]+@[!-;=?-~]+>";
        if (!matches(form, unsubscribe)) complain("list-unsubscribe " + unsubscribe);
        // RFC 8058 3.1
        if (!post.isEmpty() && post != "List-Unsubscribe=One-Click")
            complain("list-unsubscribe-post " + post);
        // RFC 2919 3: labels of a dot-atom
        const QByteArray listId = valueOf(m_message.headers, "list-id");
        if (!listId.isEmpty() &&
            (!matches("<[^\\s\"(),:;<>@.\\[\\]\\\\]+(\\.[^\\s\"(),:;<>@.\\[\\]\\\\]+)+>", listId) ||
             listId.size() > 255))
            complain("list-id " + listId);
    }

    // One mailbox: a phrase and an address in angle brackets, or the address alone (RFC 5322 3.4)
    Address address(const QByteArray& name) {
        const QByteArray value = valueOf(m_message.headers, name);
        Address read{{}, value};
        if (value.endsWith('>')) {
            const qsizetype open = value.lastIndexOf(" <");
            read.address = value.mid(open + 2).chopped(1);
            read.name = phrase(value.left(open));
        }
        if (!matches("(?:[^\\s\"(),:;<>@\\[\\]\\\\]+|\"(?:[^\"\\\\]|\\\\.)*\")@[A-Za-z0-9._-]+"
                     "|[^\\s\"(),:;<>@\\[\\]\\\\]+@\\[[A-Za-z0-9.:-]+\\]",
                     read.address))
            complain("not one address: " + value);
        return read;
    }

    QString phrase(const QByteArray& text) {
        if (!text.startsWith('"')) {
            if (!matches("[A-Za-z0-9!#$%&'*+/=?^_`{|}~ -]+", text)) complain("no phrase: " + text);
            return headerText(text, m_message.complaints);
        }
        if (!matches("\"(?:[^\"\\\\]|\\\\.)*\"", text) || text.contains("=?")) complain("no phrase: " + text);
        QByteArray plain = text.mid(1).chopped(1);
        for (qsizetype i = 0; i < plain.size(); ++i) {
            if (plain[i] == '\\') plain.remove(i, 1);
        }
        return headerText(plain, m_message.complaints);
    }

    // Returns the part's tree. `around` is the kind of the multipart that contains it.
    QByteArray part(const Headers& headers, const QByteArray& body, const QByteArray& around) {
        const QByteArray contentType = valueOf(headers, "content-type");
        const qsizetype semicolon = contentType.indexOf(';');
        const QByteArray type = semicolon < 0 ? contentType : contentType.left(semicolon);
        const auto given =
            parameters(semicolon < 0 ? QByteArray() : contentType.mid(semicolon), m_message.complaints);
        if (!matches("[a-z]+/[a-z0-9.+-]+", type)) complain("type " + contentType);
        if (!type.startsWith("multipart/")) {
            leaf(type, given, headers, body);
            return type;
        }
        const QByteArray kind = type.mid(10);
        static const QMap<QByteArray, QByteArray> inside = {
            {"mixed", ""}, {"related", "mixed"}, {"alternative", "mixed related"}};
        if (!inside.contains(kind) || !(around.isEmpty() || inside[kind].split(' ').contains(around)))
            complain(type + " inside " + around);
        return kind + '(' + parts(kind, given["boundary"].toLatin1(), given["type"].toLatin1(), body) + ')';
    }

    // RFC 2046 5.1
    QByteArray parts(const QByteArray& kind, const QByteArray& boundary, const QByteArray& rootType,
                     const QByteArray& body) {
        if (!matches("[0-9A-Za-z'()+_,./:=?-]{1,70}", boundary)) complain("boundary " + boundary);
        const QByteArray separator = "--" + boundary + "\r\n", closing = "--" + boundary + "--\r\n";
        if (!body.startsWith(separator) || !body.endsWith("\r\n" + closing)) {
            complain("text around the parts of " + kind);
            return {};
        }
        QByteArrayList trees;
        QByteArray rest = body.mid(separator.size()).chopped(closing.size() + 2);
        for (bool more = true; more;) {
            const qsizetype end = rest.indexOf("\r\n" + separator);
            more = end >= 0;
            const QByteArray piece = more ? rest.left(end) : rest;
            rest = more ? rest.mid(end + 2 + separator.size()) : QByteArray();
            if (piece.contains(boundary)) complain("boundary inside a part");
            const qsizetype blank = piece.indexOf("\r\n\r\n");
            if (blank < 0) {
                complain("part without an empty line");
                continue;
            }
            const Headers headers = headersOf(piece.left(blank + 2));
            checkPartHeaders(headers);
            // a multipart inside ends with its own closing line, whose line end belongs to this boundary
            const bool multipart = valueOf(headers, "content-type").startsWith("multipart/");
            trees += part(headers, piece.mid(blank + 4) + (multipart ? "\r\n" : ""), kind);
        }
        checkLayer(kind, rootType, trees);
        return trees.join(',');
    }

    void checkLayer(const QByteArray& kind, const QByteArray& rootType, const QByteArrayList& trees) {
        if (trees.size() < 2) complain(kind + " around nothing: " + trees.join(','));
        if (kind == "alternative" && trees != QByteArrayList{"text/plain", "text/html"})
            complain("alternatives " + trees.join(','));
        if (kind != "related") return;
        const bool alternative = trees.value(0).startsWith("alternative");
        if (!(alternative || trees.value(0) == "text/html") ||
            rootType != (alternative ? "multipart/alternative" : "text/html"))
            complain("root " + rootType + " of " + trees.join(','));
    }

    void checkPartHeaders(const Headers& headers) {
        QSet<QByteArray> seen;
        for (const auto& [name, value] : headers) {
            if (seen.contains(name)) complain("twice " + name);
            seen.insert(name);
            if (!matches("content-(type|transfer-encoding|disposition|id)", name))
                complain("unexpected header of a part: " + name);
        }
        if (!seen.contains("content-type")) complain("part without a type");
    }

    void leaf(const QByteArray& type, const QMap<QByteArray, QString>& given, const Headers& headers,
              const QByteArray& body) {
        Leaf leaf{type, given, {}, {}, {}, {}};
        const QByteArray encoding = valueOf(headers, "content-transfer-encoding");
        if (encoding == "quoted-printable") {
            leaf.content = quotedPrintable(body, m_message.complaints);
        } else if (encoding == "base64") {
            leaf.content = base64(body, m_message.complaints);
        } else {
            complain("encoding " + encoding);
        }
        if (type.startsWith("text/")) {
            if (given["charset"] != "utf-8") complain("charset " + given["charset"].toUtf8());
            utf8(leaf.content, m_message.complaints);
        }
        const QByteArray disposition = valueOf(headers, "content-disposition");
        const qsizetype semicolon = disposition.indexOf(';');
        leaf.disposition = disposition.left(semicolon);
        if (semicolon >= 0)
            leaf.fileName = parameters(disposition.mid(semicolon), m_message.complaints)["filename"];
        const QByteArray id = valueOf(headers, "content-id");
        if (!id.isEmpty() && !matches("<[!-;=?A-~]+@[!-;=?A-~]+>", id)) complain("content-id " + id);
        leaf.contentId = id.mid(1).chopped(id.isEmpty() ? 0 : 1);
        if (type == "text/html") checkDeclarations(leaf.content, m_message.complaints);
        if (!leaf.disposition.isEmpty() && !valueOf(headers, "content-type").contains(" name=\""))
            complain("no plain name beside " + leaf.fileName.toUtf8());
        m_message.leaves.push_back(std::move(leaf));
    }

    Message m_message;
};

}  // namespace

QByteArray Message::header(const QByteArray& name) const {
    return valueOf(headers, name);
}

Message read(const QByteArray& data) {
    return Reader().read(data);
}

QByteArray unstuffed(const QByteArray& body) {
    QByteArrayList lines = body.split('\n');
    for (QByteArray& line : lines) {
        if (line.startsWith('.')) line.remove(0, 1);
    }
    return lines.join('\n');
}

}  // namespace wire
