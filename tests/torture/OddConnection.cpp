// SPDX-License-Identifier: GPL-3.0-or-later
#include "torture/OddConnection.h"

#include <sys/socket.h>
#include <algorithm>
#include <QSslConfiguration>

namespace {

constexpr qsizetype mostPumped = 4 * 1024 * 1024;
constexpr qsizetype smallestMessage = 100;  // below that nothing but a final point came

/// What was said in the place of a reply: the codes of its first and its last line, 0 where there is none.
struct Said {
    int first = 0;
    int last = 0;
};

int codeAt(const QByteArray& line) {
    bool isNumber = false;
    const int code = line.left(3).toInt(&isNumber);
    return isNumber && line.size() >= 3 ? code : 0;
}

Said replyAt(const QByteArray& said, int place) {
    Said reply;
    bool begins = true;
    for (const QByteArray& line : said.split('\n')) {
        if (begins) reply.first = codeAt(line);
        reply.last = codeAt(line);
        begins = line.size() < 4 || line[3] != '-';
        if (begins && place-- == 0) return reply;
    }
    return place < 0 || (place == 0 && !begins) ? reply : Said();
}

}  // namespace

OddConnection::OddConnection(OddServer& server, qintptr descriptor) : m_server(server) {
    m_server.m_connections.insert(this);
    m_socket.setSocketDescriptor(descriptor);
    m_socket.setSocketOption(QAbstractSocket::LowDelayOption, 1);
    m_socket.setReadBufferSize(256 * 1024);
    connect(&m_socket, &QSslSocket::readyRead, this, &OddConnection::onInput);
    connect(&m_socket, &QSslSocket::disconnected, this, &QObject::deleteLater);
    m_pump.setInterval(1);
    connect(&m_pump, &QTimer::timeout, this, &OddConnection::pump);
    reply(Stage::Greeting, "220 ready\r\n");
}

OddConnection::~OddConnection() {
    if (m_message >= 0) m_server.note(m_message, false, hasAccepted(m_message));
    m_socket.disconnect(this);
    m_server.m_connections.erase(this);
}

bool OddConnection::hasAccepted(int message) const {
    if (message != m_message) return false;
    const auto isAcceptance = [](const Said& reply) {
        return reply.first / 100 == 2 || reply.last / 100 == 2;
    };
    const qsizetype left = m_pieces.size();
    if (isAcceptance(replyAt(m_said.chopped(std::min(left, m_said.size())), m_flight ? 2 : 3))) return true;
    // A reply that nobody asked for and that is still under way when a flight begins moves all others by one
    // place. No client can know: after DATA there is one reply of another kind, in a flight there is none.
    const QByteArray seen = m_saidBefore + m_said;
    return m_flight && isAcceptance(replyAt(seen.chopped(std::min(left, seen.size())), 2));
}

void OddConnection::onInput() {
    if (m_reads == Reads::Nothing) return;
    ++m_server.m_activity;
    m_input += m_socket.readAll();
    if (!m_socket.isEncrypted() && m_server.m_offer.startTls && !m_server.m_offer.secret.isEmpty() &&
        (m_input.contains(m_server.m_offer.secret) ||
         QByteArray::fromBase64(m_input.simplified().split(' ').last()).contains(m_server.m_offer.secret)))
        m_server.m_gotSecret = true;
    while (!m_input.isEmpty() && m_reads != Reads::Nothing) {
        const qsizetype before = m_input.size();
        if (m_reads == Reads::Body) {
            onBody();
        } else if (m_reads == Reads::Chunk) {
            onChunk();
        } else if (const qsizetype end = m_input.indexOf('\n'); end >= 0) {
            m_heard = m_input.left(end).trimmed();
            m_input.remove(0, end + 1);
            if (m_reads == Reads::Login)
                onLogin(m_heard);
            else
                onLine(m_heard);
        }
        if (m_input.size() == before) break;
    }
}

void OddConnection::onLine(const QByteArray& line) {
    const QByteArray verb = line.left(4).toUpper();
    if (verb == "EHLO" || verb == "HELO") {
        hello();
    } else if (verb == "STAR") {
        startTls();
    } else if (verb == "AUTH") {
        login(line);
    } else if (verb == "RSET") {
        reply(Stage::Reset, "250 reset\r\n");
    } else if (verb == "MAIL") {
        if (m_message >= 0) m_server.note(m_message, false, hasAccepted(m_message));
        m_message = -1;
        m_saidBefore = m_pieces;
        m_said.clear();
        m_flight = false;
        reply(Stage::Sender, "250 sender\r\n");
    } else if (verb == "RCPT") {
        m_message = line.mid(line.indexOf("<r") + 2).split('@').first().toInt();
        reply(Stage::Recipient,
              m_message == m_server.m_offer.refused ? "550 not here\r\n" : "250 recipient\r\n");
    } else if (verb == "DATA") {
        m_octets = 0;
        m_bodySpoilt = false;
        m_reads = Reads::Body;
        reply(Stage::Data, "354 go on\r\n");
    } else if (verb == "BDAT") {
        m_flight = true;
        m_octets = m_chunk = line.mid(5).split(' ').first().toLongLong();
        m_reads = Reads::Chunk;
    } else if (verb == "QUIT") {
        say("221 bye\r\n");
        drop();
    } else {
        say("500 what\r\n");
    }
}

void OddConnection::hello() {
    const OddServer::Offer& offer = m_server.m_offer;
    QByteArray text = "250-here\r\n250-SIZE 90000000\r\n";
    if (offer.pipelining) text += "250-PIPELINING\r\n";
    if (offer.chunking) text += "250-CHUNKING\r\n";
    if (offer.startTls && !m_socket.isEncrypted()) text += "250-STARTTLS\r\n";
    if (!offer.login.isEmpty()) text += "250-AUTH " + offer.login + "\r\n";
    reply(Stage::Hello, text + "250 8BITMIME\r\n");
}

void OddConnection::startTls() {
    reply(Stage::StartTls, "220 go on\r\n");
    if (m_mute || m_socket.state() != QAbstractSocket::ConnectedState) return;
    if (m_server.isWrong(Stage::Handshake)) {
        breakHandshake();
        return;
    }
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setPeerVerifyMode(QSslSocket::VerifyNone);
    configuration.setPrivateKey(m_server.m_offer.identity.key);
    configuration.setLocalCertificate(m_server.m_offer.identity.certificate);
    m_input.clear();
    m_socket.setSslConfiguration(configuration);
    m_socket.startServerEncryption();
}

void OddConnection::breakHandshake() {
    m_reads = Reads::Nothing;
    const unsigned dice = m_server.m_bad.dice;
    static const QByteArray alert = QByteArray::fromHex("15030300020228");
    static const QByteArray record = QByteArray::fromHex("160303004a020000460303");
    switch (dice % 6) {
        case 0:
            m_mute = true;
            break;
        case 1:
            drop();
            break;
        case 2:
            reset();
            break;
        case 3:
            say(alert.left(int(dice / 6 % 8)));
            break;
        case 4:
            say(record.left(int(dice / 6 % 12)));
            if (dice / 128 % 2) drop();
            break;
        default:
            say(m_server.m_bad.spoilt("250 no handshake\r\n", m_heard));
    }
}

void OddConnection::login(const QByteArray& line) {
    const QByteArrayList words = line.split(' ');
    m_mechanism = words.value(1).toUpper();
    m_challenges = 0;
    m_reads = Reads::Login;
    if (words.size() > 2)
        onLogin(words[2]);
    else
        reply(Stage::Login, m_mechanism == "CRAM-MD5" ? "334 PDEyM0BoZXJlPg==\r\n"
                            : m_mechanism == "LOGIN"  ? "334 VXNlcm5hbWU6\r\n"
                                                      : "334 \r\n");
}

void OddConnection::onLogin(const QByteArray&) {
    const Misbehaviour& bad = m_server.m_bad;
    if (bad.kind == Kind::EndlessLines && m_server.isWrong(Stage::Login)) {
        say("334 " + QByteArray(int(bad.dice % 900), 'x').toBase64() + "\r\n");
        return;
    }
    if (bad.kind == Kind::Garbage && bad.dice % 2 && m_server.isWrong(Stage::Login)) {
        static const char* const odd[] = {
            "334 !!!!",  "334",      "334 =",         "235 come in", "334 cj1hLHM9YSxpPTE=",
            "235-a\r\n", "334 dj1h", "334-a\r\n334 b"};
        say(QByteArray(odd[bad.dice / 2 % std::size(odd)]) + "\r\n");
        return;
    }
    const int more = m_mechanism == "LOGIN" ? 1 : m_mechanism.startsWith("SCRAM") ? 2 : 0;
    if (m_challenges++ < more) {
        reply(Stage::Login,
              m_mechanism == "LOGIN" ? "334 UGFzc3dvcmQ6\r\n" : "334 cj14LHM9QUFBQSxpPTQwOTY=\r\n");
        return;
    }
    m_reads = Reads::Lines;
    reply(Stage::Login, "235 come in\r\n");
}

void OddConnection::onBody() {
    const Misbehaviour& bad = m_server.m_bad;
    if (!m_bodySpoilt && m_input.size() > qsizetype(bad.dice % 3000) && m_server.isWrong(Stage::Body)) {
        m_bodySpoilt = true;
        static const char* const early[] = {"250 taken\r\n", "451 later\r\n", "421 closing\r\n",
                                            "552 large\r\n"};
        misbehave(early[bad.dice / 4096 % std::size(early)]);
        if (m_reads == Reads::Nothing) return;
    }
    const bool empty = m_octets == 0 && m_input.startsWith(".\r\n");
    const qsizetype end = empty ? 0 : m_input.indexOf("\r\n.\r\n");
    if (end < 0) {
        const qsizetype sure = std::max<qsizetype>(0, m_input.size() - 4);
        m_octets += sure;
        m_input.remove(0, sure);
        return;
    }
    m_octets += end;
    m_input.remove(0, end + (empty ? 3 : 5));
    m_reads = Reads::Lines;
    m_server.note(m_message, m_octets > smallestMessage, false);
    reply(Stage::Point, "250 taken\r\n");
}

void OddConnection::onChunk() {
    const Misbehaviour& bad = m_server.m_bad;
    // BDAT is not known: the octets of the message are taken for commands
    if (bad.kind == Kind::OtherCode && bad.dice % 3 == 0 && m_server.isWrong(Stage::Chunk)) {
        m_reads = Reads::Lines;
        say("500 what\r\n");
        return;
    }
    if (!m_bodySpoilt && bad.kind == Kind::Early && m_server.isWrong(Stage::Chunk)) {
        m_bodySpoilt = true;
        say(bad.dice % 2 ? "250 taken\r\n" : "354 more\r\n");
    }
    const qsizetype taken = std::min(m_chunk, m_input.size());
    m_chunk -= taken;
    m_input.remove(0, taken);
    if (m_chunk > 0) return;
    m_bodySpoilt = false;
    m_reads = Reads::Lines;
    reply(Stage::Chunk, "250 taken\r\n");
    m_server.note(m_message, !m_farewell, false);
}

void OddConnection::reply(Stage stage, const QByteArray& text) {
    if (m_mute) return;
    ++m_server.m_activity;
    if (m_server.isWrong(stage))
        misbehave(text);
    else
        say(text);
}

void OddConnection::misbehave(const QByteArray& text) {
    const Misbehaviour& bad = m_server.m_bad;
    switch (bad.kind) {
        case Kind::Silence:
            m_mute = bad.dice % 4 != 0;
            if (bad.dice % 8 == 1) m_reads = Reads::Nothing;
            return;
        case Kind::Drop:
            drop();
            return;
        case Kind::Reset:
            reset();
            return;
        case Kind::Split:
            m_pump.start();
            m_farewell = m_farewell || text.startsWith("421");
            m_pieces += text;
            m_said += text;
            return;
        case Kind::EndlessLine:
        case Kind::EndlessLines:
            m_endless = bad.kind == Kind::EndlessLine
                            ? QByteArray(1000, 'a')
                            : text.left(3) + '-' + QByteArray(int(bad.dice % 300), 'b') + "\r\n";
            m_pump.start();
            m_mute = true;
            break;
        default:
            break;
    }
    say(bad.spoilt(text, m_heard));
    if (bad.kind == Kind::CutAndSilence || (bad.kind == Kind::NoLineEnd && bad.dice % 4 < 2)) m_mute = true;
    if (bad.kind == Kind::CutAndDrop || bad.kind == Kind::DropAfter ||
        (bad.kind == Kind::Farewell && bad.dice % 2))
        drop();
}

void OddConnection::sayUnasked() {
    static const char* const unasked[] = {"421 closing\r\n", "250 what\r\n", "451 tired\r\n", "2", "\r\n"};
    misbehave(unasked[m_server.m_bad.dice / 8 % std::size(unasked)]);
}

void OddConnection::say(const QByteArray& text) {
    if (m_socket.state() != QAbstractSocket::ConnectedState) return;
    m_farewell = m_farewell || text.contains("421");
    m_said += text;
    if (m_pieces.isEmpty())
        m_socket.write(text);
    else
        m_pieces += text;
}

/// What does not end waits until the client has taken what went before.
void OddConnection::pump() {
    if (!m_pieces.isEmpty()) {
        const qsizetype size = 1 + qsizetype(m_server.m_bad.dice % 3);
        m_socket.write(m_pieces.left(size));
        m_socket.flush();
        m_pieces.remove(0, size);
        ++m_server.m_activity;
    } else if (!m_endless.isEmpty() && m_said.size() < mostPumped) {
        if (m_socket.bytesToWrite() == 0) {
            m_socket.write(m_endless);
            m_said += m_endless;
        }
    } else {
        m_pump.stop();
    }
}

void OddConnection::drop() {
    m_reads = Reads::Nothing;
    m_mute = true;
    m_socket.flush();
    m_socket.disconnectFromHost();
}

void OddConnection::reset() {
    m_reads = Reads::Nothing;
    m_mute = true;
    m_socket.flush();
    const linger none{1, 0};
    ::setsockopt(int(m_socket.socketDescriptor()), SOL_SOCKET, SO_LINGER, &none, sizeof none);
    m_socket.abort();
}
