// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/contacts/VCard.h"

#include <QByteArrayList>

#include "platform/contacts/CardText.h"
#include "platform/contacts/VCardProperty.h"

namespace contacts {

namespace {

bool isLine(QByteArrayView line, const char* wanted) {
    return line.trimmed().toByteArray().compare(wanted, Qt::CaseInsensitive) == 0;
}

VCardStyle styleOf(const QByteArrayList& lines) {
    for (const QByteArray& line : lines) {
        if (isLine(line, "VERSION:2.1")) return VCardStyle::Old;
    }
    return VCardStyle::New;
}

/// Undoes folding: a line that begins with a blank continues the one before, and so does any line after a
/// quoted-printable one that ends in "=". The blank is of the text's own in 2.1.
QByteArrayList unfolded(const QByteArrayList& lines, VCardStyle style) {
    QByteArrayList result;
    bool softBreak = false;
    for (const QByteArray& line : lines) {
        const bool folded = line.startsWith(' ') || line.startsWith('\t');
        if (softBreak) {
            result.last().chop(1);
            result.last() += line;
        } else if (folded && !result.isEmpty()) {
            result.last() += style == VCardStyle::Old ? line : line.mid(1);
        } else {
            result.append(line);
        }
        softBreak = line.endsWith('=') && (softBreak || isQuotedPrintable(result.constLast()));
    }
    return result;
}

/// The property that serves a purpose best so far: the most preferred, among equals the first.
class Choice {
  public:
    void offer(const VCardProperty& property, int penalty = 0) {
        const int rank = property.rank + penalty;
        if (rank >= m_rank) return;
        m_rank = rank;
        m_property = property;
    }
    QString text() const { return m_property.text(); }
    QString part(int index) const { return m_property.part(index); }

  private:
    VCardProperty m_property;
    int m_rank = 1000;
};

/// A link such as "tel:+39-0543-1;ext=2" becomes the number to dial; any other text is unchanged.
QString withoutScheme(const QString& text, const QString& scheme) {
    if (!text.startsWith(scheme, Qt::CaseInsensitive)) return text;
    return text.mid(scheme.size()).section(u';', 0, 0);
}

QString displayName(const Choice& formatted, const Choice& name) {
    QString text = formatted.text();
    if (!text.trimmed().isEmpty()) return text;
    return QString(name.part(1) + u' ' + name.part(0)).trimmed();
}

Card cardOf(const QByteArrayList& lines) {
    const VCardStyle style = styleOf(lines);
    Choice formatted, name, organisation, email, home, telephone, fax;
    bool list = false;
    for (const QByteArray& line : unfolded(lines, style)) {
        const VCardProperty property = readProperty(line, style);
        if (property.name == "FN") formatted.offer(property);
        if (property.name == "N") name.offer(property);
        if (property.name == "ORG") organisation.offer(property);
        if (property.name == "EMAIL") email.offer(property);
        if (property.name == "ADR" && property.is("HOME")) home.offer(property);
        if (property.name == "TEL" && property.is("FAX") && !property.is("HOME")) {
            fax.offer(property, property.is("WORK") ? 0 : 200);
        }
        if (property.name == "TEL" && property.is("WORK") && !property.is("FAX")) telephone.offer(property);
        if (property.name == "KIND" || property.name == "X-ADDRESSBOOKSERVER-KIND") {
            list = property.value.trimmed().compare(QLatin1String("group"), Qt::CaseInsensitive) == 0;
        }
    }

    Card card;
    card.displayName = displayName(formatted, name);
    if (list) return card;
    card.emailAddress = withoutScheme(email.text(), QStringLiteral("mailto:"));
    card.companyName = organisation.part(0);
    card.homeStreet = home.part(2);
    card.homeCity = home.part(3);
    card.homePostalCode = home.part(5);
    card.businessTelephone = withoutScheme(telephone.text(), QStringLiteral("tel:"));
    card.businessFax = withoutScheme(fax.text(), QStringLiteral("tel:"));
    return card;
}

}  // namespace

std::vector<Card> readVCards(const QByteArray& file) {
    const QByteArray bytes = withoutByteOrderMark(file);
    std::vector<Card> cards;
    QByteArrayList lines;
    int depth = 0;  // a card may contain another one as its AGENT, which is skipped
    QByteArrayView rest(bytes);
    while (!rest.isEmpty() && cards.size() < mostCards) {
        const QByteArrayView line = takeLine(rest);
        if (isLine(line, "BEGIN:VCARD")) {
            const bool nested =
                depth > 0 && !lines.isEmpty() && lines.constLast().toUpper().startsWith("AGENT");
            if (depth > 0 && !nested) cards.push_back(cardOf(lines));
            if (!nested) lines.clear();
            depth = nested ? depth + 1 : 1;
        } else if (isLine(line, "END:VCARD")) {
            if (depth == 1) cards.push_back(cardOf(lines));
            if (depth > 0) --depth;
        } else if (depth == 1) {
            lines.append(line.toByteArray());
        }
    }
    if (depth > 0 && cards.size() < mostCards) cards.push_back(cardOf(lines));
    return cards;
}

}  // namespace contacts
