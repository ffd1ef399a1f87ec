// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/contacts/Ldif.h"

#include <initializer_list>
#include <optional>
#include <QMultiHash>

#include "platform/contacts/CardText.h"

namespace contacts {

namespace {

/// Values by attribute in lower case; the first of several is used.
class Record {
  public:
    void add(const QByteArray& line) {
        const qsizetype colon = line.indexOf(':');
        if (colon < 1 || line.startsWith('#')) return;
        const QByteArray key = line.left(colon).split(';').constFirst().trimmed().toLower();
        const char mark = colon + 1 < line.size() ? line[colon + 1] : ' ';
        if (mark == '<') return;
        const QByteArray bytes = mark == ':' ? QByteArray::fromBase64(line.mid(colon + 2).trimmed())
                                             : line.mid(colon + 1).trimmed();
        if (key == "objectclass") {
            m_list = m_list || bytes.toLower().startsWith("groupof");
        } else if (!m_values.contains(key)) {
            m_values.insert(key, withLineBreaks(cardText(bytes)));
        }
    }

    /// The first of these attributes that has a value.
    QString text(std::initializer_list<const char*> keys) const {
        for (const char* key : keys) {
            QString value = m_values.value(key);
            if (!value.isEmpty()) return value;
        }
        return {};
    }

    /// None where the record is no entry.
    std::optional<Card> card() const {
        const QString change = text({"changetype"});
        const bool entry = m_values.size() > (m_values.contains("version") ? 1 : 0);
        if (!entry || (!change.isEmpty() && change.compare(QLatin1String("add"), Qt::CaseInsensitive) != 0)) {
            return std::nullopt;
        }
        Card card;
        card.displayName = text({"displayname", "cn"});
        if (card.displayName.isEmpty()) {
            card.displayName = QString(text({"givenname"}) + u' ' + text({"sn"})).trimmed();
        }
        if (m_list) return card;
        card.emailAddress = text({"mail"});
        card.companyName = text({"o", "company"});
        card.homeStreet = text({"mozillahomestreet", "homestreet"});
        if (card.homeStreet.isEmpty()) {
            // RFC 4517 3.3.28: "$" divides the lines of a postal address
            card.homeStreet = text({"homepostaladdress"}).replace(u'$', QLatin1String("\r\n"));
        }
        card.homePostalCode = text({"mozillahomepostalcode", "homepostalcode"});
        card.homeCity = text({"mozillahomelocalityname", "homelocalityname"});
        card.businessTelephone = text({"telephonenumber"});
        card.businessFax = text({"facsimiletelephonenumber", "fax"});
        return card;
    }

  private:
    QHash<QByteArray, QString> m_values;
    bool m_list = false;
};

}  // namespace

std::vector<Card> readLdif(const QByteArray& file) {
    const QByteArray bytes = withoutByteOrderMark(file);
    std::vector<Card> cards;
    Record record;
    QByteArray line;
    const auto endRecord = [&] {
        record.add(line);
        line.clear();
        if (const auto card = record.card()) cards.push_back(*card);
        record = Record();
    };
    QByteArrayView rest(bytes);
    while (!rest.isEmpty() && cards.size() < mostCards) {
        const QByteArrayView next = takeLine(rest);
        if (next.startsWith(' ')) {
            line += next.sliced(1);
        } else if (next.isEmpty()) {
            endRecord();
        } else {
            record.add(line);
            line = next.toByteArray();
        }
    }
    if (cards.size() < mostCards) endRecord();
    return cards;
}

}  // namespace contacts
