// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/html/SourceText.h"

#include "platform/text/AnsiCodec.h"

namespace {

enum class Content { Markup, Style, Script };

// References to the numbers 128 to 159 mean other characters, so these controls are left as they are
bool isForeign(QChar c) {
    return c.unicode() > 0x9F && (c.isSurrogate() || !text::ansiCode(c.unicode()));
}

bool startsAt(const QString& text, qsizetype at, QLatin1String name) {
    if (QStringView(text).mid(at, name.size()).compare(name, Qt::CaseInsensitive) != 0) return false;
    const QChar behind = at + name.size() < text.size() ? text[at + name.size()] : QChar();
    return behind == '>' || behind == ' ';
}

// Tracks the kind of text at a position, as far as escapes differ
class Scanner {
  public:
    Content contentAt(const QString& text, qsizetype at) {
        while (m_place < at)
            advance(text);
        return m_content;
    }

  private:
    void advance(const QString& text) {
        if (text[m_place] != '<') {
            if (m_inTag && text[m_place] == '"') m_inQuotes = !m_inQuotes;
            if (m_inTag && !m_inQuotes && text[m_place] == '>') {
                m_inTag = false;
                m_content = m_next;
            }
            ++m_place;
        } else if (m_content != Content::Markup) {
            const QLatin1String end(m_content == Content::Style ? "</style" : "</script");
            if (startsAt(text, m_place, end)) m_content = m_next = Content::Markup;
            ++m_place;
        } else if (QStringView(text).mid(m_place, 4) == QLatin1String("<!--")) {
            const qsizetype end = text.indexOf(QLatin1String("-->"), m_place + 4);
            m_place = end < 0 ? text.size() : end + 3;
        } else {
            if (!m_inTag) {
                m_inTag = true;
                m_next = startsAt(text, m_place, QLatin1String("<style"))    ? Content::Style
                         : startsAt(text, m_place, QLatin1String("<script")) ? Content::Script
                                                                             : Content::Markup;
            }
            ++m_place;
        }
    }

    qsizetype m_place = 0;
    Content m_content = Content::Markup;
    Content m_next = Content::Markup;
    bool m_inTag = false;
    bool m_inQuotes = false;
};

QString escaped(char32_t character, QStringView units, Content content) {
    switch (content) {
        case Content::Style:
            return QLatin1Char('\\') + QString::number(character, 16).toUpper() + QLatin1Char(' ');
        case Content::Script: {
            QString out;
            for (const QChar unit : units)
                out += QStringLiteral("\\u%1").arg(unit.unicode(), 4, 16, QLatin1Char('0'));
            return out;
        }
        case Content::Markup:
            break;
    }
    return QStringLiteral("&#%1;").arg(static_cast<uint>(character));
}

}  // namespace

QString html::sourceText(const QString& html) {
    QStringView text(html);
    if (text.startsWith(QChar::ByteOrderMark)) text = text.mid(1);
    while (!text.isEmpty() && QStringView(u" \t\r\n\f").contains(text.back()))
        text.chop(1);
    return text.toString();
}

QString html::ansiForm(const QString& serialised) {
    QString out;
    Scanner scanner;
    qsizetype from = 0;
    for (qsizetype at = 0; at < serialised.size(); ++at) {
        if (!isForeign(serialised[at])) continue;
        if (out.isNull()) out.reserve(serialised.size() + serialised.size() / 8);
        QStringView rest = QStringView(serialised).mid(at);
        const qsizetype length = rest.size();
        char32_t character = text::takeCharacter(rest);
        const qsizetype units = length - rest.size();
        if (QChar::isSurrogate(character)) character = QChar::ReplacementCharacter;
        out += QStringView(serialised).mid(from, at - from);
        out += escaped(character, QStringView(serialised).mid(at, units), scanner.contentAt(serialised, at));
        at += units - 1;
        from = at + 1;
    }
    if (from == 0) return serialised;
    out += QStringView(serialised).mid(from);
    return out;
}
