// SPDX-License-Identifier: GPL-3.0-or-later
// Whom a message is for, what was accepted in a run, and the replies that are awaited separately.
#include <algorithm>
#include <cassert>
#include <QDeadlineTimer>
#include <utility>

#include "platform/mail/DeliveryControl.h"
#include "platform/text/Words.h"

namespace mail {

namespace {

constexpr size_t mostAwaited = 2;

DeliveryOutcome lateOutcome(bool accepted, int code) {
    return {accepted,
            code,
            Words::tr("Risposta in ritardo al messaggio di prima"),
            false,
            DeliveryStage::Body,
            DeliveryCause::Server};
}

}  // namespace

/// Why it may not be sent; empty: it may.
QString DeliveryControl::whyNotSent(bool addressIsFresh) const {
    if (RecipientNumber == recipient::outsideRun) return {};
    if (RecipientNumber == recipient::nobody)
        return Words::tr("Il destinatario non è stato letto: nessun invio.");
    if (m_stopped) return Words::tr("L'invio è stato fermato: nessun invio fino al prossimo avvio.");
    if (!addressIsFresh) return Words::tr("L'indirizzo del destinatario non è stato letto: nessun invio.");
    if (m_acceptedInRun.contains({Database, RecipientNumber}))
        return Words::tr("Il messaggio per questo destinatario è già stato accettato in questo invio.");
    if (!Accepted) return {};
    if (Accepted->holds(m_current.database, m_current.number, m_current.address))
        return Words::tr("Il messaggio per questo destinatario è già stato accettato.");
    if (Accepted->room() <= int(m_awaited.size()))
        return Words::tr("Non c'è più spazio per ricordare i messaggi accettati.");
    return {};
}

void DeliveryControl::noteAccepted(const Recipient& accepted) {
    if (accepted.number == recipient::outsideRun) return;
    m_acceptedInRun.insert({accepted.database.path, accepted.number});
    if (!Accepted) return;
    Accepted->add(accepted.database, accepted.number, accepted.address);
    assert(Accepted->holds(accepted.database, accepted.number, accepted.address));
}

/// An outcome is in the book before the caller is notified.
void DeliveryControl::noteOutcome(const DeliveryOutcome& outcome) {
    if (m_book && m_current.number != recipient::outsideRun) enter(*m_book, m_current, outcome);
}

void DeliveryControl::enter(OutcomeFile& book, const Recipient& recipient, const DeliveryOutcome& outcome) {
    OutcomeLine line = OutcomeLine::of(outcome, m_transcript.withoutSecrets(outcome.text));
    line.time = QDateTime::currentDateTimeUtc();
    if (recipient.number != recipient::nobody) {
        line.number = recipient.number;
        line.address = recipient.address;
    }
    const bool wasSound = book.status().ok();
    book.add(recipient.database, line);
    if (wasSound && !book.status().ok())
        m_transcript.remark(QStringLiteral("Registro degli esiti: ") + book.status().text());
}

void DeliveryControl::BeginRun() {
    m_stopped = false;
    m_runIsNew = true;
    m_session.beginRun();
    m_tokens.beginRun();
    m_book =
        BookFolder.isEmpty() ? nullptr : std::make_shared<OutcomeFile>(BookFolder, FromAddress, BookTitle);
}

void DeliveryControl::BeginTick() {
    if (std::exchange(m_runIsNew, false)) m_acceptedInRun.clear();
}

void DeliveryControl::Marked(qint64 number) {
    if (!Accepted) return;
    const bool current = m_current.number == number && m_current.database.path == Database;
    Accepted->remove(current ? m_current.database : DatabaseFile::at(Database), number);
}

void DeliveryControl::Forget(const QString& database, const QList<qint64>& numbers) {
    const DatabaseFile file = DatabaseFile::at(database);
    const QSet<qint64> chosen(numbers.begin(), numbers.end());
    for (const qint64 number : chosen)
        if (Accepted) Accepted->remove(file, number);
    const auto forgotten = std::partition(m_awaited.begin(), m_awaited.end(), [&](const GivenUp& awaited) {
        return !chosen.contains(awaited.recipient.number) || !awaited.recipient.database.same(file);
    });
    const bool current = std::any_of(forgotten, m_awaited.end(), [&](const GivenUp& awaited) {
        return awaited.reply.get() == m_awaitedHere;
    });
    const bool forgotSome = forgotten != m_awaited.end();
    m_awaited.erase(forgotten, m_awaited.end());
    if (current) {
        m_awaitedHere = nullptr;
        finishLater({false, 0, Words::tr("Il destinatario è stato selezionato di nuovo.")});
    }
    startWaiting();
    if (forgotSome && m_awaited.empty()) Q_EMIT AwaitedEnded();
}

/// A reply that is awaited for this very row and address. Null: none.
AwaitedReply* DeliveryControl::awaitedFor(const Recipient& recipient) const {
    if (recipient.number == recipient::outsideRun) return nullptr;
    const auto found = std::find_if(m_awaited.begin(), m_awaited.end(), [&](const GivenUp& awaited) {
        return awaited.recipient.number == recipient.number &&
               awaited.recipient.address == recipient.address &&
               awaited.recipient.database.same(recipient.database);
    });
    return found == m_awaited.end() ? nullptr : found->reply.get();
}

/// Ends the running message without a signal; true where its reply is awaited.
bool DeliveryControl::giveUp() {
    m_deferred.stop();
    m_waiting.reset();
    m_tokens.cancel();
    m_awaitedHere = nullptr;
    std::unique_ptr<AwaitedReply> reply = m_session.abandon();
    if (!reply) return false;
    assert(m_awaited.size() < mostAwaited && !awaitedFor(m_current));
    AwaitedReply* const shown = reply.get();
    connect(shown, &AwaitedReply::ended, this,
            [this, shown](bool accepted, int code) { onLateReply(shown, accepted, code); });
    m_awaited.push_back({m_current, std::move(reply), m_book});
    m_transcript.remark(
        QStringLiteral("La risposta al messaggio per %1 è attesa in disparte").arg(m_recipient));
    shown->look();
    return true;
}

void DeliveryControl::onLateReply(AwaitedReply* reply, bool accepted, int code) {
    const auto found = std::find_if(m_awaited.begin(), m_awaited.end(),
                                    [&](const GivenUp& awaited) { return awaited.reply.get() == reply; });
    assert(found != m_awaited.end());  // a reply ends once
    GivenUp awaited = std::move(*found);
    m_awaited.erase(found);
    reply->setParent(this);
    awaited.reply.release()->deleteLater();
    if (accepted) noteAccepted(awaited.recipient);
    if (awaited.book && code != 0 && awaited.recipient.number != recipient::outsideRun)
        enter(*awaited.book, awaited.recipient, lateOutcome(accepted, code));
    m_transcript.remark(QStringLiteral("Risposta in ritardo al messaggio per %1: %2")
                            .arg(awaited.recipient.address.left(longestShown),
                                 code ? QString::number(code) : QStringLiteral("nessuna")));
    m_transcript.flush();
    if (reply == m_awaitedHere) {
        m_awaitedHere = nullptr;
        finish(lateOutcome(accepted, code));
    }
    startWaiting();
    if (m_awaited.empty()) Q_EMIT AwaitedEnded();
}

void DeliveryControl::startWaiting() {
    if (!m_waiting) return;
    if (m_awaited.size() >= mostAwaited) {
        if (m_insideSend) m_transcript.remark(QStringLiteral("Attesa: due risposte sono ancora attese"));
        return;
    }
    const Waiting waiting = *std::exchange(m_waiting, std::nullopt);
    deliver(waiting);
}

/// For asserts: the message may be handed to the session. One with a number is for a row that was read, in a
/// run that goes on, and no reply is awaited for it.
bool DeliveryControl::mayStart() const {
    if (!m_running || m_session.busy() || m_awaitedHere || m_awaited.size() >= mostAwaited) return false;
    if (m_current.number == recipient::outsideRun) return true;
    return m_current.number != recipient::nobody && !m_stopped && !awaitedFor(m_current);
}

QList<qint64> DeliveryControl::Awaited(const QString& database) const {
    const DatabaseFile file = DatabaseFile::at(database);
    QList<qint64> numbers;
    for (const GivenUp& awaited : m_awaited)
        if (awaited.recipient.number != recipient::outsideRun && awaited.recipient.database.same(file))
            numbers.append(awaited.recipient.number);
    return numbers;
}

bool DeliveryControl::Awaiting() const {
    return !m_awaited.empty();
}

void DeliveryControl::Settle() {
    if (m_running) giveUp();
    m_running = false;
    if (m_awaited.empty()) return;
    const QDeadlineTimer deadline(Accepted ? StageTimes.farewell : 0);
    while (!m_awaited.empty()) {
        m_awaited.back().reply->waitForEnd(int(deadline.remainingTime()));
        if (deadline.hasExpired()) break;
    }
    m_awaited.clear();
}

DeliveryControl::~DeliveryControl() {
    blockSignals(true);  // the receivers may be partly destroyed
    Settle();
}

}  // namespace mail
