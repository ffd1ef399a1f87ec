// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/DkimKey.h"

#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/x509.h>

#include <memory>

#include "platform/mail/DkimSigner.h"
#include "platform/mail/DomainName.h"
#include "platform/mail/FileStamp.h"
#include "platform/system/Clock.h"
#include "platform/system/OwnFile.h"
#include "platform/text/Words.h"

namespace mail {
namespace {

constexpr qint64 largestKeyPart = 64 * 1024;
constexpr qsizetype largestPublished = 8 * 1024;
constexpr unsigned newKeyBits = 2048;

struct FreeKeyPart {
    void operator()(EVP_PKEY* key) const { EVP_PKEY_free(key); }
    void operator()(BIO* text) const { BIO_free(text); }
};
using Key = std::unique_ptr<EVP_PKEY, FreeKeyPart>;
using KeyText = std::unique_ptr<BIO, FreeKeyPart>;

QString keyPlace(const QString& folder, const QByteArray& domain) {
    return folder + '/' + QString::fromLatin1(domain.toLower());
}

Key keyOfPem(const QByteArray& pem) {
    const KeyText text(BIO_new_mem_buf(pem.constData(), int(pem.size())));
    const auto noPassword = [](char*, int, int, void*) { return -1; };
    return Key(text ? PEM_read_bio_PrivateKey(text.get(), nullptr, noPassword, nullptr) : nullptr);
}

QByteArray pemOf(EVP_PKEY* key) {
    const KeyText text(BIO_new(BIO_s_mem()));
    if (!text || PEM_write_bio_PrivateKey(text.get(), key, nullptr, nullptr, 0, nullptr, nullptr) != 1)
        return {};
    char* bytes = nullptr;
    const long size = BIO_get_mem_data(text.get(), &bytes);
    return {bytes, qsizetype(size)};
}

QByteArray publicPart(EVP_PKEY* key) {
    const int size = i2d_PUBKEY(key, nullptr);
    if (size <= 0) return {};
    QByteArray der(size, Qt::Uninitialized);
    auto* bytes = reinterpret_cast<unsigned char*>(der.data());
    return i2d_PUBKEY(key, &bytes) == size ? der : QByteArray();
}

Key keyOfDer(const QByteArray& der) {
    if (der.size() > largestPublished) return {};
    const auto* bytes = reinterpret_cast<const unsigned char*>(der.constData());
    const auto* again = bytes;
    Key key(d2i_PUBKEY(nullptr, &bytes, long(der.size())));
    if (!key) key.reset(d2i_PublicKey(EVP_PKEY_RSA, nullptr, &again, long(der.size())));
    return key;
}

Status notWritten(const QString& path, const Status& why) {
    if (why.code() == ErrorCode::FileInUse)
        return {ErrorCode::FileInUse, Words::tr("Il file %1 esiste già.").arg(path)};
    return {why.code(), Words::tr("Non è possibile scrivere il file %1.").arg(path)};
}

}  // namespace

bool hasDkimFiles(const QString& folder, const QByteArray& domain) {
    const QString place = keyPlace(folder, domain);
    return FileStamp::of(place + ".pem").exists() || FileStamp::of(place + ".selector").exists();
}

Result<DkimKey> readDkimKey(const QString& folder, const QByteArray& domain) {
    if (folder.isEmpty() || !isDomainName(domain) || !hasDkimFiles(folder, domain))
        return Status(ErrorCode::FileNotFound, QString());
    const Status usable = DkimSigner::usable(folder, "x@" + QString::fromLatin1(domain));
    if (!usable.ok()) return usable;
    const QString place = keyPlace(folder, domain);
    const auto pem = sys::readGuardedFile(place + ".pem", largestKeyPart);
    const auto selector = sys::readGuardedFile(place + ".selector", largestKeyPart, sys::Others::Read);
    const Key key = pem.ok() ? keyOfPem(pem.value()) : Key();
    if (!key || !selector.ok())
        return Status(ErrorCode::NotSupported, Words::tr("La chiave non si può leggere."));
    return DkimKey{selector.value().trimmed(), publicPart(key.get())};
}

Result<DkimKey> createDkimKey(const QString& folder, const QByteArray& domain) {
    if (!isDomainName(domain)) return Status(ErrorCode::NotSupported, Words::tr("Il dominio non è valido."));
    const QString place = keyPlace(folder, domain);
    if (hasDkimFiles(folder, domain))
        return Status(
            ErrorCode::FileInUse,
            Words::tr("Il dominio ha già una chiave o un selettore: %1.pem, %1.selector.").arg(place));
    const Status made = sys::makeOwnFolder(folder);
    if (!made.ok())
        return Status(made.code(), Words::tr("Non è possibile creare la cartella %1.").arg(folder));
    const Key key(EVP_RSA_gen(newKeyBits));
    const QByteArray pem = key ? pemOf(key.get()) : QByteArray();
    if (pem.isEmpty())
        return Status(ErrorCode::NotSupported, Words::tr("La creazione della chiave non è riuscita."));
    DkimKey created{"vestrola" + sys::clock().now().toString("yyyyMMdd").toLatin1(), publicPart(key.get())};
    const Status keyWritten = sys::createOwnFile(place + ".pem", pem);
    if (!keyWritten.ok()) return notWritten(place + ".pem", keyWritten);
    const Status selectorWritten = sys::createOwnFile(place + ".selector", created.selector + '\n');
    if (!selectorWritten.ok()) {
        sys::removeOwnFile(place + ".pem");
        return notWritten(place + ".selector", selectorWritten);
    }
    return created;
}

bool isSameKey(const QByteArray& one, const QByteArray& published) {
    const Key first = keyOfDer(one), second = keyOfDer(published);
    return first && second && EVP_PKEY_eq(first.get(), second.get()) == 1;
}

}  // namespace mail
