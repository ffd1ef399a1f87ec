// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/QuotedPrintable.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace mail {
namespace {

constexpr int lineRoom = 75;  // one less than the limit: room for the "=" of a soft line break

enum class Kind : unsigned char { Literal, Blank, LineEnd, Encoded };

constexpr std::array<Kind, 256> kinds = [] {
    std::array<Kind, 256> table{};
    table.fill(Kind::Encoded);
    for (int c = '!'; c <= '~'; ++c)
        table[static_cast<std::size_t>(c)] = Kind::Literal;
    table['='] = Kind::Encoded;
    table[' '] = table['\t'] = table['\0'] = Kind::Blank;
    table['\r'] = table['\n'] = Kind::LineEnd;
    return table;
}();

Kind kindOf(char c) {
    return kinds[static_cast<unsigned char>(c)];
}

// Whether one of eight octets is outside the range from the blank to "~", or is "=".
bool holdsOther(const char* octets) {
    constexpr std::uint64_t each = 0x0101010101010101, high = each * 0x80;
    std::uint64_t word = 0;
    std::memcpy(&word, octets, sizeof word);
    const std::uint64_t equals = word ^ each * '=';
    // Where no octet has its highest bit, no sum carries over
    return ((word | (word + each) | ~((word | high) - each * ' ') | ~((equals | high) - each)) & high) != 0;
}

bool isPlain(char c) {
    return kindOf(c) == Kind::Literal || c == ' ';
}

// The end of what is literal; a blank in front of a line end is not
const char* endOfPlain(const char* at, const char* limit, const char* end) {
    const char* to = at;
    while (limit - to >= 8 && !holdsOther(to))
        to += 8;
    while (to != limit && isPlain(*to))
        ++to;
    const bool endsLine = to == end || kindOf(*to) == Kind::LineEnd;
    return endsLine && to != at && to[-1] == ' ' ? to - 1 : to;
}

/// Writes into room that is large enough for the whole text.
class Writer {
  public:
    explicit Writer(char* to) : m_to(to) {}

    void literal(char c) {
        makeRoom(1);
        *m_to++ = c;
        ++m_column;
    }

    void encoded(char c) {
        static constexpr char digits[] = "0123456789ABCDEF";
        const auto value = static_cast<unsigned char>(c);
        makeRoom(3);
        *m_to++ = '=';
        *m_to++ = digits[value >> 4];
        *m_to++ = digits[value & 15];
        m_column += 3;
    }

    /// Copies what is literal from `at` on, as far as the line has room; returns its end.
    const char* plain(const char* at, const char* end) {
        makeRoom(1);
        const char* const limit = at + std::min<std::ptrdiff_t>(lineRoom - m_column, end - at);
        const char* const to = endOfPlain(at, limit, end);
        std::memcpy(m_to, at, static_cast<std::size_t>(to - at));
        m_to += to - at;
        m_column += static_cast<int>(to - at);
        return to;
    }

    void lineEnd() {
        *m_to++ = '\r';
        *m_to++ = '\n';
        m_column = 0;
    }

    bool breaksBefore(int length) const { return m_column + length > lineRoom; }
    bool startsLine() const { return m_column == 0 || breaksBefore(1); }
    char* end() const { return m_to; }

  private:
    void makeRoom(int length) {
        if (!breaksBefore(length)) return;
        *m_to++ = '=';
        lineEnd();
    }

    char* m_to;
    int m_column = 0;
};

bool mustNotStartLine(const char* at, const char* end) {
    // a NUL becomes a blank
    return *at == '.' ||
           (end - at >= 5 && std::memcmp(at, "From", 4) == 0 && (at[4] == ' ' || at[4] == '\0'));
}

}  // namespace

void appendQuotedPrintable(QByteArray& out, const QByteArray& text) {
    const qsizetype before = out.size();
    // each octet three, and three more for a soft line break after each 24 of them
    out.resize(before + text.size() * 3 + text.size() / 8 + 8);
    Writer writer(out.data() + before);
    const char* const end = text.constData() + text.size();
    for (const char* at = text.constData(); at != end; ++at) {
        switch (kindOf(*at)) {
            case Kind::Literal:
                if (writer.startsLine() && mustNotStartLine(at, end))
                    writer.encoded(*at);
                else
                    at = writer.plain(at, end) - 1;
                break;
            case Kind::Blank: {
                const char blank = *at == '\0' ? ' ' : *at;
                if (at + 1 == end || kindOf(at[1]) == Kind::LineEnd) {
                    writer.encoded(blank);
                } else {
                    writer.literal(blank);
                }
                break;
            }
            case Kind::LineEnd:
                if (*at == '\r' && at + 1 != end && at[1] == '\n') ++at;
                writer.lineEnd();
                break;
            case Kind::Encoded:
                writer.encoded(*at);
                break;
        }
    }
    out.resize(writer.end() - out.constData());
}

}  // namespace mail
