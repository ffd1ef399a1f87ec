// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/DkimSigner.h"

#include <openssl/err.h>
#include <openssl/evp.h>
#include <openssl/pem.h>

#include <algorithm>
#include <array>
#include <QStringBuilder>
#include <string_view>
#include <utility>

#include "platform/mail/AddrSpec.h"
#include "platform/mail/DkimForm.h"
#include "platform/mail/DomainName.h"
#include "platform/mail/FileStamp.h"
#include "platform/mail/HeaderText.h"
#include "platform/mail/Sha256.h"
#include "platform/system/Clock.h"
#include "platform/system/OwnFile.h"
#include "platform/text/Words.h"

namespace mail {
namespace {

constexpr qint64 largestKeyFile = 64 * 1024;
constexpr int fewestBits = 2048;
// Octets of a signature without a blank, where its line can be folded
constexpr qsizetype signatureLine = 72;

using namespace std::string_view_literals;

constexpr std::array covered{
    "From"sv,         "To"sv,           "Subject"sv,          "Date"sv,    "Message-ID"sv,
    "MIME-Version"sv, "Content-Type"sv, "List-Unsubscribe"sv, "List-Id"sv, "List-Unsubscribe-Post"sv};
constexpr std::array closed{"From"sv,
                            "To"sv,
                            "Cc"sv,
                            "Reply-To"sv,
                            "Subject"sv,
                            "Date"sv,
                            "Message-ID"sv,
                            "MIME-Version"sv,
                            "Content-Type"sv,
                            "List-Unsubscribe"sv,
                            "List-Unsubscribe-Post"sv};

struct FreeKey {
    void operator()(EVP_PKEY* key) const { EVP_PKEY_free(key); }
    void operator()(EVP_PKEY_CTX* context) const { EVP_PKEY_CTX_free(context); }
    void operator()(BIO* source) const { BIO_free(source); }
};

/// A private key, ready to sign digests of SHA-256 with PKCS #1 v1.5.
class RsaKey {
  public:
    /// `pem` may be anything. A key with a password is not accepted.
    void read(QByteArrayView pem, const EVP_MD* digest) {
        tryToRead(pem, digest);
        // Errors left in the library's queue would be attributed to the TLS connection of this thread.
        ERR_clear_error();
    }
    bool isThere() const { return m_key && m_context; }
    int bits() const { return EVP_PKEY_get_bits(m_key.get()); }

    /// Empty where the library has failed.
    QByteArray sign(const QByteArray& digest) {
        size_t size = size_t(EVP_PKEY_get_size(m_key.get()));
        QByteArray signature(qsizetype(size), Qt::Uninitialized);
        const bool good = EVP_PKEY_sign(m_context.get(), reinterpret_cast<unsigned char*>(signature.data()),
                                        &size, reinterpret_cast<const unsigned char*>(digest.constData()),
                                        size_t(digest.size())) == 1;
        signature.resize(good ? qsizetype(size) : 0);
        return signature;
    }

  private:
    void tryToRead(QByteArrayView pem, const EVP_MD* digest) {
        m_context.reset();
        const std::unique_ptr<BIO, FreeKey> source(BIO_new_mem_buf(pem.data(), int(pem.size())));
        const auto noPassword = [](char*, int, int, void*) { return -1; };
        m_key.reset(source ? PEM_read_bio_PrivateKey(source.get(), nullptr, noPassword, nullptr) : nullptr);
        if (m_key && EVP_PKEY_get_base_id(m_key.get()) != EVP_PKEY_RSA) m_key.reset();
        if (!m_key) return;
        m_context.reset(EVP_PKEY_CTX_new(m_key.get(), nullptr));
        if (!m_context || EVP_PKEY_sign_init(m_context.get()) != 1 ||
            EVP_PKEY_CTX_set_signature_md(m_context.get(), digest) != 1)
            m_context.reset();
    }

    std::unique_ptr<EVP_PKEY, FreeKey> m_key;
    std::unique_ptr<EVP_PKEY_CTX, FreeKey> m_context;
};

bool isNamed(QByteArrayView field, std::string_view name) {
    return field.size() > qsizetype(name.size()) && field[qsizetype(name.size())] == ':' &&
           qstrnicmp(field.data(), name.data(), name.size()) == 0;
}

Status unusable(const QString& why) {
    return {ErrorCode::NotSupported, Words::tr("Messaggio non firmato (DKIM): %1.").arg(why)};
}

// Appends the relaxed form of the signed header fields to `signedFields`, and returns their names: those that
// are present, in their order, and once more those that must not be added later. Each signed field is present
// at most once.
QByteArray takeHeader(QByteArrayView block, QByteArray& signedFields) {
    QByteArray names;
    names.reserve(512);
    for (qsizetype from = 0; from < block.size();) {
        qsizetype end = block.indexOf('\n', from) + 1;
        while (end < block.size() && (block[end] == ' ' || block[end] == '\t'))
            end = block.indexOf('\n', end) + 1;
        const QByteArrayView field = block.sliced(from, end - 2 - from);
        from = end;
        const auto name = std::find_if(covered.begin(), covered.end(),
                                       [field](std::string_view wanted) { return isNamed(field, wanted); });
        if (name == covered.end()) continue;
        appendRelaxedField(signedFields, field);
        signedFields += "\r\n";
        names.append(name->data(), qsizetype(name->size())).append(": ");
    }
    for (const std::string_view name : closed)
        names.append(name.data(), qsizetype(name.size())).append(name == closed.back() ? "" : ": ");
    return names;
}

QByteArray bodyDigest(Sha256& digest, std::vector<QByteArrayView> pieces, qsizetype header) {
    pieces.front() = pieces.front().sliced(header);
    digest.begin();
    RelaxedBody body([&digest](QByteArrayView octets) { digest.add(octets); });
    for (const QByteArrayView piece : pieces)
        body.add(piece);
    return digest.end();
}

// Blanks, which mean nothing there, where a line may be folded
QByteArray foldable(const QByteArray& base64) {
    QByteArray out;
    out.reserve(base64.size() + base64.size() / signatureLine);
    for (qsizetype from = 0; from < base64.size(); from += signatureLine) {
        if (from > 0) out += ' ';
        out += QByteArrayView(base64).sliced(from, std::min(signatureLine, base64.size() - from));
    }
    return out;
}

}  // namespace

struct DkimSigner::State {
    Sha256 digest;
    RsaKey key;
    QString place;  ///< path of the key and the selector, without their suffixes
    FileStamp keyStamp, selectorStamp;
    QByteArray selector;
    Status usable;

    void follow(const QString& newPlace) {
        const FileStamp newKeyStamp = FileStamp::of(newPlace + ".pem"),
                        newSelectorStamp = FileStamp::of(newPlace + ".selector");
        if (newPlace == place && newKeyStamp == keyStamp && newSelectorStamp == selectorStamp && usable.ok())
            return;  // an unusable file may have got other rights, which no stamp shows
        place = newPlace;
        keyStamp = newKeyStamp;
        selectorStamp = newSelectorStamp;
        const auto keyRead = sys::readGuardedFile(place + ".pem", largestKeyFile),
                   selectorRead =
                       sys::readGuardedFile(place + ".selector", largestKeyFile, sys::Others::Read);
        key.read(keyRead.ok() ? QByteArrayView(keyRead.value()) : QByteArrayView(), digest.kind());
        selector = selectorRead.ok() ? selectorRead.value().trimmed() : QByteArray();
        usable = check();
        for (const auto* read : {&selectorRead, &keyRead})
            if (read->status().code() == ErrorCode::PathAccess) usable = unusable(read->status().text());
    }

    /// Whether there is a file of the domain. A domain literal has none, and no other domain can name a file
    /// outside the folder.
    bool find(const QString& folder, const QByteArray& domain) {
        if (folder.isEmpty() || !isDomainName(domain)) return false;
        follow(folder + '/' + QString::fromLatin1(domain.toLower()));
        return keyStamp.exists() || selectorStamp.exists();
    }

    Status check() const {
        if (!isDomainName(selector)) return unusable(Words::tr("il selettore manca o non è valido"));
        if (!key.isThere()) return unusable(Words::tr("la chiave manca o non è una chiave RSA"));
        if (key.bits() < fewestBits)
            return unusable(Words::tr("la chiave ha meno di %1 bit").arg(fewestBits));
        return {};
    }
};

DkimSigner::DkimSigner() : m_state(std::make_unique<State>()) {}
DkimSigner::~DkimSigner() = default;

bool DkimSigner::signs(const QString& folder, const QByteArray& domain) {
    return m_state->find(folder, domain) && m_state->usable.ok();
}

Status DkimSigner::usable(const QString& folder, const QString& fromAddress) {
    const auto from = parseAddrSpec(fromAddress);
    State state;
    return from.ok() && state.find(folder, from.value().domain) ? state.usable : Status();
}

Result<QByteArray> DkimSigner::sign(const QString& folder, const QByteArray& domain,
                                    const MessageText& message) {
    if (!m_state->find(folder, domain)) return QByteArray();
    if (!m_state->usable.ok()) return m_state->usable;
    Sha256& digest = m_state->digest;
    const auto pieces = message.pieces();
    const qsizetype body = pieces.front().indexOf("\r\n\r\n") + 4;
    const QByteArray bodyHash = bodyDigest(digest, pieces, body);
    QByteArray signedFields;
    signedFields.reserve(body);
    const QByteArray names = takeHeader(pieces.front().first(body - 2), signedFields);
    // With single blanks, so that it is in its relaxed form before it is folded
    const QByteArray value = "v=1; a=rsa-sha256; c=relaxed/relaxed; d=" % domain.toLower() % "; s=" %
                             m_state->selector % "; t=" %
                             QByteArray::number(sys::clock().now().toSecsSinceEpoch()) % "; bh=" %
                             bodyHash.toBase64() % "; h=" % names % "; b=";
    digest.begin();
    digest.add(signedFields);
    digest.add("dkim-signature:");
    digest.add(value);
    const QByteArray hash = digest.end();
    const QByteArray signature =
        hash.isEmpty() || bodyHash.isEmpty() ? QByteArray() : m_state->key.sign(hash);
    if (signature.isEmpty()) return unusable(Words::tr("la firma non è riuscita"));
    return foldedHeader("DKIM-Signature", value + foldable(signature.toBase64()));
}

}  // namespace mail
