// SPDX-License-Identifier: GPL-3.0-or-later
// The octets of a composed message, in pieces that messages share.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <vector>

namespace mail {

/// Whole lines, each ended by CR LF, that many messages share.
class SharedLines {
  public:
    explicit SharedLines(QByteArray octets);
    const QByteArray& octets() const { return m_octets; }
    bool hasPoints() const { return m_hasPoints; }  ///< a line begins with a dot; determined once

  private:
    QByteArray m_octets;
    bool m_hasPoints;
};

/// The text of a message in pieces, so that what it shares with others is neither copied nor read again.
class MessageText {
  public:
    /// A place in the text: the start by default.
    struct Place {
        std::size_t piece = 0;
        qsizetype offset = 0;
    };

    /// The text's last piece, to append to.
    QByteArray& end() { return m_end; }
    /// Appends lines at the start of a line.
    void append(const SharedLines& lines);
    /// Puts whole lines in front.
    void prepend(const QByteArray& lines);

    qsizetype size() const;
    bool endsLine() const;  ///< its last octets are CR LF
    std::vector<QByteArrayView> pieces() const;

    /// The next octets as they are sent after DATA: a line that begins with a dot gets a second one (RFC 5321
    /// 4.5.2). About `limit` octets at most; the place moves past them. They may be a view into this text.
    QByteArray stuffed(Place& place, qsizetype limit) const;
    bool isEnd(const Place& place) const {
        return place.piece == m_shared.size() && place.offset == m_end.size();
    }

  private:
    std::vector<SharedLines> m_shared;
    QByteArray m_end;
};

}  // namespace mail
