// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/DeliveryControl.h"

#include <cassert>
#include <QHostAddress>
#include <QScopedValueRollback>
#include <utility>

#include "platform/mail/DomainName.h"
#include "platform/mail/ServerVerdict.h"
#include "platform/system/Keyring.h"
#include "platform/text/Blanks.h"
#include "platform/text/Words.h"

namespace mail {

namespace {

constexpr int defaultTimeoutSecs = 60;

}  // namespace

DeliveryControl::DeliveryControl(QObject* parent) : QObject(parent), m_session(m_transcript) {
    connect(&m_session, &SmtpSession::finished, this, &DeliveryControl::finish);
    m_deferred.setSingleShot(true);
    connect(&m_deferred, &QTimer::timeout, this, [this] { report(std::exchange(m_later, {})); });
}

Route DeliveryControl::route(const QString& host) const {
    Route route;
    route.host = host;
    route.port = ServerPort;
    route.localPort = OutPort;
    route.greetWithHelo = HeloMode == 1;
    route.opportunisticTls = OpportunisticTls;
    route.publicOnly = PublicServersOnly;
    route.insideHosts = InsideHosts;
    route.certificateFolder = CertificateFolder;
    route.tlsListFile = TlsListFile;
    route.clearListFile = ClearListFile;
    route.login = UseAuth;
    if (UseAuth) {
        route.user = UserName;
        route.password = UserPassword;
        route.bearer = UserPassword == oauth::passwordWord;
    }
    return route;
}

void DeliveryControl::Send() {
    if (m_running) {
        giveUp();
        log(QStringLiteral("abbandonato"));
    }
    assert(!m_insideSend && !m_session.busy());
    m_running = true;
    const QScopedValueRollback inside(m_insideSend, true);
    m_clock.start();
    const bool addressIsFresh = ToAddress.useUp();
    m_current = {DatabaseFile::at(Database), RecipientNumber, addressIsFresh ? ToAddress.text() : QString()};
    m_recipient = ToAddress.text().left(longestShown);
    m_messageId.clear();
    m_transcript.setFile(LogEnabled ? LogFile : QString());

    const QString host = connectableHost(ServerName);
    logStart(host);
    if (const QString why = whyNotSent(addressIsFresh); !why.isEmpty()) {
        finish({false, 0, why});
    } else if (AwaitedReply* const reply = awaitedFor(m_current)) {
        m_transcript.remark(QStringLiteral("La risposta al messaggio di prima è ancora attesa"));
        m_awaitedHere = reply;
    } else {
        startNew(host);
    }
}

void DeliveryControl::startNew(const QString& host) {
    if (host.isEmpty()) {
        finish({false, 0, whyNoHost(), false, DeliveryStage::NotTried,
                OpportunisticTls ? DeliveryCause::NoServer : DeliveryCause::Program});
        return;
    }
    // An address is no mail exchanger (RFC 5321 5.1), whether public or not.
    if (PublicServersOnly && !QHostAddress(host).isNull()) {
        finish({false, 0, noMailServer(), false, DeliveryStage::NotTried, DeliveryCause::NoServer});
        return;
    }
    if (UseAuth && sys::keyring::isMarker(UserPassword)) {
        finish({false, 0, Words::tr("Il portachiavi non ha dato la password di questo account.")});
        return;
    }
    if (ServerPort == 0) {
        finish({false, 0, Words::tr("La porta del server non è valida.")});
        return;
    }
    const Result<ComposedMessage> message = m_composer.compose(*this);
    if (!message.ok()) {
        finish({false, 0, message.status().text()});
        return;
    }
    m_messageId = message.value().messageId;
    if (!message.value().signing.ok()) m_transcript.remark(message.value().signing.text());
    SmtpTimes times = StageTimes;
    times.stall = (TimeoutSecs > 0 ? TimeoutSecs : defaultTimeoutSecs) * 1000;
    m_waiting = Waiting{route(host), message.value(), times};
    startWaiting();
}

QString DeliveryControl::whyNoHost() const {
    const QStringView name = text::trimBlanks(ServerName);
    if (OpportunisticTls && !NoServerReason.isEmpty()) return NoServerReason;
    // A null MX names the root (RFC 7505)
    if (OpportunisticTls && (name.isEmpty() || name == u".")) return noMailServer();
    return name.isEmpty() ? Words::tr("Manca il nome del server.")
                          : Words::tr("Il nome del server non è valido.");
}

void DeliveryControl::Abort() {
    m_stopped = true;
    if (!m_running) return;
    const DeliveryStage reached = m_session.busy() ? m_session.stage() : DeliveryStage::NotTried;
    const bool unanswered = giveUp();
    report({false, 0, Words::tr("Invio interrotto."), false, reached, DeliveryCause::Stopped, unanswered});
}

void DeliveryControl::finish(const DeliveryOutcome& outcome) {
    noteLogin(outcome);
    if (m_insideSend)
        finishLater(outcome);
    else
        report(outcome);
}

void DeliveryControl::finishLater(const DeliveryOutcome& outcome) {
    assert(m_running && !m_deferred.isActive());  // one outcome for each Send
    m_later = outcome;
    m_deferred.start();
}

void DeliveryControl::report(const DeliveryOutcome& outcome) {
    assert(m_running && !m_deferred.isActive());                          // one outcome for each Send,
    assert(!m_insideSend);                                                // after it has returned,
    assert(!m_session.busy() && !m_waiting && m_awaitedHere == nullptr);  // when nothing of it is under way
    m_running = false;
    if (outcome.delivered) noteAccepted(m_current);
    noteOutcome(outcome);
    if (const QString verdict = m_transcript.active() ? verdictOf(outcome) : QString(); !verdict.isEmpty())
        m_transcript.remark(m_transcript.withoutSecrets(verdict));
    if (m_transcript.active())
        log(QStringLiteral("%1: %2").arg(
            outcome.delivered ? QStringLiteral("consegnato") : QStringLiteral("non consegnato"),
            (outcome.code ? QString::number(outcome.code) + u' ' : QString()) +
                m_transcript.withoutSecrets(outcome.text)));
    m_last = outcome;
    if (outcome.delivered)
        Q_EMIT SendDone();
    else
        Q_EMIT SendError(outcome.code, outcome.text);
}

Status DeliveryControl::OpenLog() {
    m_transcript.setFile(LogEnabled ? LogFile : QString());
    return m_transcript.status();
}

void DeliveryControl::Remark(const QString& text) {
    m_transcript.setFile(LogEnabled ? LogFile : QString());
    m_transcript.remark(text);
    m_transcript.flush();
}

void DeliveryControl::logStart(const QString& host) {
    if (!m_transcript.active()) return;
    m_transcript.remark(
        QStringLiteral("Destinatario %1, %2, server %3, porta %4")
            .arg(m_recipient,
                 OpportunisticTls ? QStringLiteral("invio diretto") : QStringLiteral("invio tramite server"),
                 host.isEmpty() ? QStringLiteral("-") : host, QString::number(ServerPort)));
}

void DeliveryControl::log(const QString& outcome) {
    if (!m_transcript.active()) return;
    m_transcript.remark(QStringLiteral("Destinatario %1, Message-ID %2, %3, %4 s")
                            .arg(m_recipient,
                                 m_messageId.isEmpty() ? QStringLiteral("-") : QString::fromUtf8(m_messageId),
                                 outcome, QString::number(double(m_clock.elapsed()) / 1000, 'f', 3)));
    m_transcript.flush();
}

}  // namespace mail
