// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/OutcomeLine.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <limits>
#include <QJsonDocument>
#include <QJsonObject>
#include <utility>

#include "platform/mail/SmtpReply.h"

namespace mail {

namespace {

constexpr std::array kindNames{std::pair{OutcomeKind::Delivered, QLatin1String("consegnato")},
                               std::pair{OutcomeKind::Refused, QLatin1String("rifiutato")},
                               std::pair{OutcomeKind::NoAnswer, QLatin1String("senza risposta")},
                               std::pair{OutcomeKind::NotSent, QLatin1String("non spedito")}};

constexpr std::array stageNames{std::pair{DeliveryStage::NotTried, QLatin1String("prima")},
                                std::pair{DeliveryStage::Connecting, QLatin1String("connessione")},
                                std::pair{DeliveryStage::Greeting, QLatin1String("saluto")},
                                std::pair{DeliveryStage::Hello, QLatin1String("ehlo")},
                                std::pair{DeliveryStage::Tls, QLatin1String("tls")},
                                std::pair{DeliveryStage::Login, QLatin1String("accesso")},
                                std::pair{DeliveryStage::Sender, QLatin1String("mittente")},
                                std::pair{DeliveryStage::Recipient, QLatin1String("destinatario")},
                                std::pair{DeliveryStage::Data, QLatin1String("data")},
                                std::pair{DeliveryStage::Body, QLatin1String("messaggio")}};

constexpr std::array causeNames{std::pair{DeliveryCause::Server, QLatin1String("server")},
                                std::pair{DeliveryCause::TimedOut, QLatin1String("tempo")},
                                std::pair{DeliveryCause::NoServer, QLatin1String("nessun server")},
                                std::pair{DeliveryCause::Stopped, QLatin1String("fermato")},
                                std::pair{DeliveryCause::Program, QLatin1String("programma")}};

template <class Value, class Names>
QLatin1String nameOf(Value value, const Names& names) {
    return std::find_if(names.begin(), names.end(), [&](const auto& one) { return one.first == value; })
        ->second;
}

template <class Names>
auto valueOf(const QJsonValue& name, const Names& names) {
    using Value = decltype(names.front().first);
    const QString text = name.toString();
    const auto found =
        std::find_if(names.begin(), names.end(), [&](const auto& one) { return text == one.second; });
    return found == names.end() ? std::optional<Value>() : std::optional<Value>(found->first);
}

QString shortened(const QString& text) {
    if (text.size() <= OutcomeLine::longestText) return text;
    const bool halved = text.at(OutcomeLine::longestText - 2).isHighSurrogate();
    return text.left(OutcomeLine::longestText - (halved ? 2 : 1)) + u'…';
}

/// Writes an object (RFC 8259) in one line. The library's own writer takes ten times as long, which is
/// noticeable in a run.
class LineWriter {
  public:
    LineWriter() { m_line.reserve(512); }

    void word(const char* name, QLatin1String value) {
        begin(name);
        m_line += '"';
        m_line.append(value.data(), value.size());
        m_line += '"';
    }
    void text(const char* name, const QString& value) {
        begin(name);
        m_line += '"';
        const QByteArray octets = value.toUtf8();
        if (std::ranges::none_of(octets, needsEscape)) {
            m_line += octets;
        } else {
            for (const char c : octets)
                addEscaped(c);
        }
        m_line += '"';
    }
    /// As Qt::ISODateWithMs writes it, which is much slower.
    void time(const char* name, const QDateTime& value) {
        const qint64 ms = value.toMSecsSinceEpoch();
        const std::time_t seconds = static_cast<std::time_t>(ms / 1000 - (ms % 1000 < 0 ? 1 : 0));
        std::tm parts{};
        begin(name);
        m_line += '"';
        if (::gmtime_r(&seconds, &parts)) {
            digits(parts.tm_year + 1900, 4, '-');
            digits(parts.tm_mon + 1, 2, '-');
            digits(parts.tm_mday, 2, 'T');
            digits(parts.tm_hour, 2, ':');
            digits(parts.tm_min, 2, ':');
            digits(parts.tm_sec, 2, '.');
            digits(static_cast<int>(ms - qint64{seconds} * 1000), 3, 'Z');
        }
        m_line += '"';
    }
    void number(const char* name, qint64 value) {
        begin(name);
        m_line += QByteArray::number(value);
    }
    QByteArray finished() { return m_line + "}\n"; }

  private:
    static bool needsEscape(char c) { return c == '"' || c == '\\' || static_cast<unsigned char>(c) < ' '; }
    void addEscaped(char c) {
        if (c == '"' || c == '\\')
            (m_line += '\\') += c;
        else if (needsEscape(c))
            m_line += "\\u00" + QByteArray(1, c).toHex();
        else
            m_line += c;
    }
    void digits(int value, int count, char behind) {
        for (int place = count == 4 ? 1000 : count == 3 ? 100 : 10; place > 0; place /= 10)
            m_line += static_cast<char>('0' + value / place % 10);
        m_line += behind;
    }
    void begin(const char* name) {
        m_line += m_line.isEmpty() ? "{\"" : ",\"";
        m_line += name;
        m_line += "\":";
    }

    QByteArray m_line;
};

std::optional<QJsonObject> objectOf(QByteArrayView line) {
    if (line.size() >= longestOutcomeLine) return std::nullopt;
    const QJsonDocument document = QJsonDocument::fromJson(QByteArray::fromRawData(line.data(), line.size()));
    if (!document.isObject()) return std::nullopt;
    return document.object();
}

QDateTime timeOf(const QJsonValue& text) {
    return QDateTime::fromString(text.toString(), Qt::ISODateWithMs).toUTC();
}

/// Years that can be written with four digits in each time zone.
bool isSensible(const QDateTime& time) {
    return time.isValid() && time.date().year() > 1900 && time.date().year() < 9999;
}

OutcomeKind kindOf(const DeliveryOutcome& outcome) {
    if (outcome.delivered) return OutcomeKind::Delivered;
    if (outcome.code != 0) return OutcomeKind::Refused;
    const bool given = outcome.unanswered || outcome.stage == DeliveryStage::Body;
    switch (outcome.cause) {
        case DeliveryCause::Program:
            return OutcomeKind::NotSent;
        case DeliveryCause::Stopped:
            return given ? OutcomeKind::NoAnswer : OutcomeKind::NotSent;
        default:
            return OutcomeKind::NoAnswer;
    }
}

}  // namespace

OutcomeLine OutcomeLine::of(const DeliveryOutcome& outcome, const QString& words) {
    OutcomeLine line;
    line.kind = kindOf(outcome);
    line.stage = outcome.stage;
    line.cause = outcome.cause;
    line.code = outcome.code;
    line.status = enhancedStatus(outcome.code, outcome.text);
    line.words = words;
    return line;
}

QByteArray OutcomeLine::bytes() const {
    LineWriter line;
    line.time("ora", time);
    if (number) line.number("numero", *number);
    line.text("indirizzo", shortened(address));
    line.word("esito", nameOf(kind, kindNames));
    line.word("fase", nameOf(stage, stageNames));
    line.word("causa", nameOf(cause, causeNames));
    if (code != 0) line.number("codice", code);
    if (!status.isEmpty()) line.text("stato", status);
    line.text("risposta", shortened(words));
    return line.finished();
}

QByteArray OutcomeHead::bytes() const {
    LineWriter line;
    line.text("formato", QStringLiteral("Vestrola esiti 1"));
    line.time("inizio", begun);
    // A path may be longer than any other text here: cut, it would name another file.
    line.text("database", database.path.size() > 4096 ? QString() : database.path);
    line.text("dispositivo", QString::number(database.device));
    line.text("inode", QString::number(database.inode));
    line.text("mittente", shortened(sender));
    line.text("oggetto", shortened(title));
    return line.finished();
}

std::optional<OutcomeHead> parseOutcomeHead(QByteArrayView line) {
    const auto object = objectOf(line);
    if (!object || object->value(u"formato").toString() != u"Vestrola esiti 1") return std::nullopt;
    OutcomeHead head;
    head.begun = timeOf(object->value(u"inizio"));
    if (!isSensible(head.begun)) return std::nullopt;
    head.database.path = object->value(u"database").toString();
    head.database.device = object->value(u"dispositivo").toString().toULongLong();
    head.database.inode = object->value(u"inode").toString().toULongLong();
    head.sender = printable(shortened(object->value(u"mittente").toString()).toUtf8());
    head.title = printable(shortened(object->value(u"oggetto").toString()).toUtf8());
    return head;
}

std::optional<OutcomeLine> parseOutcomeLine(QByteArrayView text) {
    const auto object = objectOf(text);
    if (!object) return std::nullopt;
    const auto kind = valueOf(object->value(u"esito"), kindNames);
    const auto stage = valueOf(object->value(u"fase"), stageNames);
    const auto cause = valueOf(object->value(u"causa"), causeNames);
    if (!kind || !stage || !cause) return std::nullopt;
    OutcomeLine line;
    line.kind = *kind;
    line.stage = *stage;
    line.cause = *cause;
    line.time = timeOf(object->value(u"ora"));
    if (!isSensible(line.time)) return std::nullopt;
    if (const QJsonValue number = object->value(u"numero"); !number.isUndefined()) {
        constexpr auto none = std::numeric_limits<qint64>::min();  // no row's number
        line.number = number.toInteger(none);
        if (*line.number == none) return std::nullopt;
    }
    line.address = object->value(u"indirizzo").toString();
    if (line.address.size() > OutcomeLine::longestText || !line.address.isValidUtf16()) return std::nullopt;
    line.code = object->value(u"codice").toInt();
    if (line.code < 0 || line.code > 999) return std::nullopt;
    line.status = enhancedStatus(line.code, object->value(u"stato").toString());
    line.words = printable(shortened(object->value(u"risposta").toString()).toUtf8());
    return line;
}

QString enhancedStatus(int code, QStringView text) {
    const QStringView word = text.left(text.indexOf(u' ') < 0 ? text.size() : text.indexOf(u' '));
    const QList<QStringView> parts = word.split(u'.');
    const auto isNumber = [](QStringView part) {
        return !part.isEmpty() && part.size() <= 3 &&
               std::ranges::all_of(part, [](QChar c) { return c >= u'0' && c <= u'9'; });
    };
    if (parts.size() != 3 || parts[0].size() != 1 || !std::ranges::all_of(parts, isNumber)) return {};
    return parts[0].at(0).unicode() - u'0' == code / 100 ? word.toString() : QString();
}

}  // namespace mail
