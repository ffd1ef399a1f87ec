// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/Header.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <numeric>

#include "platform/jet/Failure.h"
#include "platform/jet/Jet3.h"
#include "platform/jet/JetText.h"

namespace jet {

namespace {

constexpr uint8_t headerKey[] = {0xC7, 0xDA, 0x39, 0x6B};

[[noreturn]] void failFormat(OwnText why) {
    fail(ErrorCode::UnrecognizedFormat, "Formato di database non riconosciuto: %1."_tr, why);
}

// The password is masked by the whole part of the creation date, four bytes repeated.
std::string passwordOf(const Page& clear) {
    const double date = std::bit_cast<double>(load64(&clear[header::creationDate]));
    const bool inRange = std::isfinite(date) && std::abs(date) < 2147483648.0;
    uint8_t mask[4];
    store32(mask, static_cast<uint32_t>(inRange ? static_cast<int32_t>(date) : 0));
    std::u16string password;
    for (size_t i = 0; i < header::passwordLength; i += 2) {
        const uint8_t* p = &clear[header::password + i];
        const uint16_t unit = static_cast<uint16_t>((p[0] ^ mask[i % 4]) | (p[1] ^ mask[(i + 1) % 4]) << 8);
        if (unit == 0) break;
        password += static_cast<char16_t>(unit);
    }
    return toUtf8(password);
}

std::string jet3PasswordOf(const Page& clear) {
    const auto field = std::span(clear).subspan(header::password, jet3::passwordLength);
    const auto end = std::find(field.begin(), field.end(), uint8_t{0});
    std::string password;
    appendAnsiAsUtf8({field.begin(), end}, password);
    return password;
}

// XORs `bytes` with the RC4 stream of `key`.
void rc4(std::span<const uint8_t> key, std::span<uint8_t> bytes) {
    std::array<uint8_t, 256> state;
    std::iota(state.begin(), state.end(), uint8_t{0});
    uint8_t j = 0;
    for (size_t i = 0; i < state.size(); ++i) {
        j = static_cast<uint8_t>(j + state[i] + key[i % key.size()]);
        std::swap(state[i], state[j]);
    }
    uint8_t i = 0;
    j = 0;
    for (uint8_t& byte : bytes) {
        i = static_cast<uint8_t>(i + 1);
        j = static_cast<uint8_t>(j + state[i]);
        std::swap(state[i], state[j]);
        byte ^= state[static_cast<uint8_t>(state[i] + state[j])];
    }
}

}  // namespace

void codePage(uint32_t pageKey, uint32_t number, std::span<uint8_t> bytes) {
    uint8_t key[4];
    store32(key, pageKey ^ number);
    rc4(key, bytes);
}

void maskHeader(Page& page0) {
    rc4(headerKey, std::span(page0).subspan(header::masked, header::maskedLength));
}

Header parseHeader(std::span<const uint8_t> page0) {
    static constexpr uint8_t start[] = {0, 1, 0, 0};
    if (page0.size() < header::masked || std::memcmp(page0.data(), start, sizeof start) != 0)
        failFormat("il file non è un database Jet"_tr);
    const char* name = reinterpret_cast<const char*>(page0.data() + header::engineName);
    if (std::memcmp(name, "Standard ACE DB", 16) == 0)
        failFormat(
            "è un file .accdb di Access 2007 o successivo; salvarlo in formato Access 2000-2003 (.mdb)"_tr);
    if (std::memcmp(name, "Standard Jet DB", 16) != 0) failFormat("il file non è un database Jet"_tr);
    const uint32_t version = load32(page0.data() + header::version);
    if (version > 1) failFormat("è di una versione più recente di Access 2003"_tr);
    const bool old = version == 0;
    if (page0.size() < (old ? jet3::pageSize : pageSize)) failDamaged("il file è troncato"_tr);

    Page clear{};
    std::copy_n(page0.begin(), old ? jet3::pageSize : pageSize, clear.begin());
    rc4(headerKey, std::span(clear).subspan(header::masked, old ? jet3::maskedLength : header::maskedLength));
    if (old && load16(&clear[header::codePage]) != 1252)
        failFormat("è un file di Access 97 con una tabella codici diversa da quella occidentale (1252)"_tr);
    return {old, load32(&clear[header::pageKey]), old ? jet3PasswordOf(clear) : passwordOf(clear)};
}

}  // namespace jet
