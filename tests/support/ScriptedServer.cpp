// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/ScriptedServer.h"

#include <poll.h>
#include <sys/socket.h>

#include <algorithm>
#include <QRegularExpression>
#include <QSslConfiguration>
#include <QSslSocket>
#include <QTcpServer>

namespace testing_support {

namespace {

constexpr int serverPatienceMs = 15000;
constexpr int sliceMs = 20;

/// Returns bare descriptors, so that the socket can be made where it is used.
class Listener : public QTcpServer {
  public:
    QList<qintptr> descriptors;

  protected:
    void incomingConnection(qintptr descriptor) override { descriptors.append(descriptor); }
};

QByteArray unescaped(QByteArray text) {
    return text.replace("\\r", "\r").replace("\\n", "\n").replace(QByteArray("\\0"), QByteArray(1, '\0'));
}

}  // namespace

ScriptedServer::ScriptedServer(QList<QByteArrayList> dialogues, TlsIdentity identity, quint16 port,
                               QHash<QByteArray, Answer> answers)
    : m_dialogues(std::move(dialogues)),
      m_identity(std::move(identity)),
      m_port(port),
      m_answers(std::move(answers)) {
    start();
    m_listening.acquire();
}

ScriptedServer::~ScriptedServer() {
    requestInterruption();
    wait();
}

std::string ScriptedServer::remainder() {
    if (!wait(serverPatienceMs)) {
        requestInterruption();
        wait();
    }
    return m_problem.toStdString();
}

void ScriptedServer::run() {
    Listener listener;
    const bool listens = listener.listen(QHostAddress::LocalHost, m_port);
    m_port = listener.serverPort();
    m_listening.release();
    try {
        if (!listens) throw Unexpected{"cannot listen"};
        for (int i = 0; i < m_dialogues.size(); ++i) {
            while (listener.descriptors.isEmpty()) {
                if (isInterruptionRequested())
                    throw Unexpected{"connection " + QByteArray::number(i + 1) + " was never made"};
                listener.waitForNewConnection(sliceMs);
            }
            QSslSocket socket;
            m_socket = &socket;
            socket.setSocketDescriptor(listener.descriptors.takeFirst());
            socket.setSocketOption(QAbstractSocket::LowDelayOption, 1);
            // What a dialogue does not read stays in the system's buffer.
            socket.setReadBufferSize(65536);
            m_peerPorts.append(socket.peerPort());
            m_input.clear();
            play(m_dialogues[i]);
            ++m_ended;
        }
    } catch (const Unexpected& unexpected) {
        m_problem = unexpected.text;
    }
    m_socket = nullptr;
}

void ScriptedServer::play(const QByteArrayList& dialogue) {
    for (qsizetype i = 0; i < dialogue.size(); ++i) {
        try {
            step(dialogue[i]);
        } catch (const Unexpected& unexpected) {
            throw Unexpected{"line " + QByteArray::number(i + 1) + " \"" + dialogue[i] +
                             "\": " + unexpected.text};
        }
    }
    close(false);
}

void ScriptedServer::step(const QByteArray& line) {
    const QByteArray text = line.mid(3);
    if (line.startsWith("S: ")) {
        send(text + "\r\n");
    } else if (line.startsWith("S- ")) {
        send(unescaped(text));
    } else if (line.startsWith("S. ")) {
        for (const char c : text + "\r\n") {
            send(QByteArray(1, c));
            msleep(1);
        }
    } else if (line.startsWith("C: ")) {
        expect(text);
    } else if (line.startsWith("A: ")) {
        if (!m_answers.contains(text)) throw Unexpected{"no such answer"};
        m_lines.append(takeLine());
        send(m_answers[text](m_lines.last()) + "\r\n");
    } else if (line == "BODY") {
        takeBody();
    } else if (line.startsWith("READ ")) {
        take(line.mid(5).toInt());
    } else if (line == "CHUNK") {
        const QByteArrayList words = m_lines.value(m_lines.size() - 1).split(' ');
        if (words.size() != 3 || words[0] != "BDAT") throw Unexpected{"no BDAT before"};
        m_bodies.append(take(words[1].toInt()));
    } else if (line == "EMPTY") {
        if (m_socket->waitForReadyRead(1)) m_input += m_socket->readAll();
        if (!m_input.isEmpty()) throw Unexpected{"also came: " + m_input.left(200)};
    } else if (line == "TLS" || line == "TLSFAIL") {
        QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
        configuration.setPeerVerifyMode(QSslSocket::VerifyNone);
        configuration.setPrivateKey(m_identity.key);
        configuration.setLocalCertificate(m_identity.certificate);
        if (!m_identity.newestProtocol.isEmpty()) {
            configuration.setProtocol(QSsl::AnyProtocol);
            configuration.setBackendConfigurationOption("MaxProtocol", m_identity.newestProtocol);
        }
        m_socket->setSslConfiguration(configuration);
        m_socket->startServerEncryption();
        // A client that refuses the certificate may do so when the handshake has ended on this side.
        if (!m_socket->waitForEncrypted(serverPatienceMs) && line == "TLS")
            throw Unexpected{"no handshake: " + m_socket->errorString().toUtf8()};
        if (line == "TLSFAIL") waitForEnd();
    } else if (line == "WAIT") {
        ++m_waits;
        waitForEnd();
    } else if (line == "HOLD") {
        ++m_waits;
        pollfd watched{int(m_socket->socketDescriptor()), POLLRDHUP, 0};
        while (!isInterruptionRequested() && ::poll(&watched, 1, sliceMs) == 0) {
        }
    } else if (line.startsWith("PAUSE ")) {
        msleep(line.mid(6).toULong());
    } else if (line == "GATE") {
        ++m_waits;
        while (!m_gate.tryAcquire(1, sliceMs))
            if (isInterruptionRequested()) throw Unexpected{"the test does not go on"};
    } else if (line == "DROP" || line == "RESET") {
        close(line == "RESET");
    } else {
        throw Unexpected{"not a line of a dialogue"};
    }
}

void ScriptedServer::send(const QByteArray& bytes) {
    m_socket->write(bytes);
    while (m_socket->state() == QAbstractSocket::ConnectedState &&
           m_socket->bytesToWrite() + m_socket->encryptedBytesToWrite() > 0) {
        if (isInterruptionRequested()) throw Unexpected{"the client does not read"};
        m_socket->waitForBytesWritten(sliceMs);
    }
}

void ScriptedServer::receive() {
    while (m_socket->bytesAvailable() == 0) {
        if (isInterruptionRequested()) throw Unexpected{"nothing came; read so far: " + m_input.left(200)};
        m_socket->waitForReadyRead(sliceMs);
        if (m_socket->bytesAvailable() == 0 && m_socket->state() != QAbstractSocket::ConnectedState)
            throw Unexpected{"the client closed"};
    }
    m_input += m_socket->readAll();
}

QByteArray ScriptedServer::takeLine() {
    qsizetype end;
    while ((end = m_input.indexOf("\r\n")) < 0)
        receive();
    const QByteArray line = m_input.left(end);
    m_input.remove(0, end + 2);
    return line;
}

void ScriptedServer::expect(const QByteArray& pattern) {
    const QByteArray line = takeLine();
    QString expression = QRegularExpression::escape(QString::fromUtf8(pattern));
    expression.replace(QStringLiteral("\\*"), QStringLiteral(".*"));
    if (!QRegularExpression(QRegularExpression::anchoredPattern(expression))
             .match(QString::fromUtf8(line))
             .hasMatch())
        throw Unexpected{"got \"" + line + '"'};
    m_lines.append(line);
}

void ScriptedServer::takeBody() {
    qsizetype searched = 0, end = 0;
    while (!m_input.startsWith(".\r\n")) {
        const qsizetype found = m_input.indexOf("\r\n.\r\n", searched);
        if (found >= 0) {
            end = found + 2;
            break;
        }
        searched = std::max<qsizetype>(m_input.size() - 4, 0);
        receive();
    }
    m_bodies.append(m_input.left(end));
    m_input.remove(0, end + 3);
}

QByteArray ScriptedServer::take(qsizetype octets) {
    while (m_input.size() < octets)
        receive();
    const QByteArray taken = m_input.left(octets);
    m_input.remove(0, octets);
    return taken;
}

void ScriptedServer::waitForEnd() {
    while (m_socket->state() != QAbstractSocket::UnconnectedState) {
        if (isInterruptionRequested()) throw Unexpected{"the client stays"};
        if (m_socket->waitForReadyRead(sliceMs)) m_input += m_socket->readAll();
        if (m_input.size() > (1 << 20)) m_input.clear();
    }
}

void ScriptedServer::close(bool reset) {
    if (m_socket->state() == QAbstractSocket::UnconnectedState) return;
    if (reset) {
        const linger atOnce{1, 0};
        const int descriptor = int(m_socket->socketDescriptor());
        ::setsockopt(descriptor, SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
        m_socket->abort();
        return;
    }
    m_socket->disconnectFromHost();
    if (m_socket->state() != QAbstractSocket::UnconnectedState) m_socket->waitForDisconnected(1000);
}

}  // namespace testing_support
