#include "platform/mail/DkimSigner.h"

// The library's header is C, and standard C++ has no _Bool.
#define _Bool bool
#include <dkim.h>
#undef _Bool

#include <QSslKey>

#include "platform/mail/AddrSpec.h"
#include "platform/mail/DomainName.h"
#include "platform/mail/FileStamp.h"
#include "platform/system/OwnFile.h"

namespace mail {
namespace {

constexpr qint64 largestKeyFile = 64 * 1024;
constexpr int fewestBits = 2048;
const QByteArray headerName = "DKIM-Signature: ";

struct CloseLibrary {
    void operator()(DKIM_LIB* library) const { dkim_close(library); }
};
struct FreeSignature {
    void operator()(DKIM* signature) const { dkim_free(signature); }
};

// The library's interface knows no constants
unsigned char* bytes(QByteArrayView text) {
    return reinterpret_cast<unsigned char*>(const_cast<char*>(text.data()));
}

std::unique_ptr<DKIM_LIB, CloseLibrary> openLibrary() {
    std::unique_ptr<DKIM_LIB, CloseLibrary> library(dkim_init(nullptr, nullptr));
    const char* covered[] = {"From",
                             "To",
                             "Subject",
                             "Date",
                             "Message-ID",
                             "MIME-Version",
                             "Content-Type",
                             "List-Unsubscribe",
                             "List-Unsubscribe-Post",
                             "List-Id",
                             nullptr};
    const char* closed[] = {"From",
                            "To",
                            "Cc",
                            "Reply-To",
                            "Subject",
                            "Date",
                            "Message-ID",
                            "MIME-Version",
                            "Content-Type",
                            "List-Unsubscribe",
                            "List-Unsubscribe-Post",
                            nullptr};
    // The size is that of the pointer; the list ends with a null.
    const auto set = [&](dkim_opts_t option, const char** names) {
        return dkim_options(library.get(), DKIM_OP_SETOPT, option, static_cast<void*>(names), sizeof names) ==
               DKIM_STAT_OK;
    };
    if (library && set(DKIM_OPTS_SIGNHDRS, covered) && set(DKIM_OPTS_OVERSIGNHDRS, closed)) return library;
    return {};
}

Status unusable(const QString& why) {
    return {ErrorCode::NotSupported, QStringLiteral("Messaggio non firmato (DKIM): %1.").arg(why)};
}

// Hands over one header field after the other, each with its folded lines
DKIM_STAT readHeaders(DKIM* signature, QByteArrayView block) {
    DKIM_STAT state = DKIM_STAT_OK;
    for (qsizetype from = 0; from < block.size() && state == DKIM_STAT_OK;) {
        qsizetype end = block.indexOf("\r\n", from);
        while (end + 2 < block.size() && block[end + 2] == ' ')
            end = block.indexOf("\r\n", end + 2);
        state = dkim_header(signature, bytes(block) + from, static_cast<size_t>(end - from));
        from = end + 2;
    }
    return state == DKIM_STAT_OK ? dkim_eoh(signature) : state;
}

DKIM_STAT readMessage(DKIM* signature, const MessageText& message) {
    auto pieces = message.pieces();
    const qsizetype body = pieces.front().indexOf("\r\n\r\n") + 4;
    DKIM_STAT state = readHeaders(signature, pieces.front().first(body - 2));
    pieces.front() = pieces.front().sliced(body);
    for (const QByteArrayView piece : pieces) {
        if (state == DKIM_STAT_OK)
            state = dkim_body(signature, bytes(piece), static_cast<size_t>(piece.size()));
    }
    return state;
}

}  // namespace

struct DkimSigner::State {
    std::unique_ptr<DKIM_LIB, CloseLibrary> library;
    QString place;  ///< path of the key and the selector, without their suffixes
    FileStamp keyStamp, selectorStamp;
    QByteArray key, selector;
    Status usable;

    void follow(const QString& newPlace) {
        const FileStamp newKeyStamp = FileStamp::of(newPlace + ".pem"),
                        newSelectorStamp = FileStamp::of(newPlace + ".selector");
        if (newPlace == place && newKeyStamp == keyStamp && newSelectorStamp == selectorStamp && usable.ok())
            return;  // what could not be used may have got other rights, which no stamp shows
        place = newPlace;
        keyStamp = newKeyStamp;
        selectorStamp = newSelectorStamp;
        const auto keyRead = sys::readGuardedFile(place + ".pem", largestKeyFile),
                   selectorRead =
                       sys::readGuardedFile(place + ".selector", largestKeyFile, sys::Others::Read);
        key = keyRead.ok() ? keyRead.value() : QByteArray();
        selector = selectorRead.ok() ? selectorRead.value().trimmed() : QByteArray();
        usable = check();
        for (const auto* read : {&selectorRead, &keyRead})
            if (read->status().code() == ErrorCode::PathAccess) usable = unusable(read->status().text());
    }

    /// Whether there is a file of the domain. A domain literal has none, and no other domain can lead out of
    /// the folder.
    bool find(const QString& folder, const QByteArray& domain) {
        if (folder.isEmpty() || !isDomainName(domain)) return false;
        follow(folder + '/' + QString::fromLatin1(domain.toLower()));
        return keyStamp.exists() || selectorStamp.exists();
    }

    Status check() const {
        if (!isDomainName(selector)) return unusable(QStringLiteral("il selettore manca o non è valido"));
        const QSslKey read(key, QSsl::Rsa);
        if (read.isNull()) return unusable(QStringLiteral("la chiave manca o non è una chiave RSA"));
        if (read.length() < fewestBits)
            return unusable(QStringLiteral("la chiave ha meno di %1 bit").arg(fewestBits));
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
    const QByteArray name = domain.toLower();
    if (!m_state->library) m_state->library = openLibrary();
    if (!m_state->library) return unusable(QStringLiteral("manca la memoria"));

    DKIM_STAT state = DKIM_STAT_OK;
    const std::unique_ptr<DKIM, FreeSignature> signature(dkim_sign(
        m_state->library.get(), bytes("vestrola"), nullptr, bytes(m_state->key), bytes(m_state->selector),
        bytes(name), DKIM_CANON_RELAXED, DKIM_CANON_RELAXED, DKIM_SIGN_RSASHA256, -1, &state));
    if (state == DKIM_STAT_OK) state = readMessage(signature.get(), message);
    if (state == DKIM_STAT_OK) state = dkim_eom(signature.get(), nullptr);
    unsigned char* value = nullptr;
    size_t size = 0;
    if (state == DKIM_STAT_OK)
        state = dkim_getsighdr_d(signature.get(), static_cast<size_t>(headerName.size()), &value, &size);
    if (state != DKIM_STAT_OK) return unusable(QString::fromLatin1(dkim_getresultstr(state)));
    return headerName + QByteArray(reinterpret_cast<const char*>(value), static_cast<qsizetype>(size)) +
           "\r\n";
}

}  // namespace mail
