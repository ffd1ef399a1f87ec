// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/oauth/RedirectListener.h"

#include <QHostAddress>
#include <QNetworkProxy>
#include <QTcpSocket>
#include <QTimer>

#include "platform/oauth/RedirectRequest.h"
#include "platform/text/Words.h"

namespace oauth {

namespace {

constexpr qsizetype mostBrowsers = 16;  // browsers open some spare connections
constexpr int requestMs = 10000;

/// Compared to the end, wherever the first difference is.
bool sameState(const QByteArray& one, const QByteArray& other) {
    if (one.size() != other.size()) return false;
    int difference = 0;
    for (qsizetype i = 0; i < one.size(); ++i)
        difference |= one[i] ^ other[i];
    return difference == 0;
}

}  // namespace

RedirectListener::RedirectListener(QObject* parent) : QObject(parent) {
    m_server.setProxy(QNetworkProxy::NoProxy);
    connect(&m_server, &QTcpServer::newConnection, this, &RedirectListener::accept);
}

Status RedirectListener::listen(const QString& redirectHost, const QByteArray& state) {
    m_state = state;
    const auto address =
        redirectHost == QLatin1String("[::1]") ? QHostAddress::LocalHostIPv6 : QHostAddress::LocalHost;
    if (m_server.listen(address)) return {};
    return {ErrorCode::DeviceIo,
            Words::tr("Impossibile attendere la risposta del browser: %1").arg(m_server.errorString())};
}

void RedirectListener::close() {
    m_server.close();
    const auto browsers = m_browsers.keys();
    m_browsers.clear();
    for (QTcpSocket* browser : browsers) {
        browser->disconnect(this);
        browser->abort();
        browser->deleteLater();
    }
}

void RedirectListener::accept() {
    while (QTcpSocket* const browser = m_server.nextPendingConnection()) {
        if (m_browsers.size() >= mostBrowsers) {
            delete browser;
            continue;
        }
        browser->setParent(this);
        browser->setReadBufferSize(longestRequestHead);
        m_browsers.insert(browser, {});
        connect(browser, &QTcpSocket::readyRead, this, [this, browser] { read(browser); });
        connect(browser, &QTcpSocket::disconnected, this, [this, browser] {
            m_browsers.remove(browser);
            browser->deleteLater();
        });
        QTimer::singleShot(requestMs, browser, &QTcpSocket::abort);
    }
}

void RedirectListener::read(QTcpSocket* browser) {
    if (!m_browsers.contains(browser)) return;  // it was answered
    QByteArray& input = m_browsers[browser];
    input += browser->readAll();
    const RedirectRequest request = parseRedirectRequest(input);
    switch (request.kind) {
        case RedirectRequest::State::Incomplete:
            return;
        case RedirectRequest::State::Refused:
            answer(browser, "400 Bad Request", Words::tr("Richiesta non valida."));
            return;
        case RedirectRequest::State::OtherPage:
            answer(browser, "404 Not Found", Words::tr("Pagina inesistente."));
            return;
        case RedirectRequest::State::Answer:
            break;
    }
    if (!sameState(request.state, m_state)) {
        answer(browser, "400 Bad Request", Words::tr("Questa risposta non appartiene all'accesso in corso."));
        return;
    }
    answer(browser, "200 OK",
           request.error.isEmpty()
               ? Words::tr("Risposta ricevuta: si può chiudere questa pagina e tornare a Vestrola.")
               : Words::tr("L'accesso non è stato concesso: si può chiudere questa pagina."));
    close();
    Q_EMIT answered(request.code, request.error);
}

void RedirectListener::answer(QTcpSocket* browser, const char* status, const QString& text) {
    m_browsers.remove(browser);
    const QByteArray page = QStringLiteral(
                                "<!DOCTYPE html><html lang=\"%1\"><head><meta charset=\"utf-8\">"
                                "<title>Vestrola</title></head><body><p>%2</p></body></html>\n")
                                .arg(Words::locale().bcp47Name(), text)
                                .toUtf8();
    browser->write(
        QByteArray("HTTP/1.1 ") + status +
        "\r\nContent-Type: text/html; charset=utf-8\r\nContent-Length: " + QByteArray::number(page.size()) +
        "\r\nConnection: close\r\nCache-Control: no-store\r\nReferrer-Policy: no-referrer\r\n"
        "Content-Security-Policy: default-src 'none'\r\nX-Content-Type-Options: nosniff\r\n\r\n" +
        page);
    browser->flush();  // the listener may end with this answer
    browser->disconnectFromHost();
}

}  // namespace oauth
