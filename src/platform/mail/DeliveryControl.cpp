#include "platform/mail/DeliveryControl.h"

#include <utility>

namespace mail {

namespace {

constexpr int defaultTimeoutSecs = 60;

}  // namespace

DeliveryControl::DeliveryControl(QObject* parent) : QObject(parent), m_session(m_transcript) {
    connect(&m_session, &SmtpSession::finished, this, &DeliveryControl::finish);
    m_deferred.setSingleShot(true);
    connect(&m_deferred, &QTimer::timeout, this, &DeliveryControl::report);
}

Route DeliveryControl::route() const {
    Route route;
    route.host = ServerName.trimmed();
    route.port = ServerPort;
    route.localPort = OutPort;
    route.greetWithHelo = HeloMode == 1;
    route.opportunisticTls = OpportunisticTls;
    route.certificateFolder = CertificateFolder;
    route.login = UseAuth;
    if (UseAuth) {
        route.user = UserName;
        route.password = UserPassword;
    }
    return route;
}

void DeliveryControl::Send() {
    if (m_running) {
        m_session.abandon();
        m_deferred.stop();
        log(QStringLiteral("abbandonato"));
    }
    m_running = true;
    m_insideSend = true;
    m_clock.start();
    m_recipient = ToAddress;
    m_messageId.clear();
    m_transcript.setFile(LogEnabled ? LogFile : QString());

    const Route way = route();
    if (way.host.isEmpty()) {
        finish({false, 0, QStringLiteral("Manca il nome del server.")});
    } else if (way.port == 0) {
        finish({false, 0, QStringLiteral("La porta del server non è valida.")});
    } else {
        const Result<ComposedMessage> message = m_composer.compose(data());
        if (message.ok()) {
            m_messageId = message.value().messageId;
            m_session.deliver(way, message.value(),
                              (TimeoutSecs > 0 ? TimeoutSecs : defaultTimeoutSecs) * 1000);
        } else {
            finish({false, 0, message.status().text()});
        }
    }
    m_insideSend = false;
}

MessageData DeliveryControl::data() const {
    MessageData data;
    data.fromName = FromName;
    data.fromAddress = FromAddress;
    data.toName = ToName;
    data.toAddress = ToAddress;
    data.subject = Subject;
    data.bodyHtml = BodyHtml;
    data.bodyText = BodyText;
    data.templateHtml = TemplateHtml;
    data.priority = Priority;
    data.attachments = Attachments.items();
    return data;
}

void DeliveryControl::Abort() {
    if (!m_running) return;
    m_session.abandon();
    m_deferred.stop();
    m_outcome = {false, 0, QStringLiteral("Invio interrotto.")};
    report();
}

void DeliveryControl::finish(const DeliveryOutcome& outcome) {
    m_outcome = outcome;
    if (m_insideSend)
        m_deferred.start();
    else
        report();
}

void DeliveryControl::report() {
    const DeliveryOutcome outcome = std::exchange(m_outcome, {});
    m_running = false;
    log(QStringLiteral("%1: %2").arg(
        outcome.delivered ? QStringLiteral("consegnato") : QStringLiteral("non consegnato"),
        (outcome.code ? QString::number(outcome.code) + u' ' : QString()) +
            m_transcript.withoutSecrets(outcome.text)));
    if (outcome.delivered)
        Q_EMIT SendDone();
    else
        Q_EMIT SendError(outcome.code, outcome.text);
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
