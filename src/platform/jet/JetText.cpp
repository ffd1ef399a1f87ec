#include "platform/jet/JetText.h"

#include <algorithm>

#include "platform/jet/Format.h"

namespace jet {

namespace {

// Longer text is never compressed.
constexpr size_t longestCompressed = 1024;
constexpr char32_t replacement = 0xFFFD;

void appendCodePoint(char32_t c, std::string& out) {
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        const char bytes[] = {static_cast<char>(0xC0 | c >> 6), static_cast<char>(0x80 | (c & 0x3F))};
        out.append(bytes, 2);
    } else if (c < 0x10000) {
        const char bytes[] = {static_cast<char>(0xE0 | c >> 12), static_cast<char>(0x80 | (c >> 6 & 0x3F)),
                              static_cast<char>(0x80 | (c & 0x3F))};
        out.append(bytes, 3);
    } else {
        const char bytes[] = {static_cast<char>(0xF0 | c >> 18), static_cast<char>(0x80 | (c >> 12 & 0x3F)),
                              static_cast<char>(0x80 | (c >> 6 & 0x3F)),
                              static_cast<char>(0x80 | (c & 0x3F))};
        out.append(bytes, 4);
    }
}

// Joins surrogates while units arrive one by one.
class Utf8Sink {
  public:
    explicit Utf8Sink(std::string& out) : m_out(out) {}
    ~Utf8Sink() { flush(); }

    void add(char32_t unit) {
        if (m_high != 0 && unit >= 0xDC00 && unit < 0xE000) {
            appendCodePoint(0x10000 + ((m_high - 0xD800) << 10) + (unit - 0xDC00), m_out);
            m_high = 0;
            return;
        }
        flush();
        if (unit >= 0xD800 && unit < 0xDC00)
            m_high = unit;
        else
            appendCodePoint(unit >= 0xDC00 && unit < 0xE000 ? replacement : unit, m_out);
    }

  private:
    void flush() {
        if (m_high != 0) appendCodePoint(replacement, m_out);
        m_high = 0;
    }
    std::string& m_out;
    char32_t m_high = 0;
};

void appendCompressed(std::span<const uint8_t> bytes, std::string& out) {
    // Nearly every value is one run of ASCII.
    size_t ascii = 0;
    while (ascii < bytes.size() && static_cast<uint8_t>(bytes[ascii] - 1) < 0x7F)
        ++ascii;
    out.append(reinterpret_cast<const char*>(bytes.data()), ascii);
    Utf8Sink sink(out);
    bool single = true;
    for (size_t i = ascii; i < bytes.size();) {
        if (bytes[i] == 0) {
            single = !single;
            ++i;
        } else if (single) {
            sink.add(bytes[i++]);
        } else if (i + 1 < bytes.size()) {
            sink.add(load16(&bytes[i]));
            i += 2;
        } else {
            sink.add(replacement);
            ++i;
        }
    }
}

}  // namespace

void appendUtf8(std::span<const uint8_t> stored, std::string& out) {
    if (stored.size() >= 2 && stored[0] == 0xFF && stored[1] == 0xFE)
        return appendCompressed(stored.subspan(2), out);
    Utf8Sink sink(out);
    size_t i = 0;
    for (; i + 1 < stored.size(); i += 2)
        sink.add(load16(&stored[i]));
    if (i < stored.size()) sink.add(replacement);
}

std::u16string toUtf16(std::string_view utf8) {
    std::u16string out;
    out.reserve(utf8.size());
    for (size_t i = 0; i < utf8.size();) {
        const uint8_t lead = static_cast<uint8_t>(utf8[i++]);
        const int more = lead < 0x80                   ? 0
                         : lead >= 0xC2 && lead < 0xE0 ? 1
                         : lead >> 4 == 0xE            ? 2
                         : lead >= 0xF0 && lead < 0xF5 ? 3
                                                       : -1;
        char32_t c = more <= 0 ? lead : lead & (0x3Fu >> more);
        int taken = 0;
        while (taken < more && i + static_cast<size_t>(taken) < utf8.size() &&
               (static_cast<uint8_t>(utf8[i + static_cast<size_t>(taken)]) & 0xC0) == 0x80) {
            c = c << 6 | (static_cast<uint8_t>(utf8[i + static_cast<size_t>(taken)]) & 0x3F);
            ++taken;
        }
        static constexpr char32_t least[] = {0, 0x80, 0x800, 0x10000};
        const bool valid =
            more >= 0 && taken == more && c >= least[more] && c <= 0x10FFFF && (c < 0xD800 || c > 0xDFFF);
        if (!valid) {
            out += static_cast<char16_t>(replacement);
            continue;
        }
        i += static_cast<size_t>(more);
        if (c >= 0x10000) {
            out += static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10));
            out += static_cast<char16_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
        } else {
            out += static_cast<char16_t>(c);
        }
    }
    return out;
}

std::optional<std::vector<uint8_t>> encodeText(std::u16string_view text, bool mayCompress) {
    std::vector<uint8_t> bytes;
    const bool single = std::all_of(text.begin(), text.end(), [](char16_t c) { return c != 0 && c < 0x100; });
    if (mayCompress && single && text.size() > 2 && text.size() <= longestCompressed) {
        bytes.reserve(text.size() + 2);
        bytes = {0xFF, 0xFE};
        for (char16_t c : text)
            bytes.push_back(static_cast<uint8_t>(c));
        return bytes;
    }
    if (!text.empty() && text.front() == 0xFEFF) {
        // Plain, its first bytes would be taken for the mark of the compressed form.
        if (std::any_of(text.begin(), text.end(), [](char16_t c) { return (c & 0xFF) == 0; }))
            return std::nullopt;
        bytes = {0xFF, 0xFE, 0x00};
    }
    for (char16_t c : text) {
        bytes.push_back(static_cast<uint8_t>(c));
        bytes.push_back(static_cast<uint8_t>(c >> 8));
    }
    return bytes;
}

}  // namespace jet
