// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QSslSocket>
#include <QTimer>

#include "torture/OddServer.h"

/// One connection of an OddServer.
class OddConnection : public QObject {
    Q_OBJECT
  public:
    OddConnection(OddServer& server, qintptr descriptor);
    ~OddConnection() override;

    void sayUnasked();
    /// Whether a reply that begins with 2 has gone out in the place of the one to the end of this message.
    bool hasAccepted(int message) const;

  private:
    using Stage = Misbehaviour::Stage;
    using Kind = Misbehaviour::Kind;
    enum class Reads { Lines, Body, Chunk, Login, Nothing };

    void onInput();
    void onLine(const QByteArray& line);
    void onBody();
    void onChunk();
    void onLogin(const QByteArray& line);
    void hello();
    void startTls();
    void login(const QByteArray& line);
    void reply(Stage stage, const QByteArray& text);
    void misbehave(const QByteArray& text);
    void breakHandshake();
    void say(const QByteArray& text);
    void pump();
    void drop();
    void reset();

    OddServer& m_server;
    QSslSocket m_socket;
    QTimer m_pump;         ///< sends what does not end, or comes in pieces
    QByteArray m_endless;  ///< sent again and again
    QByteArray m_pieces;   ///< sent bit by bit
    QByteArray m_input;
    QByteArray m_heard;  ///< the last line
    Reads m_reads = Reads::Lines;
    bool m_mute = false;
    bool m_bodySpoilt = false;
    qsizetype m_chunk = 0;  ///< octets of the message that are still to come
    QByteArray m_mechanism;
    int m_challenges = 0;
    int m_message = -1;
    bool m_flight = false;    ///< the message came by BDAT
    QByteArray m_saidBefore;  ///< what was still in m_pieces at that MAIL
    bool m_farewell = false;  ///< 421 was said: whatever comes then is not taken
    qsizetype m_octets = 0;   ///< of the message
    QByteArray m_said;        ///< since the last MAIL, what is still in m_pieces included
};
