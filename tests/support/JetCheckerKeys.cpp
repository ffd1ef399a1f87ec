// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/JetCheckerKeys.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace jetcheck {

namespace {

struct Weight {
    Bytes main;
    unsigned char accent = 2;
    unsigned char special = 0;
};

// From the vectors, which were read out of real files.
const std::map<unsigned, Weight>& weights() {
    static const auto table = [] {
        std::map<unsigned, Weight> all;
        QFile file(QStringLiteral(TEST_DATA_DIR "/jet/general-weights.json"));
        if (!file.open(QIODevice::ReadOnly)) throw Broken("the table of weights is not here");
        const QJsonDocument json = QJsonDocument::fromJson(file.readAll());
        for (const QJsonValue entry : json[u"characters"].toArray()) {
            Weight weight;
            const QByteArray main = QByteArray::fromHex(entry[u"main"].toString().toLatin1());
            weight.main.assign(main.begin(), main.end());
            if (const QString accent = entry[u"accent"].toString(); !accent.isEmpty())
                weight.accent = static_cast<unsigned char>(accent.toUInt(nullptr, 16));
            weight.special = static_cast<unsigned char>(entry[u"special"].toString().toUInt(nullptr, 16));
            all[entry[u"code"].toString().toUInt(nullptr, 16)] = weight;
        }
        if (all.size() < 500) throw Broken("the table of weights is cut");
        return all;
    }();
    return table;
}

// Code units of stored text.
std::vector<unsigned> unitsOf(const Bytes& stored) {
    std::vector<unsigned> units;
    const bool compressed = stored.size() >= 2 && stored[0] == 0xFF && stored[1] == 0xFE;
    bool wide = !compressed;
    for (size_t i = compressed ? 2 : 0; i < stored.size(); ++i) {
        if (compressed && stored[i] == 0) {
            wide = !wide;
        } else if (!wide) {
            units.push_back(stored[i]);
        } else if (i + 1 < stored.size()) {
            units.push_back(stored[i] | stored[i + 1] << 8);
            ++i;
        }
    }
    while (!units.empty() && units.back() == ' ')
        units.pop_back();
    if (units.size() > 255) units.resize(255);
    return units;
}

std::optional<Bytes> textKey(const Bytes& stored, size_t ligaturePlaces) {
    Bytes key{0x7F};
    Bytes accents;
    Bytes specials;
    for (const unsigned unit : unitsOf(stored)) {
        const auto found = weights().find(unit);
        if (found == weights().end()) return std::nullopt;
        const Weight& weight = found->second;
        if (weight.special != 0) {
            const size_t place = 0x8000 + 7 + 4 * accents.size();
            for (const size_t byte : {place >> 8, place & 0xFF, size_t{6}, size_t{weight.special}})
                specials.push_back(static_cast<unsigned char>(byte));
        }
        if (weight.main.empty()) continue;
        key.insert(key.end(), weight.main.begin(), weight.main.end());
        const bool ligature = weight.main.size() == 2 && weight.main[0] >= 0x4A && weight.main[1] >= 0x4A;
        for (size_t i = 1; ligature && i < ligaturePlaces; ++i)
            accents.push_back(2);
        accents.push_back(weight.accent);
    }
    while (!accents.empty() && accents.back() == 2)
        accents.pop_back();
    key.push_back(1);
    key.insert(key.end(), accents.begin(), accents.end());
    if (!specials.empty()) key.insert(key.end(), 3, 1);
    key.insert(key.end(), specials.begin(), specials.end());
    key.push_back(0);
    return key;
}

Bytes numberKey(const Bytes& stored, bool real) {
    Bytes key(stored.rbegin(), stored.rend());
    const bool negative = key.at(0) & 0x80;
    key[0] ^= 0x80;
    if (real && negative)
        for (size_t i = 0; i < key.size(); ++i)
            key[i] = static_cast<unsigned char>(i == 0 ? ~key[0] ^ 0x80 : ~key[i]);
    return key;
}

Bytes groupsKey(const Bytes& bytes, bool ascending) {
    Bytes key;
    for (size_t at = 0; at < bytes.size(); at += 8) {
        for (size_t i = at; i < at + 8; ++i)
            key.push_back(
                static_cast<unsigned char>((i < bytes.size() ? bytes[i] : 0) ^ (ascending ? 0 : 0xFF)));
        const size_t used = bytes.size() - at;
        key.push_back(static_cast<unsigned char>(used > 8 ? 9 : ascending ? used : ~used));
    }
    return key;
}

void flip(Bytes& key) {
    for (unsigned char& byte : key)
        byte = static_cast<unsigned char>(~byte);
}

}  // namespace

std::vector<Bytes> keyForms(unsigned type, bool ascending, const Stored& value) {
    constexpr unsigned yesNo = 1;
    constexpr unsigned byte = 2;
    constexpr unsigned currency = 5;
    constexpr unsigned date = 8;
    constexpr unsigned binary = 9;
    constexpr unsigned text = 10;
    constexpr unsigned guid = 15;
    if (!value && type != yesNo) return {Bytes{static_cast<unsigned char>(ascending ? 0x00 : 0xFF)}};
    std::vector<Bytes> forms;
    if (type == text) {
        for (const size_t places : {size_t{1}, size_t{2}})
            if (auto key = textKey(*value, places); key && (forms.empty() || forms[0] != *key))
                forms.push_back(*key);
        if (ascending) return forms;
        for (Bytes& key : forms) {
            flip(key);
            key.push_back(0);
        }
        return forms;
    }
    Bytes key;
    if (type == binary || type == guid) {
        Bytes bytes = *value;
        if (type == guid)
            bytes = {bytes.at(3),  bytes.at(2),  bytes.at(1),  bytes.at(0), bytes.at(5),  bytes.at(4),
                     bytes.at(7),  bytes.at(6),  bytes.at(8),  bytes.at(9), bytes.at(10), bytes.at(11),
                     bytes.at(12), bytes.at(13), bytes.at(14), bytes.at(15)};
        key = groupsKey(bytes, ascending);
        key.insert(key.begin(), ascending ? 0x7F : 0x80);
        return {key};
    }
    if (type == yesNo)
        key = {static_cast<unsigned char>(value ? 0x00 : 0xFF)};
    else if (type == byte)
        key = *value;
    else if (type <= date)
        key = numberKey(*value, type > currency);
    else
        return {};
    key.insert(key.begin(), 0x7F);
    if (!ascending) flip(key);
    return {key};
}

}  // namespace jetcheck
