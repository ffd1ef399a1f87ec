// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/BodyParts.h"

#include "platform/mail/QuotedPrintable.h"

namespace mail {
namespace {

/// Writes the layers from the outside in. Each layer starts with its own headers and ends with a line end.
class Layers {
  public:
    Layers(MessageText& text, const Body& body, const QByteArray& word)
        : m_text(text), m_out(text.end()), m_body(body), m_word(word) {}

    void withAttachments() {
        if (m_body.attachments->empty()) return withImages();
        const QByteArray boundary = open("mixed", 'm');
        separate(boundary);
        withImages();
        addAll(*m_body.attachments, boundary);
        close(boundary);
    }

  private:
    void withImages() {
        if (m_body.images.empty()) return alternatives();
        const QByteArray root = hasText() ? "multipart/alternative" : "text/html";
        const QByteArray boundary = open("related", 'r', ";\r\n type=\"" + root + '"');
        separate(boundary);
        alternatives();
        addAll(m_body.images, boundary);
        close(boundary);
    }

    void alternatives() {
        if (!hasHtml()) return leaf("plain", m_body.text);
        if (!hasText()) return leaf("html", m_body.html);
        const QByteArray boundary = open("alternative", 'a');
        separate(boundary);
        leaf("plain", m_body.text);
        separate(boundary);
        leaf("html", m_body.html);
        close(boundary);
    }

    void leaf(const char* subtype, const QByteArray& text) {
        m_out += "Content-Type: text/";
        m_out += subtype;
        m_out += "; charset=utf-8\r\nContent-Transfer-Encoding: quoted-printable\r\n\r\n";
        appendQuotedPrintable(m_out, text);
        // between boundaries this line end belongs to the boundary, at the end it must not double the text's
        // own
        if (!isWholeMessage() || !m_out.endsWith("\r\n")) m_out += "\r\n";
    }

    QByteArray open(const char* subtype, char letter, const QByteArray& parameters = {}) {
        QByteArray boundary = QByteArray("=_") + letter + '.' + m_word;
        m_out += "Content-Type: multipart/";
        m_out += subtype;
        m_out += parameters + ";\r\n boundary=\"" + boundary + "\"\r\n\r\n";
        return boundary;
    }

    void separate(const QByteArray& boundary) { m_out += "--" + boundary + "\r\n"; }
    void close(const QByteArray& boundary) { m_out += "--" + boundary + "--\r\n"; }

    void addAll(const std::vector<SharedLines>& parts, const QByteArray& boundary) {
        for (const SharedLines& part : parts) {
            separate(boundary);
            m_text.append(part);
        }
    }

    bool isWholeMessage() const {
        return m_body.attachments->empty() && m_body.images.empty() && !(hasText() && hasHtml());
    }
    bool hasText() const { return !QByteArrayView(m_body.text).trimmed().isEmpty(); }
    bool hasHtml() const { return !QByteArrayView(m_body.html).trimmed().isEmpty(); }

    MessageText& m_text;
    QByteArray& m_out;  ///< its last piece
    const Body& m_body;
    const QByteArray& m_word;
};

}  // namespace

void appendBody(MessageText& text, const Body& body, const QByteArray& word) {
    Layers(text, body, word).withAttachments();
}

}  // namespace mail
