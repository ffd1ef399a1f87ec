// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <concepts>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// A text of the program itself as the translations know it: Italian, with "%1" to "%9" in the place of
/// values.
struct OwnText {
    const char* pattern;
};

/// The suffix _tr is to code without Qt what Words::tr() is to all other code; translations/update finds it
/// by its end.
constexpr OwnText operator"" _tr(const char* pattern, std::size_t) {
    return {pattern};
}

/// An own text and its values, kept apart so that the code that shows it can look the text up in the language
/// in use. Values are texts in UTF-8, whole numbers, own texts and other phrases.
class Phrase {
  public:
    Phrase() = default;
    template <class... Values>
    Phrase(OwnText text, const Values&... values) : m_own(text.pattern), m_values{valueOf(values)...} {}
    /// A text in UTF-8 that is the same in every language.
    static Phrase literal(std::string text) {
        Phrase phrase;
        phrase.m_literal = std::move(text);
        return phrase;
    }

    bool empty() const { return !m_own && m_literal.empty(); }
    /// The whole text in UTF-8; `translated` returns the UTF-8 form of a pattern in the wanted language.
    template <class Translated>
    std::string text(const Translated& translated) const {
        if (!m_own) return m_literal;
        const std::string pattern = translated(m_own);
        std::string whole;
        for (std::size_t i = 0; i < pattern.size(); ++i) {
            const std::size_t value =
                i + 1 < pattern.size() ? std::size_t(pattern[i + 1] - '1') : m_values.size();
            if (pattern[i] != '%' || value >= m_values.size()) {
                whole += pattern[i];
                continue;
            }
            whole += m_values[value].text(translated);
            ++i;
        }
        return whole;
    }
    /// The same in Italian.
    std::string sourceText() const {
        return text([](const char* own) { return std::string(own); });
    }

  private:
    static Phrase valueOf(const Phrase& phrase) { return phrase; }
    static Phrase valueOf(OwnText text) { return text; }
    static Phrase valueOf(std::string_view text) { return literal(std::string(text)); }
    static Phrase valueOf(std::integral auto number) { return literal(std::to_string(number)); }

    const char* m_own = nullptr;
    std::string m_literal;
    std::vector<Phrase> m_values;
};
