// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/policy/SpfRecord.h"

#include <arpa/inet.h>

#include <algorithm>
#include <QByteArrayList>

#include "platform/policy/SpfMacro.h"

namespace policy::spf {

namespace {

const QByteArray version = "v=spf1";
constexpr qsizetype longestShownTerm = 80;

struct Form {
    const char* name;
    Mechanism mechanism;
    enum class Domain { Never, Optional, Required } domain;
    bool prefixes;
};
constexpr Form forms[] = {{"all", Mechanism::All, Form::Domain::Never, false},
                          {"include", Mechanism::Include, Form::Domain::Required, false},
                          {"a", Mechanism::A, Form::Domain::Optional, true},
                          {"mx", Mechanism::Mx, Form::Domain::Optional, true},
                          {"ptr", Mechanism::Ptr, Form::Domain::Optional, false},
                          {"ip4", Mechanism::Ip4, Form::Domain::Never, true},
                          {"ip6", Mechanism::Ip6, Form::Domain::Never, true},
                          {"exists", Mechanism::Exists, Form::Domain::Required, false}};

bool isAllDigits(const QByteArray& text) {
    return !text.isEmpty() &&
           std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

// A prefix length: no leading zero, and not above the maximum
std::optional<int> prefixLength(const QByteArray& digits, int most) {
    if (!isAllDigits(digits) || digits.size() > 3 || (digits.size() > 1 && digits.front() == '0'))
        return std::nullopt;
    const int value = digits.toInt();
    return value <= most ? std::optional(value) : std::nullopt;
}

/// Removes "/24", "//64" or "/24//64" from the end of the value.
bool takePrefixes(QByteArray& value, Directive& directive) {
    const qsizetype two = value.lastIndexOf("//");
    if (two >= 0 && isAllDigits(value.sliced(two + 2))) {
        const auto length = prefixLength(value.sliced(two + 2), 128);
        if (!length) return false;
        directive.prefixLength6 = *length;
        value.truncate(two);
    }
    const qsizetype one = value.lastIndexOf('/');
    if (one >= 0 && isAllDigits(value.sliced(one + 1))) {
        const auto length = prefixLength(value.sliced(one + 1), 32);
        if (!length) return false;
        directive.prefixLength4 = *length;
        value.truncate(one);
    }
    return true;
}

bool readNetwork(const QByteArray& value, Directive& directive) {
    const bool isIpv4 = directive.mechanism == Mechanism::Ip4;
    QByteArray address = value;
    const qsizetype slash = value.indexOf('/');
    if (slash >= 0) {
        const auto length = prefixLength(value.sliced(slash + 1), isIpv4 ? 32 : 128);
        if (!length) return false;
        (isIpv4 ? directive.prefixLength4 : directive.prefixLength6) = *length;
        address.truncate(slash);
    }
    if (address.contains('\0')) return false;
    if (isIpv4) {
        in_addr bytes{};
        if (::inet_pton(AF_INET, address.constData(), &bytes) != 1) return false;
        directive.network = QHostAddress(ntohl(bytes.s_addr));
        return true;
    }
    Q_IPV6ADDR bytes{};
    if (::inet_pton(AF_INET6, address.constData(), bytes.c) != 1) return false;
    directive.network = QHostAddress(bytes);
    return true;
}

/// What follows the name of the mechanism: ":..." or "/...".
bool readArgument(const Form& form, QByteArray argument, Directive& directive) {
    const bool isNetwork = form.mechanism == Mechanism::Ip4 || form.mechanism == Mechanism::Ip6;
    if (isNetwork) return argument.startsWith(':') && readNetwork(argument.sliced(1), directive);
    if (form.prefixes && !takePrefixes(argument, directive)) return false;
    if (argument.isEmpty()) return form.domain != Form::Domain::Required;
    if (form.domain == Form::Domain::Never || argument.front() != ':') return false;
    directive.domain = argument.sliced(1);
    return isDomainSpec(directive.domain);
}

std::optional<Directive> readDirective(const QByteArray& term) {
    Directive directive;
    directive.text = term;
    QByteArray rest = term;
    switch (rest.front()) {
        case '-':
            directive.qualifier = Result::Fail;
            break;
        case '~':
            directive.qualifier = Result::SoftFail;
            break;
        case '?':
            directive.qualifier = Result::Neutral;
            break;
        default:
            break;
    }
    if (QByteArray("+-~?").contains(rest.front())) rest.remove(0, 1);
    const auto end = std::find_if(rest.begin(), rest.end(), [](char c) { return c == ':' || c == '/'; });
    const auto nameLength = static_cast<qsizetype>(end - rest.begin());
    const QByteArray name = rest.left(nameLength).toLower();
    const auto* form =
        std::find_if(std::begin(forms), std::end(forms), [&](const Form& one) { return name == one.name; });
    if (form == std::end(forms)) return std::nullopt;
    directive.mechanism = form->mechanism;
    if (!readArgument(*form, rest.mid(nameLength), directive)) return std::nullopt;
    return directive;
}

// The name of a modifier; empty where the term is none
QByteArray modifierName(const QByteArray& term) {
    const qsizetype equals = term.indexOf('=');
    const QByteArray name = term.left(std::max<qsizetype>(equals, 0)).toLower();
    const auto isAlpha = [](char c) { return c >= 'a' && c <= 'z'; };
    if (name.isEmpty() || !isAlpha(name.front())) return {};
    const bool allowed = std::all_of(name.begin(), name.end(), [&](char c) {
        return isAlpha(c) || (c >= '0' && c <= '9') || c == '-' || c == '_' || c == '.';
    });
    return allowed ? name : QByteArray();
}

bool takeOnce(std::optional<QByteArray>& place, const QByteArray& value) {
    if (place || !isDomainSpec(value)) return false;
    place = value;
    return true;
}

bool readTerm(const QByteArray& term, Record& record) {
    const QByteArray modifier = modifierName(term);
    if (!modifier.isEmpty()) {
        const QByteArray value = term.sliced(term.indexOf('=') + 1);
        if (modifier == "redirect") return takeOnce(record.redirect, value);
        if (modifier == "exp") return takeOnce(record.explanation, value);
        return isMacroString(value, Place::Explanation);
    }
    const auto directive = readDirective(term);
    if (directive) record.directives.append(*directive);
    return directive.has_value();
}

}  // namespace

bool isSpfRecord(const QByteArray& text) {
    return text.left(version.size()).toLower() == version &&
           (text.size() == version.size() || text[version.size()] == ' ');
}

RecordRead readRecord(const QByteArray& text) {
    Record record;
    for (const QByteArray& term : text.sliced(version.size()).split(' ')) {
        if (term.isEmpty()) continue;
        if (!readTerm(term, record)) return {std::nullopt, term.left(longestShownTerm)};
    }
    return {record, {}};
}

}  // namespace policy::spf
